#include "RegistrosDeFichero.h"

#include <algorithm>
#include <cstring>

namespace {

// More than the longest record, which is 2 + 65535 bytes.
constexpr size_t Bloque = 256 * 1024;

} // namespace

bool RegistrosDeFichero::Abrir(const std::string& ruta, std::string& fallo) {
    bloque_.resize(Bloque);
    return fichero_.Abrir(ruta, fallo);
}

std::optional<std::string_view> RegistrosDeFichero::Siguiente(std::string& fallo) {
    const std::string_view cabeza = Cargados(2, fallo);
    if (cabeza.size() < 2) return std::nullopt;
    const size_t largo = static_cast<uint8_t>(cabeza[0]) | static_cast<size_t>(static_cast<uint8_t>(cabeza[1])) << 8;
    const std::string_view registro = Cargados(2 + largo, fallo);
    if (registro.size() < 2 + largo) return std::nullopt;
    Tomar(2 + largo);
    return registro.substr(2, largo);
}

void RegistrosDeFichero::Rellenar(std::string& fallo) {
    std::memmove(bloque_.data(), bloque_.data() + inicio_, fin_ - inicio_);
    fin_ -= inicio_;
    inicio_ = 0;
    // Never more than there was when the file was opened: the table is sized by that.
    const int64_t quedan = std::min(static_cast<int64_t>(Bloque - fin_), fichero_.Bytes() - cargados_);
    const int64_t leidos = std::max<int64_t>(fichero_.Leer(bloque_.data() + fin_, quedan, fallo), 0);
    cargados_ += leidos;
    fin_ += static_cast<size_t>(leidos);
}
