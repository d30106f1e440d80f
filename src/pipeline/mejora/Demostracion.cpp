#include "Demostracion.h"

#include <algorithm>

namespace {

constexpr int BitsPorParte = 3; // of a class: how many of the six numbers of a bet are in a part

// Cuts the parts by what a set has of them.
std::vector<uint64_t> Separar(const std::vector<uint64_t>& partes, uint64_t conjunto) {
    std::vector<uint64_t> nuevas;
    for (const uint64_t parte : partes)
        for (const uint64_t trozo : {parte & conjunto, parte & ~conjunto})
            if (trozo != 0) nuevas.push_back(trozo);
    return nuevas;
}

} // namespace

Demostracion::Demostracion(const Familia& familia, const Recubrimiento& problema, int32_t cota)
    : familia_(familia), p_(problema), cota_(cota), veces_(p_.Filas()), opciones_(p_.Filas()), puntos_(p_.Columnas()),
      vetos_(p_.Columnas()), descubiertas_(p_.Filas()) {
    for (int32_t f = 0; f < p_.Filas(); ++f) opciones_[f] = static_cast<int32_t>(p_.QuienesCubren(f).size());
    for (int32_t c = 0; c < p_.Columnas(); ++c) puntos_[c] = static_cast<int32_t>(p_.QueCubre(c).size());
}

void Demostracion::Paso() {
    if (Acabada()) return;
    ++trabajo_;
    if (abiertos_ == 0) {
        Abrir();
        return;
    }
    Nivel& nivel = niveles_[abiertos_ - 1];
    if (nivel.puesta >= 0) Retirar(nivel);
    if (!PonerSiguiente(nivel)) {
        Cerrar();
        if (abiertos_ == 0) ++cota_;
    } else if (descubiertas_ == 0) {
        for (size_t i = 0; i < abiertos_; ++i) hallada_.push_back(niveles_[i].puesta);
    } else if (Cabe()) {
        Abrir();
    }
}

// The next choice is how to cover the row that leaves the fewest ways.
void Demostracion::Abrir() {
    const int32_t fila = FilaConMenosOpciones();
    std::vector<uint64_t> partes{(uint64_t{1} << familia_.n()) - 1};
    if (abiertos_ > 0) {
        const Nivel& anterior = niveles_[abiertos_ - 1];
        partes = Separar(anterior.partes, familia_.Mascara(anterior.puesta));
    }
    if (abiertos_ == niveles_.size()) niveles_.emplace_back();
    Nivel& nivel = niveles_[abiertos_++];
    nivel.partes = Separar(partes, familia_.Mascara(fila));
    nivel.opciones.clear();
    nivel.siguiente = 0;
    for (const int32_t c : p_.QuienesCubren(fila))
        if (vetos_[c] == 0) nivel.opciones.push_back({c, Clase(nivel.partes, c)});
    std::sort(nivel.opciones.begin(), nivel.opciones.end(), [this](const Opcion& a, const Opcion& b) {
        return puntos_[a.columna] != puntos_[b.columna] ? puntos_[a.columna] > puntos_[b.columna] : a.clase < b.clase;
    });
}

void Demostracion::Cerrar() {
    Nivel& nivel = niveles_[--abiertos_];
    for (const int32_t c : nivel.vetadas) Vetar(c, -1);
    nivel.vetadas.clear();
}

// The choice led to nothing: neither it nor one like it is part of a cover from here on.
void Demostracion::Retirar(Nivel& nivel) {
    Quitar(nivel.puesta);
    const uint64_t clase = Clase(nivel.partes, nivel.puesta);
    for (const Opcion& opcion : nivel.opciones)
        if (opcion.clase == clase) {
            Vetar(opcion.columna, 1);
            nivel.vetadas.push_back(opcion.columna);
        }
    nivel.puesta = -1;
}

bool Demostracion::PonerSiguiente(Nivel& nivel) {
    while (nivel.siguiente < nivel.opciones.size()) {
        const int32_t columna = nivel.opciones[nivel.siguiente++].columna;
        if (vetos_[columna] > 0) continue;
        Poner(columna);
        nivel.puesta = columna;
        return true;
    }
    return false;
}

void Demostracion::Poner(int32_t columna) {
    for (const int32_t f : p_.QueCubre(columna)) {
        if (veces_[f]++ > 0) continue;
        --descubiertas_;
        for (const int32_t c : p_.QuienesCubren(f)) --puntos_[c];
        trabajo_ += static_cast<int64_t>(p_.QuienesCubren(f).size());
    }
}

void Demostracion::Quitar(int32_t columna) {
    for (const int32_t f : p_.QueCubre(columna)) {
        if (--veces_[f] > 0) continue;
        ++descubiertas_;
        for (const int32_t c : p_.QuienesCubren(f)) ++puntos_[c];
        trabajo_ += static_cast<int64_t>(p_.QuienesCubren(f).size());
    }
}

void Demostracion::Vetar(int32_t columna, int32_t sentido) {
    const bool era = vetos_[columna] > 0;
    vetos_[columna] += sentido;
    if (era == (vetos_[columna] > 0)) return;
    for (const int32_t f : p_.QueCubre(columna)) opciones_[f] -= sentido;
    trabajo_ += static_cast<int64_t>(p_.QueCubre(columna).size());
}

// Whether the columns with the most points, as many as are left to choose, could cover the rest.
bool Demostracion::Cabe() {
    const auto quedan = static_cast<size_t>(cota_) - abiertos_;
    mejores_.assign(quedan, 0);
    if (quedan == 0) return false;
    for (int32_t c = 0; c < p_.Columnas(); ++c) {
        if (vetos_[c] > 0 || puntos_[c] <= mejores_.back()) continue;
        size_t sitio = quedan - 1;
        for (; sitio > 0 && mejores_[sitio - 1] < puntos_[c]; --sitio) mejores_[sitio] = mejores_[sitio - 1];
        mejores_[sitio] = puntos_[c];
    }
    trabajo_ += p_.Columnas();
    int64_t suma = 0;
    for (const int32_t puntos : mejores_) suma += puntos;
    return suma >= descubiertas_;
}

int32_t Demostracion::FilaConMenosOpciones() {
    int32_t menos = -1;
    for (int32_t f = 0; f < p_.Filas(); ++f)
        if (veces_[f] == 0 && (menos < 0 || opciones_[f] < opciones_[menos])) menos = f;
    trabajo_ += p_.Filas();
    return menos;
}

// What exchanges of numbers within the parts leave alone; in a family that is not whole, the column itself.
uint64_t Demostracion::Clase(const std::vector<uint64_t>& partes, int32_t columna) const {
    if (!familia_.Completa() || familia_.n() * BitsPorParte > 64) return static_cast<uint64_t>(columna);
    uint64_t clase = 0;
    for (const uint64_t parte : partes)
        clase = clase << BitsPorParte | static_cast<uint64_t>(std::popcount(parte & familia_.Mascara(columna)));
    return clase;
}
