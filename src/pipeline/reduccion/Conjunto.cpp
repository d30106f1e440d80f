#include "Conjunto.h"

#include <algorithm>
#include <stdexcept>

Conjunto::Conjunto(const EstadoTrabajo& trabajo)
    : n_(trabajo.NumerosBase), apuestas_(static_cast<int32_t>(trabajo.ApuestasCondicionadas.Apuestas())),
      completo_(trabajo.SinEliminadas && apuestas_ == Combinar(n_, 6)), ordenado_(true) {
    for (int r = 0; r < 6; ++r) fila_[r] = trabajo.ApuestasCondicionadas.Fila(r + 1);
    if (!completo_) Comprobar();
}

Seis Conjunto::Leer(int32_t i) const {
    Seis p;
    for (int r = 0; r < 6; ++r) p[r] = fila_[r][i];
    if (!ordenado_ && !std::is_sorted(p.begin(), p.end())) std::sort(p.begin(), p.end());
    return p;
}

void Conjunto::Comprobar() {
    Seis anterior{};
    bool creciente = true, ascendentes = true;
    for (int32_t i = 0; i < apuestas_; ++i) {
        Seis p;
        for (int r = 0; r < 6; ++r) p[r] = fila_[r][i];
        if (!std::is_sorted(p.begin(), p.end())) {
            ascendentes = false;
            std::sort(p.begin(), p.end());
        }
        if (p[0] < 1 || p[5] > n_ || std::adjacent_find(p.begin(), p.end()) != p.end())
            throw std::runtime_error("una apuesta no tiene seis números distintos de la base");
        creciente = creciente && anterior < p;
        anterior = p;
    }
    ordenado_ = creciente && ascendentes;
}

void Conjunto::Compactar() {
    if (!compacta_.empty()) return;
    std::vector<Seis> apuestas(apuestas_);
    for (int32_t i = 0; i < apuestas_; ++i) apuestas[i] = Leer(i);
    compacta_ = std::move(apuestas);
}
