#include "Escalares.h"
#include "NucleosSorteos.h"

namespace {

// `responder(suma)` for each bet.
template <class Suma, class Respuesta, class Responder>
void RecorrerTernas(const TablasTernas<Suma>& t, Respuesta* respuestas, Responder responder) {
    const size_t resto = t.Resto;
    const auto uno = [&](size_t i) { return t.Fin[1] - resto + i; };
    const auto dos = [&](size_t i, size_t j) { return t.Fin[2] - Distancia(resto - i, 2) + (j - i - 1); };
    const Suma* terna = t.Fin[3] - Distancia(resto, 3);
    for (size_t i = 0; i < resto; ++i)
        for (size_t j = i + 1; j < resto; ++j) {
            const Suma fijo = static_cast<Suma>(t.Fin[0][-1] + *uno(i) + *uno(j) + *dos(i, j));
            for (size_t k = j + 1; k < resto; ++k)
                *respuestas++ = responder(static_cast<Suma>(fijo + *uno(k) + *dos(i, k) + *dos(j, k) + *terna++));
        }
}

} // namespace

template <class Suma>
void NucleoTernasEscalar(const TablasTernas<Suma>& t, uint8_t* pasa) {
    RecorrerTernas(t, pasa, [&](Suma suma) { return suma <= t.Ancho; });
}

template <class Suma>
void NucleoTernasEscalar(const TablasTernas<Suma>& t, Suma* valores) {
    RecorrerTernas(t, valores, [](Suma suma) { return suma; });
}

template <class Suma>
void NucleoSumarEscalar(const Suma* a, const Suma* b, size_t n, Suma* suma) {
    for (size_t i = 0; i < n; ++i) suma[i] = static_cast<Suma>(a[i] + b[i]);
}

int32_t NucleoVeredictosEscalar(const Tramo& tramo, const uint8_t* pasa) {
    return RecorrerUnaAUna(tramo, [&](int64_t i) { return pasa[i] != 0; });
}

template void NucleoTernasEscalar(const TablasTernas<uint16_t>&, uint8_t*);
template void NucleoTernasEscalar(const TablasTernas<uint32_t>&, uint8_t*);
template void NucleoTernasEscalar(const TablasTernas<uint16_t>&, uint16_t*);
template void NucleoTernasEscalar(const TablasTernas<uint32_t>&, uint32_t*);
template void NucleoSumarEscalar(const uint16_t*, const uint16_t*, size_t, uint16_t*);
template void NucleoSumarEscalar(const uint32_t*, const uint32_t*, size_t, uint32_t*);
