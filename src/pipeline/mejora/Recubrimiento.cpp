#include "Recubrimiento.h"

Listas Listas::Traspuestas(int32_t n) const {
    Listas otras;
    otras.principio.assign(static_cast<size_t>(n) + 1, 0);
    for (const int32_t e : elementos) ++otras.principio[e + 1];
    for (int32_t i = 0; i < n; ++i) otras.principio[i + 1] += otras.principio[i];
    otras.elementos.resize(elementos.size());
    std::vector<int64_t> sitio(otras.principio.begin(), otras.principio.end() - 1);
    for (size_t i = 0; i + 1 < principio.size(); ++i)
        for (const int32_t e : (*this)[static_cast<int32_t>(i)]) otras.elementos[sitio[e]++] = static_cast<int32_t>(i);
    return otras;
}
