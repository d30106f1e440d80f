// The main operations at full size, as the front ends run them.
#pragma once

#include <string>
#include <vector>

#include "Entorno.h"
#include "Sesion.h"

/// One working state and one folder that all operations share. What they say in boxes ends the program.
class Obrador {
  public:
    explicit Obrador(std::string carpeta);
    Obrador(const Obrador&) = delete;
    Obrador& operator=(const Obrador&) = delete;

    Sesion sesion;
    Entorno entorno;

    /// A file of the folder; the next file chooser answers with it, too.
    std::string Fichero(const std::string& nombre);
    /// Every number marked, and a digit.
    void MarcarTodo();
    /// Calculates and tells whether so many bets came out.
    bool Calcular(int32_t esperadas);
    /// An empty piece of work.
    void Nuevo();

  private:
    std::string carpeta_, elegido_;
};

struct OperacionEntera {
    const char* nombre;
    bool (*hacer)(Obrador&); ///< whether its answer is right
};

/// In an order in which each finds the files it needs.
const std::vector<OperacionEntera>& OperacionesEnteras();
