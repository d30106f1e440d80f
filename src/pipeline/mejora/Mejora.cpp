#include "Mejora.h"

#include <limits>
#include <stdexcept>

#include "Comprobar.h"
#include "Rangos.h"
#include "Sobrantes.h"

namespace {

constexpr int64_t MaximoPares = 140'000'000;
constexpr int32_t MaximoConSimetria = 2'000'000;  // bets
constexpr int32_t MaximoConDemostracion = 10'000; // bets
constexpr int64_t TrabajoPorTurno = int64_t{1} << 26;
constexpr int64_t PesoDemostracion = 4; // it gets a quarter of what each search gets

} // namespace

Mejora::Mejora(const Tabla& condicionadas, int n, Garantia garantia, uint64_t semilla, Vigia vigia)
    : vigia_(std::move(vigia)), condicionadas_(condicionadas), garantia_(garantia),
      familia_(Familia::DeTabla(condicionadas, n, vigia_)) {
    cota_ = CotaInferior(familia_, garantia.Aciertos, garantia.Exigido, vigia_);
    problema_.emplace();
    if (RecubrimientoDirecto(familia_, familia_, garantia.Aciertos, MaximoPares, *problema_, vigia_)) {
        problema_->exigido = garantia.Exigido;
        directa_.emplace(*problema_, semilla);
    } else {
        problema_.reset();
    }
    if (familia_.Cuantas() <= MaximoConSimetria)
        cartera_.emplace(familia_, familia_, garantia.Aciertos, garantia.Exigido, semilla, vigia_);
    if (familia_.Completa() && garantia.Aciertos <= 3 && garantia.Exigido >= familia_.Total())
        particion_.emplace(n, garantia.Aciertos, semilla, vigia_);
    const bool casiTodas = !familia_.Completa() && 2 * familia_.Cuantas() >= Combinar(n, 6);
    if (casiTodas && directa_ && garantia.Exigido >= familia_.Total())
        restriccion_.emplace(familia_, *problema_, garantia.Aciertos, semilla, vigia_);
    if (directa_ && familia_.Cuantas() <= MaximoConDemostracion && garantia.Exigido >= familia_.Total())
        demostracion_.emplace(familia_, *problema_, cota_);
}

bool Mejora::PartirDe(const std::vector<uint64_t>& sistema) {
    std::vector<int32_t> apuestas;
    for (const uint64_t mascara : sistema) {
        apuestas.push_back(familia_.Lugar(mascara));
        if (apuestas.back() < 0) return false;
    }
    if (!QuitarSobrantes(familia_, garantia_.Aciertos, garantia_.Exigido, apuestas, vigia_)) return false;
    sistema_ = sistema;
    if (apuestas.size() < sistema.size() && !Aceptar(apuestas)) return false;
    apuestas_ = apuestas;
    atrasada_ = true;
    return true;
}

bool Mejora::Aceptar(const std::vector<int32_t>& apuestas) {
    std::vector<uint64_t> sistema;
    for (const int32_t apuesta : apuestas) sistema.push_back(familia_.Mascara(apuesta));
    if (!SonCondicionadas(condicionadas_, sistema, vigia_) ||
        ContarCubiertas(condicionadas_, sistema, garantia_.Aciertos, vigia_) < garantia_.Exigido)
        return false;
    apuestas_ = apuestas;
    sistema_ = std::move(sistema);
    return true;
}

bool Mejora::Hay(Fuente fuente) const {
    switch (fuente) {
    case Fuente::Directa:
        return directa_.has_value();
    case Fuente::Simetrica:
        return HaySimetrias();
    case Fuente::Restringida:
        return restriccion_.has_value();
    case Fuente::Partida:
        return particion_.has_value();
    case Fuente::Exacta:
        return demostracion_ && !demostracion_->Acabada();
    }
    return false;
}

int64_t Mejora::Trabajo(Fuente fuente) const {
    switch (fuente) {
    case Fuente::Directa:
        return directa_->Trabajo();
    case Fuente::Simetrica:
        return cartera_->Trabajo();
    case Fuente::Restringida:
        return restriccion_->Trabajo();
    case Fuente::Partida:
        return particion_->Trabajo();
    case Fuente::Exacta:
        return demostracion_->Trabajo() * PesoDemostracion;
    }
    return 0;
}

// The searches share the work evenly. The proof goes first: for few bets it is done at once.
void Mejora::ElegirTurno() {
    int64_t menos = std::numeric_limits<int64_t>::max();
    for (const Fuente fuente :
         {Fuente::Exacta, Fuente::Directa, Fuente::Simetrica, Fuente::Restringida, Fuente::Partida})
        if (Hay(fuente) && Trabajo(fuente) < menos) {
            menos = Trabajo(fuente);
            turno_ = fuente;
        }
    finTurno_ = menos + TrabajoPorTurno;
    if (turno_ != Fuente::Directa || !atrasada_) return;
    directa_->PartirDe(apuestas_);
    atrasada_ = false;
}

void Mejora::Avanzar() {
    switch (turno_) {
    case Fuente::Directa:
        return directa_->Paso();
    case Fuente::Simetrica:
        cartera_->Paso();
        return;
    case Fuente::Restringida:
        restriccion_->Paso();
        return;
    case Fuente::Partida:
        particion_->Paso();
        return;
    case Fuente::Exacta:
        demostracion_->Paso();
    }
}

// What the search of this turn has found so far; 0 for nothing.
size_t Mejora::CuantasHalladas() const {
    switch (turno_) {
    case Fuente::Directa:
        return directa_->Mejor().size();
    case Fuente::Simetrica:
        return cartera_->Mejor().size();
    case Fuente::Restringida:
        return restriccion_->Mejor().size();
    case Fuente::Partida:
        return particion_->Mejor().size();
    case Fuente::Exacta:
        return demostracion_->Hallada().size();
    }
    return 0;
}

std::vector<int32_t> Mejora::Halladas() const {
    if (turno_ == Fuente::Directa) return directa_->Mejor();
    if (turno_ == Fuente::Simetrica) return cartera_->Mejor();
    if (turno_ == Fuente::Restringida) return restriccion_->Mejor();
    if (turno_ == Fuente::Exacta) return demostracion_->Hallada();
    std::vector<int32_t> apuestas;
    for (const uint64_t mascara : particion_->Mejor()) apuestas.push_back(familia_.Lugar(mascara));
    return apuestas;
}

bool Mejora::Paso() {
    if (!Hay(turno_) || Trabajo(turno_) >= finTurno_) ElegirTurno();
    Avanzar();
    const size_t halladas = CuantasHalladas();
    if (halladas == 0 || halladas >= sistema_.size()) return false;
    if (!Aceptar(Halladas())) throw std::logic_error("la búsqueda ha dado un sistema que no cumple");
    atrasada_ = atrasada_ || turno_ != Fuente::Directa;
    return true;
}

bool Mejora::FijarApuestas(int32_t cuantas) {
    if (!directa_) return false;
    directa_->FijarCoste(cuantas, apuestas_);
    cubiertas_ = 0;
    return PasoFijo();
}

// Takes what the search has found if it covers more.
bool Mejora::PasoFijo() {
    if (directa_->MejorCubierto() <= cubiertas_) return false;
    garantia_.Exigido = directa_->MejorCubierto();
    cubiertas_ = garantia_.Exigido;
    return Aceptar(directa_->Mejor());
}

bool Mejora::Terminada() const {
    if (cubiertas_ >= 0) return cubiertas_ >= familia_.Total();
    return Apuestas() <= Cota() || (!directa_ && !HaySimetrias() && !particion_);
}

bool Mejora::Pasos(int64_t cuantos) {
    bool mejora = false;
    for (int64_t i = 0; i < cuantos && !Terminada(); ++i) {
        if (cubiertas_ < 0) {
            mejora = Paso() || mejora;
            continue;
        }
        directa_->Paso();
        mejora = PasoFijo() || mejora;
    }
    return mejora;
}
