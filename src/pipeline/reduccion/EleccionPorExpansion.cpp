#include "EleccionPorExpansion.h"

#include <algorithm>

namespace {

constexpr int Ancho = 8;
static_assert(CuentasAl4::Margen >= 2 * Ancho);

// Both write whole groups of entries; what goes beyond a run belongs to the next one, which is written
// after it.
void SumarRacha5(const int16_t* const sin[4], const int16_t* propia, int16_t prefijo, int16_t* __restrict w, int n) {
    for (int x = 0; x < n; x += Ancho)
        for (int l = x; l < x + Ancho; ++l)
            w[l] = static_cast<int16_t>(prefijo + sin[0][l] + sin[1][l] + sin[2][l] + sin[3][l] - 8 * propia[l]);
}

void SumarRacha6(const int16_t* const sin[5], const int16_t* estado, int16_t prefijo, int16_t* __restrict doble,
                 int n) {
    for (int x = 0; x < n; x += Ancho)
        for (int l = x; l < x + Ancho; ++l)
            doble[l] =
                static_cast<int16_t>(prefijo + sin[0][l] + sin[1][l] + sin[2][l] + sin[3][l] + sin[4][l] + estado[l]);
}

} // namespace

template <int K>
std::vector<EleccionPorExpansion::Racha<K>> EleccionPorExpansion::Rachas(const Rangos& r, const Rangos& menor, int n) {
    std::vector<Racha<K>> rachas;
    std::array<uint8_t, K> p{};
    const auto prefijos = [&](auto&& yo, int j, int desde) -> void {
        for (int x = desde; j < K - 1 && x < n; ++x) {
            p[j] = static_cast<uint8_t>(x);
            yo(yo, j + 1, x + 1);
        }
        if (j < K - 1) return;
        p[j] = static_cast<uint8_t>(desde);
        Racha<K> racha{r.Lugar(p.data()), menor.Lugar(p.data()), n - desde + 1, {}};
        for (int fuera = 0; fuera < K - 1; ++fuera) {
            std::array<uint8_t, K> q = p;
            std::copy(p.begin() + fuera + 1, p.end(), q.begin() + fuera);
            racha.sin[fuera] = menor.Lugar(q.data());
        }
        rachas.push_back(racha);
    };
    prefijos(prefijos, 0, 1);
    return rachas;
}

EleccionPorExpansion::EleccionPorExpansion(const Conjunto& conjunto, CuentasAl4& cuentas)
    : conjunto_(conjunto), cuentas_(cuentas), rachas5_(Rachas<5>(cuentas.Rangos5(), cuentas.Rangos4(), conjunto.n())),
      rachas6_(Rachas<6>(cuentas.Rangos6(), cuentas.Rangos5(), conjunto.n())),
      w_(cuentas.Rangos5().Cuantos() + CuentasAl4::Margen), doble_(cuentas.Rangos6().Cuantos() + CuentasAl4::Margen),
      apuesta_(cuentas.Rangos6().Cuantos()), visita_(conjunto.Apuestas()) {
    for (int32_t i = 0; i < conjunto.Apuestas(); ++i) apuesta_[cuentas.Rangos6().Lugar(conjunto.Apuesta(i).data())] = i;
}

void EleccionPorExpansion::Comenzar(const int32_t* orden) {
    cuentas_.Reponer();
    ordenPropio_ = orden == nullptr && conjunto_.Ordenado();
    for (int32_t i = 0; i < conjunto_.Apuestas(); ++i) visita_[orden == nullptr ? i : orden[i] - 1] = i;
}

void EleccionPorExpansion::Recalcular() {
    for (const Racha<5>& r : rachas5_) {
        const int16_t* sin[4];
        for (int k = 0; k < 4; ++k) sin[k] = cuentas_.Cuenta4() + r.sin[k];
        SumarRacha5(sin, cuentas_.Cuenta5() + r.inicio, cuentas_.Cuenta4()[r.prefijo], &w_[r.inicio], r.n);
    }
    for (const Racha<6>& r : rachas6_) {
        const int16_t* sin[5];
        for (int k = 0; k < 5; ++k) sin[k] = &w_[r.sin[k]];
        SumarRacha6(sin, cuentas_.Estado() + r.inicio, w_[r.prefijo], &doble_[r.inicio], r.n);
    }
}

// The bet of this gain that is visited first.
int32_t EleccionPorExpansion::PrimeraDe(int16_t doble) const {
    const auto fin = doble_.begin() + cuentas_.Rangos6().Cuantos();
    auto esta = std::find(doble_.begin(), fin, doble);
    int32_t primera = apuesta_[esta - doble_.begin()];
    if (ordenPropio_) return primera;
    for (esta = std::find(esta + 1, fin, doble); esta != fin; esta = std::find(esta + 1, fin, doble)) {
        const int32_t otra = apuesta_[esta - doble_.begin()];
        if (visita_[otra] < visita_[primera]) primera = otra;
    }
    return primera;
}

int32_t EleccionPorExpansion::Elegir() {
    Recalcular();
    int16_t maximo = 0;
    const int16_t* doble = doble_.data();
    for (int32_t i = 0; i < cuentas_.Rangos6().Cuantos(); ++i) maximo = std::max(maximo, doble[i]);
    if (maximo == 0) return -1;
    ganancia_ = maximo / 2;
    const int32_t elegida = PrimeraDe(maximo);
    cuentas_.Cubrir(elegida);
    return elegida;
}
