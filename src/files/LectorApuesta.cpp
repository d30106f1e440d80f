#include "LectorApuesta.h"

#include <algorithm>
#include <vector>

#include "modGeneral.h"

namespace {

std::vector<std::string_view> Partir(std::string_view texto) {
    std::vector<std::string_view> partes;
    for (size_t coma; (coma = texto.find(',')) != std::string_view::npos; texto.remove_prefix(coma + 1))
        partes.push_back(texto.substr(0, coma));
    partes.push_back(texto);
    return partes;
}

} // namespace

LectorRapido::LectorRapido(const Juego& juego) : ceros_(ApuestaDeCeros()) {
    const std::string registro = std::string("\x14\0", 2) + EncriptarRC4(TextoDeCeros, ClaveApuestas);
    std::string topes("\0\0", 2), cifras, sobra;
    for (const char c : TextoDeCeros) {
        topes += c == '0' ? '\x09' : '\0';
        cifras += c == '0' ? '\x06' : '\0';
        sobra += c == '0' ? '\xF0' : '\xFF';
    }
    cifras_ = CargarPalabras(cifras.data());
    sobra_ = CargarPalabras(sobra.data());
    std::memcpy(forma_.Cero1.data(), registro.data(), 16);
    std::memcpy(forma_.Cero2.data(), registro.data() + 6, 16);
    std::memcpy(forma_.Tope1.data(), topes.data(), 16);
    std::memcpy(forma_.Tope2.data(), topes.data() + 6, 16);
    // BONOLOTO has no digit of its own and takes the range of PRIMITIVA.
    forma_.DigitoMinimo = static_cast<uint8_t>(juego.TieneDigito() ? juego.DigitoMinimo : 0);
    forma_.DigitoMaximo = static_cast<uint8_t>(juego.TieneDigito() ? juego.DigitoMaximo : 9);
}

bool LeerTextoApuesta(std::string texto, const FormaRegistro& forma, ApuestaLeida& apuesta, FalloLectura& fallo) {
    const bool conDigito = texto.find('+') != std::string::npos;
    std::replace(texto.begin(), texto.end(), '+', ',');
    const auto partes = Partir(texto);
    uint64_t vistos = 0;
    int32_t n = 0;
    for (size_t i = 0; i < 6; ++i) {
        if (i >= partes.size()) return fallo.Descripcion = "faltan números", false;
        if (!LeerEntero(partes[i], n)) return fallo.Descripcion = "hay algo que no es un número", false;
        if (n < 1 || n > NumeroMaximoBoleto) return fallo.Descripcion = "número fuera de 1 a 49", false;
        if ((vistos >> n & 1) != 0) return fallo.Descripcion = "número repetido", false;
        vistos |= uint64_t{1} << n;
        apuesta[i] = static_cast<uint8_t>(n);
    }
    apuesta[6] = 1;
    if (!conDigito) return true;
    if (partes.size() < 7 || !LeerEntero(partes[6], n)) return fallo.Descripcion = "el dígito no es un número", false;
    if (n < forma.DigitoMinimo || n > forma.DigitoMaximo) {
        fallo.Descripcion = "dígito fuera de su intervalo";
        fallo.Detalle = forma.DigitoMinimo == 0 ? "REINTEGROS INCORRECTOS" : "SUEÑOS INCORRECTOS";
        return false;
    }
    apuesta[6] = static_cast<uint8_t>(n);
    return true;
}
