#include "LectorLineas.h"

#include <algorithm>
#include <cstring>

namespace {

constexpr size_t BytesBloque = 256 * 1024;

bool EsFin(char c) {
    return c == '\n' || c == '\r';
}

} // namespace

bool LectorLineas::Abrir(const std::string& ruta) {
    bloque_.resize(BytesBloque);
    return fichero_.Abrir(ruta, fallo_);
}

// Loads behind what is there, making room for it. False when nothing came.
bool LectorLineas::Rellenar() {
    std::memmove(bloque_.data(), bloque_.data() + inicio_, fin_ - inicio_);
    fin_ -= inicio_;
    inicio_ = 0;
    if (fin_ == bloque_.size()) bloque_.resize(2 * fin_);
    const int64_t quedan = std::min(static_cast<int64_t>(bloque_.size() - fin_), fichero_.Bytes() - cargados_);
    const int64_t leidos = fichero_.Leer(bloque_.data() + fin_, quedan, fallo_);
    if (leidos <= 0) return false;
    cargados_ += leidos;
    fin_ += static_cast<size_t>(leidos);
    return true;
}

void LectorLineas::SaltarSegundoFin() {
    if (trasCR_ && (inicio_ < fin_ || Rellenar()) && bloque_[inicio_] == '\n') ++inicio_;
    trasCR_ = false;
}

bool LectorLineas::Siguiente(std::string_view& linea) {
    SaltarSegundoFin();
    size_t largo = 0;
    for (;;) {
        const char* texto = bloque_.data() + inicio_;
        largo = static_cast<size_t>(std::find_if(texto + largo, texto + (fin_ - inicio_), EsFin) - texto);
        if (largo > LineaMaxima) {
            fallo_ = "hay una línea demasiado larga";
            return false;
        }
        if (largo < fin_ - inicio_) break;
        if (!Rellenar()) {
            if (!fallo_.empty() || largo == 0) return false;
            break;
        }
    }
    linea = {bloque_.data() + inicio_, largo};
    inicio_ += largo;
    if (inicio_ < fin_) trasCR_ = bloque_[inicio_++] == '\r';
    return true;
}

std::string_view LectorLineas::Cargado(size_t minimo) {
    SaltarSegundoFin();
    while (fin_ - inicio_ < minimo && Rellenar()) {
    }
    return {bloque_.data() + inicio_, fin_ - inicio_};
}
