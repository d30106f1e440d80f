#include "Mejora.h"

#include "Comprobar.h"
#include "Sobrantes.h"

namespace {

constexpr int64_t MaximoPares = int64_t{1} << 26;
constexpr int32_t MaximoConSimetria = 2'000'000; // bets
constexpr int64_t TrabajoPorTurno = int64_t{1} << 26;

} // namespace

Mejora::Mejora(const Tabla& condicionadas, int n, Garantia garantia, uint64_t semilla)
    : condicionadas_(condicionadas), garantia_(garantia), familia_(Familia::DeTabla(condicionadas, n)) {
    cota_ = CotaInferior(familia_, garantia.Aciertos, garantia.Exigido);
    problema_.emplace();
    if (RecubrimientoDirecto(familia_, familia_, garantia.Aciertos, MaximoPares, *problema_)) {
        problema_->exigido = garantia.Exigido;
        directa_.emplace(*problema_, semilla);
    } else {
        problema_.reset();
    }
    if (familia_.Cuantas() <= MaximoConSimetria)
        cartera_.emplace(familia_, familia_, garantia.Aciertos, garantia.Exigido, semilla);
}

bool Mejora::PartirDe(const std::vector<uint64_t>& sistema) {
    std::vector<int32_t> apuestas;
    for (const uint64_t mascara : sistema) {
        apuestas.push_back(familia_.Lugar(mascara));
        if (apuestas.back() < 0) return false;
    }
    if (!QuitarSobrantes(familia_, garantia_.Aciertos, garantia_.Exigido, apuestas)) return false;
    sistema_ = sistema;
    if (apuestas.size() < sistema.size() && !Aceptar(apuestas)) return false;
    apuestas_ = apuestas;
    atrasada_ = true;
    return true;
}

bool Mejora::Aceptar(const std::vector<int32_t>& apuestas) {
    std::vector<uint64_t> sistema;
    for (const int32_t apuesta : apuestas) sistema.push_back(familia_.Mascara(apuesta));
    if (!SonCondicionadas(condicionadas_, sistema) ||
        ContarCubiertas(condicionadas_, sistema, garantia_.Aciertos) < garantia_.Exigido)
        return false;
    apuestas_ = apuestas;
    sistema_ = std::move(sistema);
    return true;
}

// The two searches share the work by halves.
void Mejora::ElegirTurno() {
    const bool hayCartera = cartera_ && !cartera_->Agotada();
    turnoDirecto_ = directa_ && (!hayCartera || directa_->Trabajo() <= cartera_->Trabajo());
    finTurno_ = (turnoDirecto_ ? directa_->Trabajo() : hayCartera ? cartera_->Trabajo() : 0) + TrabajoPorTurno;
    if (turnoDirecto_ && atrasada_) directa_->PartirDe(apuestas_);
    if (turnoDirecto_) atrasada_ = false;
}

bool Mejora::PasoDirecto() {
    directa_->Paso();
    return directa_->MejorCoste() < Apuestas() && Aceptar(directa_->Mejor());
}

bool Mejora::Pasos(int64_t cuantos) {
    bool mejora = false;
    for (int64_t i = 0; i < cuantos && !Terminada(); ++i) {
        const int64_t hecho = turnoDirecto_ ? (directa_ ? directa_->Trabajo() : 0) : cartera_->Trabajo();
        if (hecho >= finTurno_) ElegirTurno();
        if (turnoDirecto_) {
            mejora = PasoDirecto() || mejora;
        } else if (cartera_->Paso() && static_cast<int32_t>(cartera_->Mejor().size()) < Apuestas() &&
                   Aceptar(cartera_->Mejor())) {
            mejora = atrasada_ = true;
        }
    }
    return mejora;
}
