#include "Familia.h"

#include <algorithm>
#include <cassert>
#include <stdexcept>

#include "Rangos.h"

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
        const uint64_t menor = mascara & -mascara, suma = mascara + menor; // the next one with as many bits
        mascara = suma | (((mascara ^ suma) / menor) >> 2);
    }
    todas.total_ = todas.Cuantas();
    todas.completa_ = true;
    return todas;
}

Familia Familia::DeTabla(const Tabla& apuestas, int n) {
    Familia familia(n, 6);
    familia.total_ = apuestas.Apuestas();
    familia.mascara_.resize(apuestas.Apuestas());
    for (int r = 1; r <= 6; ++r) {
        const uint8_t* fila = apuestas.Fila(r);
        for (size_t i = 0; i < familia.mascara_.size(); ++i) {
            if (fila[i] < 1 || fila[i] > n) throw std::runtime_error("una apuesta no está en la base");
            familia.mascara_[i] |= uint64_t{1} << (fila[i] - 1);
        }
    }
    familia.Indexar();
    return familia;
}

// Sorts the masks, puts repeats together and makes the index.
void Familia::Indexar() {
    if (!std::is_sorted(mascara_.begin(), mascara_.end())) std::sort(mascara_.begin(), mascara_.end());
    if (std::adjacent_find(mascara_.begin(), mascara_.end()) != mascara_.end()) {
        size_t hechas = 0;
        for (size_t i = 0; i < mascara_.size(); ++i) {
            if (hechas > 0 && mascara_[hechas - 1] == mascara_[i]) {
                ++veces_.back();
                continue;
            }
            mascara_[hechas++] = mascara_[i];
            veces_.push_back(1);
        }
        mascara_.resize(hechas);
    }
    for (const uint64_t mascara : mascara_)
        if (std::popcount(mascara) != k_) throw std::runtime_error("una apuesta no tiene seis números distintos");
    completa_ = Cuantas() == Combinar(n_, k_);
    if (completa_) return;
    lugar_.assign(Combinar(n_, k_), -1);
    for (int32_t i = 0; i < Cuantas(); ++i) lugar_[Rango(mascara_[i])] = i;
}
