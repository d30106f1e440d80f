#include "EleccionPorFilas.h"

#include <cassert>

#include "FilaAl5.h"

namespace {

constexpr int PlazasPorBloque = 256;

} // namespace

EleccionPorFilas::EleccionPorFilas(const Conjunto& conjunto, CuentasAl5& cuentas)
    : conjunto_(conjunto), cuentas_(cuentas), prefijo_(cuentas.Rangos5().Cuantos()) {
    assert(conjunto.Ordenado());
    const int n = conjunto.n();
    Prefijo p;
    size_t fila = 0;
    for (p[0] = 1; p[0] <= n; ++p[0])
        for (p[1] = p[0]; ++p[1] <= n;)
            for (p[2] = p[1]; ++p[2] <= n;)
                for (p[3] = p[2]; ++p[3] <= n;)
                    for (p[4] = p[3]; ++p[4] <= n;) prefijo_[fila++] = p;
    if (conjunto.Completo()) return;
    const uint8_t* estado = cuentas.Estado();
    int32_t antes = 0;
    for (int32_t lugar = 0; lugar < cuentas.Rangos6().Cuantos(); ++lugar) {
        if (lugar % PlazasPorBloque == 0) indice_.push_back(antes);
        antes += estado[lugar] != CuentasAl5::Ausente;
    }
}

void EleccionPorFilas::Comenzar() {
    cuentas_.Reponer();
    const int n = conjunto_.n();
    const int tope = 1 + 6 * (n - 6);
    cotas_.Comenzar(static_cast<int32_t>(prefijo_.size()),
                    [&](int32_t fila) { return prefijo_[fila][4] == n ? 0 : tope; });
}

int EleccionPorFilas::EvaluarFila(int32_t fila) {
    const Prefijo& p = prefijo_[fila];
    const Rangos& r5 = cuentas_.Rangos5();
    const int n = conjunto_.n(), primera = p[4] + 1;
    FilaAl5 apuestas;
    int32_t antes = r5.Parte(4, primera), despues = 0;
    for (int j = 1; j < 5; ++j) despues += r5.Parte(j - 1, p[j]);
    for (int k = 0;; ++k) {
        apuestas.sin[k] = cuentas_.Cuenta() + antes + despues;
        if (k == 4) break;
        antes += r5.Parte(k, p[k]);
        despues -= r5.Parte(k, p[k + 1]);
    }
    int32_t inicio = cuentas_.Rangos6().Parte(5, primera);
    for (int j = 0; j < 5; ++j) inicio += cuentas_.Rangos6().Parte(j, p[j]);
    apuestas.estado = cuentas_.Estado() + inicio;
    apuestas.n = n - primera + 1;

    const MejorDeFila mejor = MejorDeFilaAl5(apuestas);
    ultima_ = primera + mejor.indice;
    return mejor.ganancia < 0 ? 0 : mejor.ganancia + cuentas_.Cuenta()[fila];
}

int32_t EleccionPorFilas::IndiceDe(int32_t lugar) const {
    if (indice_.empty()) return lugar;
    const uint8_t* estado = cuentas_.Estado();
    const int32_t bloque = lugar / PlazasPorBloque;
    int32_t indice = indice_[bloque];
    for (int32_t i = bloque * PlazasPorBloque; i < lugar; ++i) indice += estado[i] != CuentasAl5::Ausente;
    return indice;
}

int32_t EleccionPorFilas::Elegir() {
    const int32_t fila = cotas_.Siguiente([this](int32_t f) { return EvaluarFila(f); });
    if (fila < 0) return -1;
    const Prefijo& p = prefijo_[fila];
    const Seis apuesta{p[0], p[1], p[2], p[3], p[4], static_cast<uint8_t>(ultima_)};
    cuentas_.Cubrir(apuesta);
    return IndiceDe(cuentas_.Rangos6().Lugar(apuesta.data()));
}
