#include "Familia.h"

#include <algorithm>
#include <cassert>
#include <stdexcept>
#include <utility>

#include "Rangos.h"

namespace {

// The next mask with as many bits.
uint64_t Siguiente(uint64_t mascara) {
    const uint64_t menor = mascara & -mascara, suma = mascara + menor;
    return suma | (((mascara ^ suma) >> 2) / menor);
}

} // namespace

Familia::Familia(int n, int k) : n_(n), k_(k) {
    assert(n >= 0 && n < 50 && k >= 1 && k <= 6);
    for (int j = 0; j < k; ++j)
        for (int bit = 0; bit < n; ++bit) parte_[j][bit] = Combinar(bit, j + 1);
}

Familia Familia::Todas(int n, int k) {
    Familia todas(n, k);
    todas.mascara_.resize(Combinar(n, k));
    uint64_t mascara = (uint64_t{1} << k) - 1;
    for (uint64_t& actual : todas.mascara_) {
        actual = mascara;
        mascara = Siguiente(mascara);
    }
    todas.total_ = todas.Cuantas();
    todas.completa_ = true;
    return todas;
}

Familia Familia::DeTabla(const Tabla& apuestas, int n, const Vigia& vigia) {
    Familia familia(n, 6);
    familia.total_ = apuestas.Apuestas();
    familia.mascara_.resize(apuestas.Apuestas());
    for (int r = 1; r <= 6; ++r) {
        const uint8_t* fila = apuestas.Fila(r);
        for (size_t i = 0; i < familia.mascara_.size(); ++i) {
            if (fila[i] < 1 || fila[i] > n) throw std::runtime_error("una apuesta no está en la base");
            familia.mascara_[i] |= uint64_t{1} << (fila[i] - 1);
            vigia.Contar(1);
        }
    }
    familia.Indexar(vigia);
    return familia;
}

// Counts how often each subset of the base is there, and walks over the subsets in order.
void Familia::Indexar(const Vigia& vigia) {
    lugar_.assign(Combinar(n_, k_), 0);
    for (const uint64_t mascara : mascara_) {
        if (std::popcount(mascara) != k_) throw std::runtime_error("una apuesta no tiene seis números distintos");
        ++lugar_[Rango(mascara)];
        vigia.Contar(2);
    }
    const bool repetidas = std::any_of(lugar_.begin(), lugar_.end(), [](int32_t veces) { return veces > 1; });
    mascara_.clear();
    uint64_t mascara = (uint64_t{1} << k_) - 1;
    for (int32_t& lugar : lugar_) {
        const int32_t veces = std::exchange(lugar, -1);
        if (veces > 0) {
            lugar = Cuantas();
            mascara_.push_back(mascara);
            if (repetidas) veces_.push_back(veces);
        }
        mascara = Siguiente(mascara);
        vigia.Contar(1);
    }
    completa_ = Cuantas() == Combinar(n_, k_);
    if (completa_) lugar_ = {};
}
