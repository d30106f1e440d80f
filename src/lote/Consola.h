// Standard error: boxes and questions one line each and, on a terminal, a progress line under them.
#pragma once

#include <chrono>
#include <string>

class Consola {
  public:
    Consola();
    ~Consola() { BorrarProgreso(); }
    Consola(const Consola&) = delete;
    Consola& operator=(const Consola&) = delete;

    /// A box's text as a line of its own: each line end inside becomes " | ", those at its end go.
    void Linea(const std::string& texto);

    /// Replaces the progress line by `texto()`, at most ten times a second. Nothing when standard error
    /// is no terminal.
    template <class Texto>
    void Progreso(Texto texto) {
        if (TocaProgreso()) PintarProgreso(texto());
    }
    void BorrarProgreso();

  private:
    using Reloj = std::chrono::steady_clock;

    bool TocaProgreso();
    void PintarProgreso(const std::string& texto);

    bool terminal_;
    bool hayProgreso_ = false;
    Reloj::time_point ultimo_;
};
