#include "BusquedaLocal.h"

#include <algorithm>
#include <numeric>

namespace {

constexpr int32_t PesoMaximo = 1 << 16; // where the weights are halved, far from an overflow of the scores

} // namespace

BusquedaLocal::BusquedaLocal(const Recubrimiento& problema, uint64_t semilla)
    : p_(problema), pesar_(problema.exigido >= problema.total), puntos_(p_.Columnas()), peso_(p_.Filas()),
      veces_(p_.Filas()), suma_(p_.Filas()), lugar_(p_.Columnas()), lugarFila_(p_.Filas()), entrada_(p_.Columnas()) {
    azar_.Sembrar(semilla);
    puestas_.reserve(p_.Columnas());
    descubiertas_.reserve(p_.Filas());
    mejor_.reserve(p_.Columnas());
    Vaciar();
}

void BusquedaLocal::Vaciar() {
    puestas_.clear();
    descubiertas_.resize(p_.Filas());
    std::iota(descubiertas_.begin(), descubiertas_.end(), 0);
    std::iota(lugarFila_.begin(), lugarFila_.end(), 0);
    std::fill(lugar_.begin(), lugar_.end(), -1);
    std::fill(veces_.begin(), veces_.end(), 0);
    std::fill(suma_.begin(), suma_.end(), 0);
    std::fill(entrada_.begin(), entrada_.end(), 0);
    if (pesar_)
        std::fill(peso_.begin(), peso_.end(), 1);
    else
        peso_ = p_.peso;
    for (int32_t c = 0; c < p_.Columnas(); ++c) {
        puntos_[c] = 0;
        for (const int32_t f : p_.QueCubre(c)) puntos_[c] += peso_[f];
    }
    coste_ = 0;
    cubierto_ = paso_ = 0;
    quitada_ = -1;
}

void BusquedaLocal::PartirDe(const std::vector<int32_t>& columnas) {
    fijo_ = false;
    pesar_ = p_.exigido >= p_.total;
    Vaciar();
    for (const int32_t c : columnas)
        if (lugar_[c] < 0) Poner(c);
    Completar();
    Podar();
    Anotar();
}

void BusquedaLocal::FijarCoste(int32_t coste, const std::vector<int32_t>& columnas) {
    fijo_ = true;
    pesar_ = false;
    tope_ = coste + 1;
    Vaciar();
    for (const int32_t c : columnas)
        if (lugar_[c] < 0 && coste_ + p_.coste[c] < tope_) Poner(c);
    Llenar();
    Anotar();
}

void BusquedaLocal::Sumar(int32_t fila, int32_t peso) {
    const std::span<const int32_t> columnas = p_.QuienesCubren(fila);
    for (const int32_t c : columnas) puntos_[c] += peso;
    trabajo_ += static_cast<int64_t>(columnas.size());
}

// The column itself keeps the sign of a column taken: what it alone covers counts against it.
void BusquedaLocal::Cubrir(int32_t fila, int32_t columna) {
    Sumar(fila, -peso_[fila]);
    puntos_[columna] += peso_[fila];
    cubierto_ += p_.peso[fila];
    const int32_t ultima = descubiertas_.back();
    descubiertas_[lugarFila_[fila]] = ultima;
    lugarFila_[ultima] = lugarFila_[fila];
    descubiertas_.pop_back();
}

void BusquedaLocal::Descubrir(int32_t fila, int32_t columna) {
    Sumar(fila, peso_[fila]);
    puntos_[columna] -= peso_[fila];
    cubierto_ -= p_.peso[fila];
    lugarFila_[fila] = static_cast<int32_t>(descubiertas_.size());
    descubiertas_.push_back(fila);
}

void BusquedaLocal::Poner(int32_t columna) {
    lugar_[columna] = static_cast<int32_t>(puestas_.size());
    puestas_.push_back(columna);
    coste_ += p_.coste[columna];
    puntos_[columna] = -puntos_[columna];
    for (const int32_t fila : p_.QueCubre(columna)) {
        const int32_t antes = veces_[fila]++;
        if (antes == 0)
            Cubrir(fila, columna);
        else if (antes == 1)
            puntos_[suma_[fila]] += peso_[fila]; // it is no longer alone
        suma_[fila] += columna;
    }
}

void BusquedaLocal::Quitar(int32_t columna) {
    const int32_t ultima = puestas_.back();
    puestas_[lugar_[columna]] = ultima;
    lugar_[ultima] = lugar_[columna];
    puestas_.pop_back();
    lugar_[columna] = -1;
    coste_ -= p_.coste[columna];
    puntos_[columna] = -puntos_[columna];
    for (const int32_t fila : p_.QueCubre(columna)) {
        const int32_t quedan = --veces_[fila];
        suma_[fila] -= columna;
        if (quedan == 0)
            Descubrir(fila, columna);
        else if (quedan == 1)
            puntos_[suma_[fila]] -= peso_[fila];
    }
}

// Whether column a is to be preferred to b, to come in or to go: by points for its cost, then the one that
// has rested longer.
bool BusquedaLocal::Gana(int32_t a, int32_t b) const {
    const int64_t deA = int64_t{puntos_[a]} * p_.coste[b], deB = int64_t{puntos_[b]} * p_.coste[a];
    return deA != deB ? deA > deB : entrada_[a] < entrada_[b];
}

// The column that is missed least, -1 when there is none; those that came in the step before stay.
int32_t BusquedaLocal::PeorDeLasPuestas() const {
    int32_t peor = -1;
    for (const int32_t c : puestas_)
        if ((entrada_[c] == 0 || entrada_[c] != paso_ - 1) && (peor < 0 || Gana(c, peor))) peor = c;
    return peor;
}

// The best column that covers the row and still fits, -1 when there is none.
int32_t BusquedaLocal::MejorPara(int32_t fila) const {
    int32_t mejor = -1;
    for (const int32_t c : p_.QuienesCubren(fila))
        if (c != quitada_ && coste_ + p_.coste[c] < tope_ && (mejor < 0 || Gana(c, mejor))) mejor = c;
    return mejor;
}

void BusquedaLocal::Completar() {
    while (!Cumplido()) {
        int32_t mejor = -1;
        for (int32_t c = 0; c < p_.Columnas(); ++c)
            if (lugar_[c] < 0 && puntos_[c] > 0 && (mejor < 0 || Gana(c, mejor))) mejor = c;
        Poner(mejor);
    }
}

// Takes out what is not needed, the dearest thing first.
void BusquedaLocal::Podar() {
    while (true) {
        int32_t sobra = -1;
        for (const int32_t c : puestas_) {
            const bool cabe = pesar_ ? puntos_[c] == 0 : cubierto_ + puntos_[c] >= p_.exigido;
            if (cabe && (sobra < 0 || Gana(c, sobra))) sobra = c;
        }
        if (sobra < 0) return;
        Quitar(sobra);
    }
}

void BusquedaLocal::Anotar() {
    mejor_ = puestas_;
    mejorCoste_ = coste_;
    mejorCubierto_ = cubierto_;
    if (!fijo_) tope_ = coste_;
}

// Brings columns in, each for a row drawn among the uncovered ones, until there is no need or no room.
void BusquedaLocal::Llenar() {
    while (!descubiertas_.empty() && (fijo_ || !Cumplido())) {
        const int32_t fila = descubiertas_[azar_.Entero(static_cast<int32_t>(descubiertas_.size()))];
        const int32_t columna = MejorPara(fila);
        trabajo_ += static_cast<int64_t>(p_.QuienesCubren(fila).size());
        if (columna >= 0) {
            Poner(columna);
            entrada_[columna] = paso_;
        }
        if (pesar_) PesarDescubiertas();
        if (columna < 0) return;
    }
}

void BusquedaLocal::PesarDescubiertas() {
    bool alto = false;
    for (const int32_t fila : descubiertas_) {
        alto = ++peso_[fila] > PesoMaximo || alto;
        Sumar(fila, 1);
    }
    if (alto) Suavizar();
}

void BusquedaLocal::Suavizar() {
    for (int32_t& peso : peso_) peso = (peso + 1) / 2;
    std::fill(puntos_.begin(), puntos_.end(), 0);
    for (int32_t c = 0; c < p_.Columnas(); ++c)
        for (const int32_t fila : p_.QueCubre(c))
            if (lugar_[c] < 0 && veces_[fila] == 0)
                puntos_[c] += peso_[fila];
            else if (lugar_[c] >= 0 && veces_[fila] == 1)
                puntos_[c] -= peso_[fila];
}

// A cover stands: it is the best, and the next one has to do with less.
void BusquedaLocal::Estrechar() {
    while (Cumplido() && !puestas_.empty()) {
        Podar();
        if (coste_ < mejorCoste_) Anotar();
        const int32_t peor =
            *std::max_element(puestas_.begin(), puestas_.end(), [this](int32_t a, int32_t b) { return Gana(b, a); });
        Quitar(peor);
    }
}

void BusquedaLocal::Paso() {
    ++paso_;
    if (!fijo_) Estrechar();
    quitada_ = PeorDeLasPuestas();
    if (quitada_ >= 0) {
        Quitar(quitada_);
        entrada_[quitada_] = paso_;
    }
    Llenar();
    if (fijo_ && cubierto_ > mejorCubierto_) Anotar();
    if (!fijo_) Estrechar();
}
