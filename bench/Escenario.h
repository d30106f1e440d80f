// The works that are measured: each on the whole ticket of 49 numbers, 13,983,816 bets, with its
// answer checked.
#pragma once

#include <cstdint>
#include <functional>
#include <string>
#include <vector>

#include "Entorno.h"
#include "Sesion.h"

/// What a work is compared with.
enum class Patron {
    Lectura,       ///< reading the bytes of the table once
    MemoriaFresca, ///< filling as many bytes of fresh memory
};

struct Trabajo {
    std::string nombre;
    Patron patron;
    double permitido;               ///< times the time of its reference
    std::function<void()> preparar; ///< not measured
    std::function<int64_t()> hacer;
    int64_t esperado; ///< what `hacer` returns
};

/// The session on which the works run and the list of them.
class Escenario {
  public:
    Escenario();
    Escenario(const Escenario&) = delete;
    Escenario& operator=(const Escenario&) = delete;

    const std::vector<Trabajo>& Trabajos() const { return trabajos_; }

    /// The two references; each returns a number that depends on the bytes it touched.
    int64_t LeerTabla() const;
    int64_t LlenarMemoriaFresca();
    void SoltarMemoria() { fresca_.Vaciar(); }

  private:
    void Anotar(std::string nombre, double permitido, std::function<void()> preparar, std::function<int64_t()> hacer);
    void AnotarFiltros();
    void AnotarFiltrosDeBloques();
    void AnotarTraslados();
    void AnotarNumeracion();
    void ReponerApuestas();
    void EliminarUnaDeCinco();
    void Condicionar(const std::vector<int>& filtros);

    Sesion sesion_;
    Entorno entorno_;
    Tabla fresca_;
    std::vector<int32_t> csn_;
    Tabla numeradas_; ///< the bets of `csn_`, in seven rows
    std::vector<Trabajo> trabajos_;
};
