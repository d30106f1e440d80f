#include "EnOrden.h"

#include <algorithm>
#include <array>
#include <vector>

#include "Barrido.h"
#include "modCSN.h"
#include "modGeneral.h"

// The base mode and the number of bets tell; the bets looked at guard against a table that was filled
// in another way.
bool EsExpansionEntera(const EstadoTrabajo& trabajo) {
    const int16_t n = trabajo.NumerosBase;
    const int64_t total = trabajo.ApuestasEnTabla;
    if (trabajo.cboTipoCombinacion == PronosticoDesdeArchivo || total == 0 || total != Combinaciones(n, 6))
        return false;
    const int64_t paso = std::max<int64_t>(1, total / 64);
    std::array<uint8_t, 6> esperada{};
    for (int64_t i = total; i >= 1; i -= paso) {
        CSNaCombinacion(static_cast<int32_t>(i), 6, n, esperada.data());
        for (int r = 0; r < 6; ++r)
            if (trabajo.TablaApuestas(r + 1, i) != esperada[static_cast<size_t>(r)]) return false;
    }
    return true;
}

namespace {

// The endings: all sets of three positions, in order.
class Finales {
  public:
    explicit Finales(const EstadoTrabajo& trabajo) : n_(static_cast<size_t>(trabajo.NumerosBase)) {
        for (size_t p4 = 1; p4 + 2 <= n_; ++p4) {
            primero_[p4] = cuantos_;
            cuantos_ += ConCuarta(p4);
        }
    }

    size_t Cuantos() const { return cuantos_; }
    size_t Primero(size_t p4) const { return primero_[p4]; } // with this fourth position
    size_t ConCuarta(size_t p4) const { return (n_ - p4) * (n_ - p4 - 1) / 2; }

    /// `visitar(p4, p5, p6, lugar)` for those with at least `p4`.
    template <class Visitar>
    void Recorrer(size_t p4, Visitar visitar) const {
        for (size_t lugar = primero_[p4]; p4 + 2 <= n_; ++p4)
            for (size_t p5 = p4 + 1; p5 < n_; ++p5)
                for (size_t p6 = p5 + 1; p6 <= n_; ++p6) visitar(p4, p5, p6, lugar++);
    }

  private:
    size_t n_, cuantos_ = 0;
    std::array<size_t, NumeroMaximoBoleto + 1> primero_{};
};

// By ending, or by what else the bets in one place share. They differ in the beginning: fewer than 16 bits
// hold.
class PorLugar {
  public:
    explicit PorLugar(size_t lugares) : pasan_(lugares + HolguraRecuento), rechazadas_(pasan_.size()) {}

    CuentaValor Sumar(const uint8_t* estados, size_t n, size_t lugar) {
        return NucleoSumarEstados(estados, n, pasan_.data() + lugar, rechazadas_.data() + lugar);
    }
    CuentaValor De(size_t lugar) const { return {pasan_[lugar] + rechazadas_[lugar], pasan_[lugar]}; }
    void Borrar() {
        std::fill(pasan_.begin(), pasan_.end(), uint16_t{0});
        std::fill(rechazadas_.begin(), rechazadas_.end(), uint16_t{0});
    }

  private:
    std::vector<uint16_t> pasan_, rechazadas_;
};

// `tratar(p1, p2, p3, estados)` for each beginning, with the flags of its bets, and `cerrar(p1)` behind the
// last one with that first position.
template <class Tratar, class Cerrar>
void RecorrerInicios(EstadoTrabajo& trabajo, Entorno& entorno, Tratar tratar, Cerrar cerrar) {
    const auto n = static_cast<size_t>(trabajo.NumerosBase);
    const uint8_t* estados = trabajo.ApuestaEliminada.Fila(1);
    int64_t hechas = 0, turno = ApuestasPorTurno;
    for (size_t p1 = 1; p1 + 5 <= n; ++p1) {
        for (size_t p2 = p1 + 1; p2 + 4 <= n; ++p2)
            for (size_t p3 = p2 + 1; p3 + 3 <= n; ++p3) {
                tratar(p1, p2, p3, estados + hechas);
                hechas += Combinaciones(static_cast<int16_t>(n - p3), 3);
                for (; turno <= hechas; turno += ApuestasPorTurno) entorno.CederTurno();
            }
        cerrar(p1);
    }
}

} // namespace

void ContarEnOrden(EstadoTrabajo& trabajo, Entorno& entorno, const VisitaCuatro& inicio, const VisitaCuatro& fin) {
    const Finales finales(trabajo);
    PorLugar cuentas(finales.Cuantos());
    const auto tratar = [&](size_t p1, size_t p2, size_t p3, const uint8_t* estados) {
        for (size_t p4 = p3 + 1; p4 + 2 <= static_cast<size_t>(trabajo.NumerosBase); ++p4) {
            inicio(p1, p2, p3, p4, cuentas.Sumar(estados, finales.ConCuarta(p4), finales.Primero(p4)));
            estados += finales.ConCuarta(p4);
        }
    };
    RecorrerInicios(trabajo, entorno, tratar, [&](size_t p1) {
        finales.Recorrer(
            p1 + 3, [&](size_t p4, size_t p5, size_t p6, size_t lugar) { fin(p1, p4, p5, p6, cuentas.De(lugar)); });
        cuentas.Borrar();
    });
}

// Bets with the same fourth position and the same sum in front of it share the places of that position's endings.
std::vector<CuentaValor> ContarSumasEnOrden(EstadoTrabajo& trabajo, Entorno& entorno, const PorPosicion& valor) {
    const auto n = static_cast<size_t>(trabajo.NumerosBase);
    const Finales finales(trabajo);
    std::array<size_t, NumeroMaximoBoleto + 1> desde{}, sumas{}; // of each fourth position: first place, sums in front
    size_t lugares = 0;
    for (size_t p4 = 4; p4 + 2 <= n; ++p4) {
        const size_t mayor = *std::max_element(valor.begin() + 1, valor.begin() + static_cast<std::ptrdiff_t>(p4));
        desde[p4] = lugares;
        sumas[p4] = 3 * mayor + 1;
        lugares += sumas[p4] * finales.ConCuarta(p4);
    }
    PorLugar cuentas(lugares);
    const auto tratar = [&](size_t p1, size_t p2, size_t p3, const uint8_t* estados) {
        const auto suma = static_cast<size_t>(valor[p1] + valor[p2] + valor[p3]);
        for (size_t p4 = p3 + 1; p4 + 2 <= n; ++p4) {
            cuentas.Sumar(estados, finales.ConCuarta(p4), desde[p4] + suma * finales.ConCuarta(p4));
            estados += finales.ConCuarta(p4);
        }
    };
    RecorrerInicios(trabajo, entorno, tratar, [](size_t) {});
    std::vector<CuentaValor> porSuma(6 * size_t{*std::max_element(valor.begin(), valor.end())} + 1);
    finales.Recorrer(4, [&](size_t p4, size_t p5, size_t p6, size_t lugar) {
        const auto final = static_cast<size_t>(valor[p4] + valor[p5] + valor[p6]);
        const size_t suyo = desde[p4] + lugar - finales.Primero(p4);
        for (size_t s = 0; s < sumas[p4]; ++s) porSuma[s + final].Sumar(cuentas.De(suyo + s * finales.ConCuarta(p4)));
    });
    return porSuma;
}
