#include <algorithm>
#include <cerrno>
#include <new>

#include "Ficheros.h"
#include "NucleoRegistros.h"
#include "RegistroApuestas.h"
#include "modEncriptarFichero.h"
#include "modGeneral.h"

namespace {

constexpr int64_t ApuestasPorTurnoAlGrabar = 6000;

void AnadirRegistro(std::string& bloque, std::string_view texto) {
    const std::string cifrado = EncriptarRC4(texto, ClaveApuestas);
    bloque += static_cast<char>(cifrado.size() & 0xFF);
    bloque += static_cast<char>(cifrado.size() >> 8);
    bloque += cifrado;
}

// For each element and value the bits that tell its two digits from "00", in the word that holds them.
class TextosCifrados {
  public:
    TextosCifrados() : ceros_(ApuestaDeCeros()) {
        for (size_t e = 0; e < 7; ++e)
            for (size_t v = 0; v < 100; ++v)
                bits_[e][v] = (v / 10 | v % 10 << 8) << 8 * (LugarElemento[e] - InicioPalabra[PalabraDe(e)]);
    }

    // Writes a record of elements below 100.
    void Escribir(char* destino, const std::array<const uint8_t*, 7>& fila, int64_t i) const {
        const auto bits = [&](size_t e) { return bits_[e][fila[e][i]]; };
        const uint64_t primera = ceros_[0] ^ bits(0) ^ bits(1) ^ bits(2);
        const uint64_t segunda = ceros_[1] ^ bits(3);
        const uint64_t tercera = ceros_[2] ^ bits(4) ^ bits(5) ^ bits(6);
        const uint16_t largo = LargoApuesta;
        std::memcpy(destino, &largo, 2);
        std::memcpy(destino + 2 + InicioPalabra[0], &primera, 8);
        std::memcpy(destino + 2 + InicioPalabra[1], &segunda, 8);
        std::memcpy(destino + 2 + InicioPalabra[2], &tercera, 8); // over the tail of the second
    }

  private:
    static constexpr size_t PalabraDe(size_t elemento) { return elemento < 3 ? 0 : elemento < 4 ? 1 : 2; }

    PalabrasApuesta ceros_;
    std::array<std::array<uint64_t, 100>, 7> bits_{};
};

std::array<const uint8_t*, 7> Filas(const Tabla& tabla) {
    std::array<const uint8_t*, 7> filas;
    for (size_t e = 0; e < 7; ++e) filas[e] = tabla.Fila(static_cast<int>(e) + 1);
    return filas;
}

bool TodosDeDosCifras(const std::array<const uint8_t*, 7>& filas, int64_t desde, int64_t hasta) {
    uint8_t mayor = 0;
    for (const uint8_t* fila : filas) mayor = std::max(mayor, NucleoMayor(fila + desde, hasta - desde));
    return mayor < 100;
}

std::string TextoApuesta(const std::array<const uint8_t*, 7>& filas, int64_t i) {
    std::string texto;
    for (size_t e = 0; e < 7; ++e) texto += (e == 0 ? "" : e < 6 ? "," : "+") + Formato00(filas[e][i]);
    return texto;
}

// The records of bets [desde, hasta), counted from 0.
void LlenarBloque(std::string& bloque, const TextosCifrados& textos, const std::array<const uint8_t*, 7>& filas,
                  int64_t desde, int64_t hasta) {
    bloque.clear();
    if (!TodosDeDosCifras(filas, desde, hasta)) {
        for (int64_t i = desde; i < hasta; ++i) AnadirRegistro(bloque, TextoApuesta(filas, i));
        return;
    }
    bloque.resize(static_cast<size_t>(hasta - desde) * BytesPorApuesta);
    char* destino = bloque.data();
    for (int64_t i = desde; i < hasta; ++i, destino += BytesPorApuesta) textos.Escribir(destino, filas, i);
}

} // namespace

bool EscribirApuestas(FicheroAtomico& fichero, std::string_view cabecera, int32_t cantidad, const Tabla& ApuestasGrabar,
                      Espera* barra, Entorno& entorno) {
    std::string bloque;
    AnadirRegistro(bloque, cabecera);
    AnadirRegistro(bloque, std::to_string(cantidad));
    if (!fichero.Escribir(bloque)) return false;
    if (cantidad == 0) return true;
    const TextosCifrados textos;
    const auto filas = Filas(ApuestasGrabar);
    // The turn comes before bet 6000, 12000, ... is written, so a block ends one bet short of it.
    for (int64_t desde = 0, turno = ApuestasPorTurnoAlGrabar; desde < cantidad; turno += ApuestasPorTurnoAlGrabar) {
        const int64_t hasta = std::min<int64_t>(cantidad, turno - 1);
        LlenarBloque(bloque, textos, filas, desde, hasta);
        if (!fichero.Escribir(bloque)) return false;
        if (turno <= cantidad && barra != nullptr) {
            barra->Fraccion = static_cast<double>(turno) / cantidad;
            entorno.CederTurno();
        }
        desde = hasta;
    }
    return true;
}

bool GuardarFicheroApuestas(const std::string& fichero, std::string_view cabecera, int32_t cantidad,
                            const Tabla& ApuestasGrabar, Espera* barra, Entorno& entorno) {
    try {
        FicheroAtomico destino;
        return (destino.Abrir(fichero) &&
                EscribirApuestas(destino, cabecera, cantidad, ApuestasGrabar, barra, entorno) && destino.Confirmar()) ||
               FalloAlGuardar(entorno, destino.Fallo());
    } catch (const std::bad_alloc&) {
        return FalloAlGuardar(entorno, DescripcionFallo(ENOMEM));
    }
}
