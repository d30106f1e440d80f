// The test vocabulary: a fresh working state and an environment that records what is shown and
// answers what the test has laid ready.
//
//     Guion guion;
//     guion.Marcar({1, 2, 3, 4, 5, 6});
//     guion.Respuestas = {true};                    // "sí" to the first question
//     EXPECT_FALSE(CalcularSistema(guion.sesion, guion.entorno));
//     EXPECT_EQ(guion.Cajas, Textos{"[!] AVISO: Hay que seleccionar mínimo 1 reintegro"});
#pragma once

#include <deque>
#include <filesystem>
#include <functional>
#include <initializer_list>
#include <map>
#include <string>
#include <vector>

#include "Entorno.h"
#include "LogicaVentanaProceso.h"
#include "Sesion.h"

using Textos = std::vector<std::string>;
using Apuesta = std::vector<int>;

/// A folder of its own that goes with its owner.
class CarpetaTemporal {
  public:
    CarpetaTemporal();
    ~CarpetaTemporal();
    CarpetaTemporal(const CarpetaTemporal&) = delete;
    CarpetaTemporal& operator=(const CarpetaTemporal&) = delete;

    std::string Ruta(const std::string& nombre) const { return (carpeta_ / nombre).string(); }
    std::string Ruta() const { return carpeta_.string(); }

  private:
    std::filesystem::path carpeta_;
};

struct Guion {
    Guion();
    /// Whatever was laid ready and not asked for fails the test.
    ~Guion();
    Guion(const Guion&) = delete;
    Guion& operator=(const Guion&) = delete;

    Sesion sesion;
    Entorno entorno;

    /// Every box in order: "[X] " critical, "[!] " exclamation, "[i] " information, and questions as
    /// "[?] " + text + " -> sí" or " -> no".
    Textos Cajas;
    std::deque<bool> Respuestas;      ///< to the questions; "no" when there is none
    std::deque<std::string> Ficheros; ///< to the choosers; cancelled when there is none
    std::vector<PeticionFichero> Peticiones;
    Textos Informes;    ///< reports shown
    Textos Direcciones; ///< addresses opened
    int Pitidos = 0;
    int Turnos = 0; ///< calls of CederTurno

    double CiclosDeReduccion = 1;            ///< the process window runs this many and closes; 0 for no limit
    LogicaVentanaProceso* Ventana = nullptr; ///< while it is open

    /// Runs `accion` on the n-th call of CederTurno from the start, 1 the first.
    void EnTurno(int n, std::function<void()> accion) { acciones_[n] = std::move(accion); }

    /// Marks these numbers, or digits, and brings the counters up to date.
    void Marcar(std::initializer_list<int> numeros);
    void MarcarHasta(int n);
    void MarcarDigitos(std::initializer_list<int> digitos);

    /// Fills `TablaApuestas` with these bets of real numbers over a base of 1 to 49, all alive.
    void PonerApuestas(const std::vector<Apuesta>& apuestas);

  private:
    std::map<int, std::function<void()>> acciones_;
};

/// The bets of a table as lists of its rows 1 to `filas`.
std::vector<Apuesta> Apuestas(const Tabla& tabla, int filas = 6);

std::string LeerTodo(const std::string& ruta);
void EscribirTodo(const std::string& ruta, const std::string& bytes);
