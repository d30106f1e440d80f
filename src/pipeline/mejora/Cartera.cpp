#include "Cartera.h"

#include <algorithm>
#include <cmath>

namespace {

constexpr int32_t MinimoOrbitas = 12, MaximoOrbitas = 4000;
constexpr size_t MinimoRamas = 3;           // before any gets more work
constexpr int64_t TrabajoPorOrbita = 20000; // of a symmetry's first turn
constexpr int64_t TrabajoPorTurno = 1 << 26;

// The mirror of the base, which intervals of sums and of high and low numbers often respect.
Simetria Reflejo(int n) {
    Permutacion p{};
    for (int bit = 0; bit < 49; ++bit) p[bit] = static_cast<uint8_t>(bit < n ? n - 1 - bit : bit);
    return {p};
}

} // namespace

Cartera::Cartera(const Familia& filas, const Familia& columnas, int t, int64_t exigido, uint64_t semilla,
                 const Vigia& vigia, LimitesCartera limites)
    : filas_(filas), columnas_(columnas), t_(t), exigido_(exigido), vigia_(vigia), limites_(limites),
      clases_(ClasesDe(filas)) {
    azar_.Sembrar(semilla);
}

bool Cartera::Paso() {
    if (actual_ == nullptr || actual_->trabajo >= finTurno_) ElegirRama();
    if (actual_ == nullptr) return false;
    BusquedaLocal& busqueda = *actual_->busqueda;
    const int64_t trabajo = busqueda.Trabajo();
    busqueda.Paso();
    trabajo_ += busqueda.Trabajo() - trabajo;
    actual_->trabajo += busqueda.Trabajo() - trabajo;
    return Anotar(*actual_);
}

bool Cartera::Anotar(const Rama& rama) {
    if (!mejor_.empty() && rama.busqueda->MejorCoste() >= static_cast<int32_t>(mejor_.size())) return false;
    mejor_ = Expandir(rama.columnas, rama.busqueda->Mejor());
    return true;
}

// As much work goes into new symmetries as into those that stand. One that was relaxed has to be better than where it
// came from at the end of its first turn, when it is the last in the list.
void Cartera::ElegirRama() {
    if (actual_ != nullptr && actual_->busqueda->MejorCoste() >= actual_->heredado) ramas_.pop_back();
    actual_ = nullptr;
    while (actual_ == nullptr && fallidas_ < MaximoFallidas &&
           (ramas_.size() < MinimoRamas || explorado_ <= trabajo_ / 2))
        Explorar();
    if (actual_ == nullptr && !ramas_.empty()) {
        actual_ = LaQueMerece();
        actual_->heredado = SinHerencia;
        finTurno_ = actual_->trabajo + TrabajoPorTurno;
    }
}

void Cartera::Explorar() {
    const int64_t antes = trabajo_;
    std::unique_ptr<Rama> rama = NuevaRama();
    explorado_ += trabajo_ - antes;
    if (rama == nullptr) {
        ++fallidas_;
        return;
    }
    fallidas_ = 0;
    if (ramas_.size() == limites_.Ramas) DespedirPeor();
    actual_ = rama.get();
    finTurno_ = actual_->trabajo + TrabajoPorOrbita * actual_->problema.Columnas();
    explorado_ += finTurno_ - actual_->trabajo;
    ramas_.push_back(std::move(rama));
}

// The one with the largest system makes room.
void Cartera::DespedirPeor() {
    const auto peor = std::max_element(ramas_.begin(), ramas_.end(), [](const auto& a, const auto& b) {
        return a->busqueda->MejorCoste() < b->busqueda->MejorCoste();
    });
    ramas_.erase(peor);
}

// A hundredth more bets than the best is made up for by half the work done.
Cartera::Rama* Cartera::LaQueMerece() const {
    const auto precio = [this](const Rama& rama) {
        const auto mejor = static_cast<double>(mejor_.size());
        const double exceso = (rama.busqueda->MejorCoste() - mejor) / mejor;
        return static_cast<double>(rama.trabajo) * std::exp2(std::min(100 * exceso, 1000.0));
    };
    return std::min_element(ramas_.begin(), ramas_.end(),
                            [&](const auto& a, const auto& b) { return precio(*a) < precio(*b); })
        ->get();
}

Simetria Cartera::ProbarSimetria(const Rama*& origen) {
    if (probadas_++ == 0) {
        if (limites_.SinSimetria) return {};
        if (!filas_.Completa()) return Reflejo(filas_.n());
    }
    if (ramas_.size() >= MinimoRamas && azar_.Entero(4) == 0) {
        const Rama* candidata = LaQueMerece();
        if (!candidata->simetria.empty()) {
            origen = candidata;
            return SimetriaMenor(candidata->simetria, azar_);
        }
    }
    return SimetriaAlAzar(clases_, filas_.n(), azar_);
}

// A symmetry that has not been tried, with its problem; null when chance gave none.
std::unique_ptr<Cartera::Rama> Cartera::NuevaRama() {
    auto rama = std::make_unique<Rama>();
    const Rama* origen = nullptr;
    rama->simetria = ProbarSimetria(origen);
    const bool sobra = rama->simetria.empty() && (probadas_ > 1 || !limites_.SinSimetria);
    if (sobra || !Plantear(*rama) || !EsNueva(*rama)) return nullptr;
    rama->busqueda = std::make_unique<BusquedaLocal>(rama->problema, static_cast<uint64_t>(probadas_));
    std::vector<int32_t> partida;
    if (origen != nullptr)
        for (const int32_t miembro : Expandir(origen->columnas, origen->busqueda->Mejor()))
            partida.push_back(rama->columnas.de[miembro]);
    rama->busqueda->PartirDe(partida);
    if (origen != nullptr) rama->heredado = origen->busqueda->MejorCoste();
    trabajo_ += rama->busqueda->Trabajo();
    rama->trabajo = rama->busqueda->Trabajo();
    return rama;
}

bool Cartera::Plantear(Rama& rama) {
    const bool iguales = &filas_ == &columnas_;
    trabajo_ += int64_t{columnas_.Cuantas()} * static_cast<int64_t>(rama.simetria.size());
    if (!HallarOrbitas(columnas_, rama.simetria, MaximoOrbitas, rama.columnas, vigia_)) return false;
    if (!iguales && !HallarOrbitas(filas_, rama.simetria, MaximoOrbitas, rama.filas, vigia_)) return false;
    if (rama.columnas.Cuantas() < MinimoOrbitas) return false;
    const Orbitas& deFilas = iguales ? rama.columnas : rama.filas;
    if (!RecubrimientoDeOrbitas(filas_, deFilas, columnas_, rama.columnas, t_, limites_.Pares, rama.problema, vigia_))
        return false;
    trabajo_ += rama.problema.cubren.Cuantas();
    rama.problema.exigido = exigido_;
    return true;
}

bool Cartera::EsNueva(const Rama& rama) const {
    return std::none_of(ramas_.begin(), ramas_.end(), [&](const auto& otra) {
        return otra->problema.coste == rama.problema.coste &&
               otra->problema.cubren.Cuantas() == rama.problema.cubren.Cuantas();
    });
}
