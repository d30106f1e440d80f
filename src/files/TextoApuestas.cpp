#include "TextoApuestas.h"

#include <array>

#include "Ficheros.h"
#include "Juegos.h"

namespace {

constexpr size_t Tramo = 1 << 18; // bytes gathered before they are written
constexpr int64_t Cadencia = 6000;

bool Escribir(FicheroAtomico& fichero, const Tabla& apuestas, int64_t cantidad, const uint8_t* base, Entorno& entorno) {
    std::string texto;
    for (int64_t i = 1; i <= cantidad; ++i) {
        for (int r = 1; r <= 6; ++r) {
            const int numero = base[apuestas(r, i)];
            texto += static_cast<char>('0' + numero / 10);
            texto += static_cast<char>('0' + numero % 10);
        }
        texto += "\r\n";
        if (texto.size() >= Tramo) {
            if (!fichero.Escribir(texto)) return false;
            texto.clear();
        }
        if (i % Cadencia == 0) entorno.CederTurno();
    }
    return fichero.Escribir(texto);
}

// The base of a table of real numbers: each is itself.
constexpr std::array<uint8_t, NumeroMaximoBoleto + 1> NumerosReales = [] {
    std::array<uint8_t, NumeroMaximoBoleto + 1> numeros{};
    for (size_t n = 0; n < numeros.size(); ++n) numeros[n] = static_cast<uint8_t>(n);
    return numeros;
}();

} // namespace

bool EscribirTextoApuestas(FicheroAtomico& fichero, const Tabla& apuestas, int64_t cantidad, Entorno& entorno) {
    return Escribir(fichero, apuestas, cantidad, NumerosReales.data(), entorno);
}

bool GuardarTextoApuestas(const std::string& ruta, const Tabla& apuestas, const uint8_t* base, Entorno& entorno) {
    FicheroAtomico fichero;
    const bool bien =
        fichero.Abrir(ruta) && Escribir(fichero, apuestas, apuestas.Apuestas(), base, entorno) && fichero.Confirmar();
    return bien || FalloAlGuardar(entorno, fichero.Fallo());
}

bool GuardarTextoApuestas(const std::string& ruta, const Tabla& apuestas, Entorno& entorno) {
    return GuardarTextoApuestas(ruta, apuestas, NumerosReales.data(), entorno);
}
