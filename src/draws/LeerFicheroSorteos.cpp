#include <array>
#include <concepts>
#include <limits>

#include <fmt/format.h>

#include "FicheroSorteos.h"
#include "Juegos.h"
#include "modGeneral.h"

namespace {

constexpr size_t LargoMinimo = 25;
constexpr size_t SorteosMaximos = ApuestasMaximas;
constexpr size_t Cadencia = 3000;
constexpr size_t CifrasMaximas = 11; // of a 32-bit number with its sign

/// The fields of a line, between single blanks; two blanks hold an empty field.
struct Campos {
    std::string_view numeros, anio, sorteo, dia;
};

// What stands before the separator, taken off the rest together with it. False when nothing is left.
bool Cortar(std::string_view& resto, char separador, std::string_view& parte) {
    if (resto.data() == nullptr) return false;
    const size_t corte = resto.find(separador);
    parte = resto.substr(0, corte);
    resto = corte == std::string_view::npos ? std::string_view() : resto.substr(corte + 1);
    return true;
}

template <std::integral Entero>
bool LeerCampo(std::string_view texto, Entero& valor) {
    int32_t n = 0;
    if (texto.size() > CifrasMaximas || !LeerEntero(texto, n)) return false;
    if (n < std::numeric_limits<Entero>::min() || n > std::numeric_limits<Entero>::max()) return false;
    valor = static_cast<Entero>(n);
    return true;
}

class LectorSorteo {
  public:
    LectorSorteo(std::string_view linea, std::string& fallo) : linea_(linea), fallo_(fallo) {}

    bool Leer(Sorteo& sorteo, Campos& campos) {
        if (!Cortar(linea_, ' ', campos.numeros) || !Cortar(linea_, ' ', campos.anio) ||
            !Cortar(linea_, ' ', campos.sorteo) || !Cortar(linea_, ' ', campos.dia))
            return Fracasar("faltan campos");
        if (!LeerNumeros(campos.numeros, sorteo)) return false;
        if (!LeerCampo(campos.anio, sorteo.anio)) return Fracasar("el año no es válido");
        if (!LeerCampo(campos.sorteo, sorteo.sorteo)) return Fracasar("el número de sorteo no es válido");
        sorteo.dia = CodigoDia(campos.dia);
        return true;
    }

  private:
    bool LeerNumeros(std::string_view numeros, Sorteo& sorteo) {
        for (size_t j = 0; j < 6; ++j) {
            std::string_view parte;
            int32_t n = 0;
            if (!Cortar(numeros, ',', parte)) return Fracasar("hay menos de seis números");
            if (!LeerCampo(parte, n)) return Fracasar("un número no es válido");
            if (n < 1 || n > NumeroMaximoBoleto) return false;
            sorteo.numeros[j] = static_cast<uint8_t>(n);
        }
        return true;
    }

    bool Fracasar(const char* descripcion) {
        fallo_ = descripcion;
        return false;
    }

    std::string_view linea_;
    std::string& fallo_;
};

void Anotar(ContenidoSorteos& contenido, const Sorteo& sorteo, const Campos& campos) {
    contenido.sorteos.push_back(sorteo);
    contenido.anioUltimo = campos.anio;
    contenido.sorteoUltimo = campos.sorteo;
    if (contenido.sorteos.size() > 1) return;
    contenido.anioPrimero = campos.anio;
    contenido.sorteoPrimero = campos.sorteo;
}

} // namespace

bool LeerFicheroSorteos(LectorLineas& lineas, ContenidoSorteos& contenido, std::string& fallo,
                        const std::function<void(size_t)>& progreso) {
    int64_t numeroLinea = 0;
    for (std::string_view linea; !contenido.lleno && lineas.Siguiente(linea);) {
        ++numeroLinea;
        if (linea.size() < LargoMinimo) continue;
        Sorteo sorteo;
        Campos campos;
        if (!LectorSorteo(linea, fallo).Leer(sorteo, campos)) {
            if (!fallo.empty()) fallo = fmt::format("línea {}: {}", numeroLinea, fallo);
            return false;
        }
        Anotar(contenido, sorteo, campos);
        if (contenido.sorteos.size() % Cadencia == 0) progreso(contenido.sorteos.size());
        contenido.lleno = contenido.sorteos.size() == SorteosMaximos;
    }
    fallo = lineas.Fallo();
    if (fallo.empty() && contenido.sorteos.empty()) fallo = "no hay ninguna línea con un sorteo";
    return fallo.empty();
}
