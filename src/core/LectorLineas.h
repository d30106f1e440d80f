// A text file line by line, without ever holding more of it than a block.
//
//     LectorLineas lineas;
//     if (!lineas.Abrir(ruta)) return Fallo(entorno, "... (" + lineas.Fallo() + ")");
//     for (std::string_view linea; lineas.Siguiente(linea);) ...
//     if (!lineas.Fallo().empty()) ...
#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "Ficheros.h"

/// Lines end in CR, LF or CR LF, the last one perhaps in nothing. Bytes are handed on as they are.
/// Only what the file had when it was opened is read.
class LectorLineas {
  public:
    /// Longest line that is read; a longer one is a failure.
    static constexpr size_t LineaMaxima = size_t{16} << 20;

    bool Abrir(const std::string& ruta);
    int64_t Bytes() const { return fichero_.Bytes(); }

    /// The next line without its end, valid until the next call. False at the end of the file, and on a
    /// failure, which `Fallo` tells.
    bool Siguiente(std::string_view& linea);

    /// What is loaded from the start of the next line on, at least `minimo` bytes of it unless the file
    /// ends before: for a caller that knows its lines better. `Tomar` drops whole lines of it with
    /// their ends.
    std::string_view Cargado(size_t minimo);
    void Tomar(size_t bytes) { inicio_ += bytes; }

    const std::string& Fallo() const { return fallo_; }

  private:
    bool Rellenar();
    void SaltarSegundoFin();

    FicheroEntrada fichero_;
    std::vector<char> bloque_;
    size_t inicio_ = 0, fin_ = 0; // of what is loaded
    int64_t cargados_ = 0;        // bytes of the file, in all
    bool trasCR_ = false;         // the last line taken ended in CR: a LF now belongs to it
    std::string fallo_;
};
