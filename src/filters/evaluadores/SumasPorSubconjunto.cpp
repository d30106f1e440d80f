#include "SumasPorSubconjunto.h"

#include <algorithm>
#include <bit>
#include <type_traits>

namespace {

constexpr size_t SorteosPorTurno = 500;

// Of each set of up to six: how many it has, and its last member. Plain processors count bits slowly.
struct Conjunto {
    uint8_t cuantos, ultimo;
};
constexpr auto Conjuntos = [] {
    std::array<Conjunto, 64> c{};
    for (unsigned m = 1; m < c.size(); ++m)
        c[m] = {static_cast<uint8_t>(std::popcount(m)), static_cast<uint8_t>(std::bit_width(m) - 1)};
    return c;
}();

// The positions of a draw that are in the base, each once and the highest first, with its repetitions.
struct Soporte {
    std::array<uint8_t, 6> posicion{}, veces{};
    size_t n = 0;
    bool repetido = false;

    explicit Soporte(SorteoEnBase sorteo) {
        std::sort(sorteo.begin(), sorteo.end(), std::greater<>());
        for (const uint8_t p : sorteo) {
            if (p == 0) break;
            if (n == 0 || posicion[n - 1] != p) posicion[n++] = p;
            ++veces[n - 1];
            repetido |= veces[n - 1] > 1;
        }
    }
};

// By set of the support's positions: first whether the draw counts, then the inverse of the sums over
// subsets. Between -20 and 20, as C(6,3) is the most that six positions bring together.
ValoresPorMascara ValoresDe(const Soporte& soporte, const TablaAciertos& acertar) {
    ValoresPorMascara valor{};
    std::array<size_t, 64> aciertos{};
    const size_t mascaras = size_t{1} << soporte.n;
    for (size_t m = 0; m < mascaras; ++m) {
        if (m > 0) aciertos[m] = aciertos[m & (m - 1)] + soporte.veces[static_cast<size_t>(std::countr_zero(m))];
        valor[m] = acertar[aciertos[m]] == 1;
    }
    for (size_t bit = 1; bit < mascaras; bit *= 2)
        for (size_t m = 0; m < mascaras; ++m)
            if ((m & bit) != 0) valor[m] = static_cast<int8_t>(valor[m] - valor[m ^ bit]);
    return valor;
}

} // namespace

template <class Suma>
SumasPorSubconjunto<Suma>::SumasPorSubconjunto(size_t n, const PreguntaSorteos& pregunta, Entorno& entorno) : n_(n) {
    for (size_t k = 0; k < valores_.size(); ++k) valores_[k].resize(Distancia(n, k) + HolguraSumas);
    valores_[0][0] = static_cast<Suma>(-pregunta.Minimo);
    // Without repeated numbers the values depend on how many positions a set has, and on nothing else.
    const ValoresPorMascara deUnoNormal = ValoresDe(Soporte({1, 2, 3, 4, 5, 6}), pregunta.Acertar);
    for (size_t t = 0; t < pregunta.Sorteos.size(); ++t) {
        Anadir(pregunta.Sorteos[t], pregunta.Acertar, deUnoNormal);
        if (t % SorteosPorTurno == SorteosPorTurno - 1) entorno.CederTurno();
    }
    ReunirSextetos();
}

// The place of a subset from the end is the sum over its positions p of C(n - p, 1 + those above p): so
// that of a set follows from the one without its lowest position, the highest bit of the mask.
template <class Suma>
void SumasPorSubconjunto<Suma>::Anadir(const SorteoEnBase& sorteo, const TablaAciertos& acertar,
                                       const ValoresPorMascara& deUnoNormal) {
    const Soporte soporte(sorteo);
    const ValoresPorMascara valor = soporte.repetido ? ValoresDe(soporte, acertar) : deUnoNormal;
    std::array<size_t, 64> desdeElFinal{};
    for (size_t m = 0; m < size_t{1} << soporte.n; ++m) {
        const auto [k, ultimo] = Conjuntos[m];
        if (m > 0) {
            const size_t resto = m ^ (size_t{1} << ultimo);
            desdeElFinal[m] = desdeElFinal[resto] + Distancia(n_ - soporte.posicion[ultimo], k);
        }
        if (valor[m] == 0) continue;
        const size_t lugar = Distancia(n_, k) - 1 - desdeElFinal[m];
        const auto sumando = static_cast<Suma>(valor[m]);
        if (k == 6)
            sextetos_.push_back({static_cast<int32_t>(lugar),
                                 {soporte.posicion[2], soporte.posicion[1], soporte.posicion[0]},
                                 sumando});
        else
            valores_[k][lugar] = static_cast<Suma>(valores_[k][lugar] + sumando);
    }
}

template <class Suma>
void SumasPorSubconjunto<Suma>::ReunirSextetos() {
    const auto menor = [](const Sexteto& a, const Sexteto& b) { return a.lugar < b.lugar; };
    std::sort(sextetos_.begin(), sextetos_.end(), menor);
    size_t n = 0;
    for (const Sexteto& sexteto : sextetos_) {
        if (n > 0 && sextetos_[n - 1].lugar == sexteto.lugar)
            sextetos_[n - 1].valor = static_cast<Suma>(sextetos_[n - 1].valor + sexteto.valor);
        else
            sextetos_[n++] = sexteto;
    }
    sextetos_.resize(n);
}

template <class Suma>
RecorridoDeApuestas<Suma>::RecorridoDeApuestas(const SumasPorSubconjunto<Suma>& sumas, Suma ancho)
    : sumas_(sumas), ancho_(ancho) {
    for (size_t k = 0; k < nivel_[0].fin.size(); ++k) nivel_[0].fin[k] = sumas.Fin(k);
    for (size_t l = 1; l < nivel_.size(); ++l)
        for (size_t k = 0; k < nivel_[l].valores.size(); ++k)
            nivel_[l].valores[k].resize(Distancia(sumas.N() - l, k) + HolguraSumas);
    nivel_[1].fin[5] = nivel_[0].fin[5];
}

// The values behind a prefix that grew by p. Those of five positions never change, the sextets being
// kept apart, and three last positions are all that is asked for in the end.
template <class Suma>
void RecorridoDeApuestas<Suma>::Extender(size_t nivel) {
    const Nivel& anterior = nivel_[nivel - 1];
    Nivel& este = nivel_[nivel];
    const size_t detras = sumas_.N() - prefijo_[nivel - 1];
    for (size_t k = 0; k <= (nivel == 3 ? 3u : 4u); ++k) {
        const size_t n = Distancia(detras, k);
        NucleoSumar(anterior.fin[k] - n, anterior.fin[k + 1] - Distancia(detras + 1, k + 1), n, este.valores[k].data());
        este.fin[k] = este.valores[k].data() + n;
    }
}

template <class Suma>
bool RecorridoDeApuestas<Suma>::Avanzar() {
    size_t i = prefijo_[0] == 0 ? 0 : 2;
    while (++prefijo_[i] > sumas_.N() - 5 + i)
        if (i-- == 0) return false;
    for (size_t j = i + 1; j < prefijo_.size(); ++j) prefijo_[j] = prefijo_[j - 1] + 1;
    for (size_t j = i; j < prefijo_.size(); ++j) Extender(j + 1);
    return true;
}

template <class Suma>
template <class Respuesta>
size_t RecorridoDeApuestas<Suma>::Siguiente(Respuesta* respuestas) {
    if (!Avanzar()) return 0;
    const Nivel& ultimo = nivel_[3];
    const TablasTernas<Suma> tablas{
        {ultimo.fin[0], ultimo.fin[1], ultimo.fin[2], ultimo.fin[3]}, sumas_.N() - prefijo_[2], ancho_};
    NucleoTernas(tablas, respuestas);
    const size_t cuantas = Distancia(tablas.Resto, 3);
    CorregirSextetos(tablas, cuantas, respuestas);
    hechas_ += static_cast<int32_t>(cuantas);
    return cuantas;
}

// A bet that was itself a draw gets its answer anew.
template <class Suma>
template <class Respuesta>
void RecorridoDeApuestas<Suma>::CorregirSextetos(const TablasTernas<Suma>& t, size_t cuantas, Respuesta* respuestas) {
    const auto& sextetos = sumas_.Sextetos();
    for (; sexteto_ < sextetos.size(); ++sexteto_) {
        const auto lugar = static_cast<size_t>(sextetos[sexteto_].lugar - hechas_);
        if (lugar >= cuantas) return;
        const Suma valor = ValorDe(sextetos[sexteto_], t);
        if constexpr (std::is_same_v<Respuesta, Suma>)
            respuestas[lugar] = valor;
        else
            respuestas[lugar] = valor <= t.Ancho;
    }
}

template <class Suma>
Suma RecorridoDeApuestas<Suma>::ValorDe(const typename SumasPorSubconjunto<Suma>::Sexteto& sexteto,
                                        const TablasTernas<Suma>& t) const {
    const auto tras = [&](size_t i) { return sumas_.N() - sexteto.ultimas[i]; };
    const size_t d = tras(0), e = tras(1), f = tras(2);
    const auto valor = [&](size_t k, size_t desdeElFinal) { return *(t.Fin[k] - 1 - desdeElFinal); };
    const auto dos = [&](size_t x, size_t y) { return valor(2, Distancia(x, 2) + y); };
    return static_cast<Suma>(sexteto.valor + valor(0, 0) + valor(1, d) + valor(1, e) + valor(1, f) + dos(d, e) +
                             dos(d, f) + dos(e, f) + valor(3, Distancia(d, 3) + Distancia(e, 2) + f));
}

template class SumasPorSubconjunto<uint16_t>;
template class SumasPorSubconjunto<uint32_t>;
template class RecorridoDeApuestas<uint16_t>;
template class RecorridoDeApuestas<uint32_t>;
template size_t RecorridoDeApuestas<uint16_t>::Siguiente(uint8_t*);
template size_t RecorridoDeApuestas<uint32_t>::Siguiente(uint8_t*);
template size_t RecorridoDeApuestas<uint16_t>::Siguiente(uint16_t*);
template size_t RecorridoDeApuestas<uint32_t>::Siguiente(uint32_t*);
