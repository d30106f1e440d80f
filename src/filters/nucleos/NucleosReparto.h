// The kernels that count the bets of a stretch by a value that another kernel has written. They keep
// the contract of Nucleos.h, but for the flags, which say how each bet stands.
#pragma once

#include <vector>

#include "Figuras.h"
#include "Nucleos.h"
#include "NucleosValores.h"

/// A bet's flag while its table is counted.
enum EstadoApuesta : uint8_t { ApuestaPasa, ApuestaRechazada, ApuestaMuerta };

/// Live bets with one value, and those of them that pass.
struct CuentaValor {
    int32_t Apuestas = 0, Pasan = 0;
    void Sumar(const CuentaValor& otra) {
        Apuestas += otra.Apuestas;
        Pasan += otra.Pasan;
    }
};

/// Bets by a count of 0 to 6, and by the place of a figure in the list.
using CuentaAciertos = std::array<CuentaValor, 7>;
using CuentaFiguras = std::array<CuentaValor, NombresFiguras.size()>;

/// Adds the bets by their byte; those with a byte that is none of the values are left out.
void NucleoContarAciertos(const Tramo& tramo, const uint8_t* valores, CuentaAciertos& cuenta);
void NucleoContarAciertosEscalar(const Tramo& tramo, const uint8_t* valores, CuentaAciertos& cuenta);
void NucleoContarFiguras(const Tramo& tramo, const uint8_t* valores, CuentaFiguras& cuenta);
void NucleoContarFigurasEscalar(const Tramo& tramo, const uint8_t* valores, CuentaFiguras& cuenta);

/// Two counts at a time, in the halves of a byte; those of 0 are left to whoever knows the rest.
void NucleoContarPares(const Tramo& tramo, const uint8_t* valores, CuentaAciertos& baja, CuentaAciertos& alta);
void NucleoContarParesEscalar(const Tramo& tramo, const uint8_t* valores, CuentaAciertos& baja, CuentaAciertos& alta);

/// Bets by a value below `Valores`, whose bits 8 and up are the byte `alta`. Four counts take turns,
/// because a count waits for the one before it when both are of the same value.
class CuentaPalabras {
  public:
    static constexpr size_t Valores = 127 * 256;
    static constexpr size_t Turnos = 4;

    CuentaPalabras() : cuentas_(Turnos * PorTurno) {}

    CuentaValor De(size_t valor) const;
    int32_t* Cuentas(size_t turno) { return cuentas_.data() + turno * PorTurno; }

    /// Where a bet of this value counts. What dead bets have in place of a value is above all others.
    static constexpr size_t Lugar(size_t valor, uint8_t estado) {
        return estado == ApuestaMuerta ? Muerta : estado == ApuestaRechazada ? valor ^ Rechazo : valor;
    }

  private:
    // Processors take counts for the same that are a multiple of 4096 bytes apart: those of one value are not.
    static constexpr size_t Rechazo = 0x8080, Muerta = Valores, PorTurno = 0x10000 + 0x110;

    std::vector<int32_t> cuentas_;
};

/// Adds the bets by `baja` + 256 x `alta`, of one byte for each bet; a row that is null is all 0. The row that
/// changes more often from bet to bet is best `baja`: then neighbours count side by side.
void NucleoContarBytes(const Tramo& tramo, const uint8_t* baja, const uint8_t* alta, CuentaPalabras& cuenta);
void NucleoContarBytesEscalar(const Tramo& tramo, const uint8_t* baja, const uint8_t* alta, CuentaPalabras& cuenta);

/// Adds the bets by `valores`, all below `CuentaPalabras::Valores` for live bets; 64 more may be read.
void NucleoContarPalabras(const Tramo& tramo, const uint16_t* valores, CuentaPalabras& cuenta);
void NucleoContarPalabrasEscalar(const Tramo& tramo, const uint16_t* valores, CuentaPalabras& cuenta);

/// Adds the bets by the sum of the values of their six positions, counted from `minimo`; all below
/// `CuentaPalabras::Valores` for live bets.
void NucleoContarSumas(const Tramo& tramo, const PalabrasPorPosicion& valores, int16_t minimo, CuentaPalabras& cuenta);
void NucleoContarSumasEscalar(const Tramo& tramo, const PalabrasPorPosicion& valores, int16_t minimo,
                              CuentaPalabras& cuenta);

/// Adds each of `n` bets to `pasan` or to `rechazadas` at its own place, and returns how many they are. Both
/// have `HolguraRecuento` places more, and so many more states may be read.
inline constexpr size_t HolguraRecuento = 64;
CuentaValor NucleoSumarEstados(const uint8_t* estados, size_t n, uint16_t* pasan, uint16_t* rechazadas);
CuentaValor NucleoSumarEstadosEscalar(const uint8_t* estados, size_t n, uint16_t* pasan, uint16_t* rechazadas);
