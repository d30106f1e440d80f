#include "Restriccion.h"

#include <numeric>

namespace {

constexpr int PasosPorPartida = 2000;

} // namespace

Restriccion::Restriccion(const Familia& condicionadas, const Recubrimiento& problema, int t, uint64_t semilla,
                         const Vigia& vigia)
    : condicionadas_(condicionadas), todas_(Familia::Todas(condicionadas.n(), 6)),
      cartera_(todas_, todas_, t, todas_.Total(), semilla, vigia), busqueda_(problema, semilla) {
    azar_.Sembrar(semilla);
}

// The conditioned bets among those of the best system of the base, its numbers exchanged.
void Restriccion::Trasladar() {
    Permutacion p;
    std::iota(p.begin(), p.end(), uint8_t{0});
    for (int i = todas_.n(); i > 1; --i) std::swap(p[i - 1], p[azar_.Entero(i)]);
    std::vector<int32_t> partida;
    for (const int32_t apuesta : cartera_.Mejor()) {
        const int32_t lugar = condicionadas_.Lugar(Imagen(p, todas_.Mascara(apuesta)));
        if (lugar >= 0) partida.push_back(lugar);
    }
    busqueda_.PartirDe(partida);
    quedan_ = PasosPorPartida;
}

bool Restriccion::Paso() {
    if (quedan_ == 0 && (cartera_.Mejor().empty() || cartera_.Trabajo() <= busqueda_.Trabajo())) {
        cartera_.Paso();
        return false;
    }
    if (quedan_ == 0) Trasladar();
    --quedan_;
    busqueda_.Paso();
    if (!mejor_.empty() && busqueda_.MejorCoste() >= static_cast<int32_t>(mejor_.size())) return false;
    mejor_ = busqueda_.Mejor();
    return true;
}
