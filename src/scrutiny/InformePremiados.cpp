// The report of the tickets that win something.
#include <algorithm>
#include <cerrno>
#include <new>

#include <fmt/format.h>

#include "FicheroAtomico.h"
#include "Ficheros.h"
#include "Informes.h"
#include "LogicaEscrutar.h"

namespace {

constexpr size_t BytesPorBloque = size_t{1} << 18; // gathered before they are written
constexpr int MinimoPremiado = 3;                  // hits

std::string Cabecera(int32_t apuestasPorBoleto) {
    std::string cabecera = "BOLETO";
    for (int32_t j = 1; j <= apuestasPorBoleto; ++j) cabecera += fmt::format("{}{:02}", j == 1 ? " " : "  ", j);
    return cabecera + "\r\n";
}

} // namespace

// The line of a ticket from its first to its last bet; empty when none of them wins.
std::string LogicaEscrutar::LineaBoleto(int32_t primera, int32_t ultima) const {
    const uint8_t* aciertos = AciertosApuesta.Fila(1) - 1; // counted from 1
    const auto gana = [](uint8_t h) { return h >= MinimoPremiado; };
    if (std::none_of(aciertos + primera, aciertos + ultima + 1, gana)) return {};
    const Sorteado sorteo = SorteoElegido();
    std::string linea = fmt::format("{:>6} ", (primera - 1) / ApuestasPorBoleto() + 1);
    for (int32_t i = primera; i <= ultima; ++i) {
        if (!gana(aciertos[i]))
            linea += "--  ";
        else if (aciertos[i] == 5 && sorteo.TieneComplementario(MascaraApuesta(*ApuestasEscrutar, i)))
            linea += "5+C ";
        else
            linea += fmt::format(" {}  ", aciertos[i]);
    }
    return linea + "\r\n";
}

bool LogicaEscrutar::EscribirPremiados(const std::string& ruta, std::string& fallo) {
    FicheroAtomico fichero;
    std::string bloque = Cabecera(ApuestasPorBoleto());
    bool bien = fichero.Abrir(ruta);
    for (int32_t primera = 1; bien && primera <= ApuestasATRATAR; primera += ApuestasPorBoleto()) {
        bloque += LineaBoleto(primera, std::min(ApuestasATRATAR, primera + ApuestasPorBoleto() - 1));
        if (bloque.size() < BytesPorBloque) continue;
        bien = fichero.Escribir(bloque);
        bloque.clear();
        entorno.CederTurno();
    }
    bien = bien && fichero.Escribir(bloque) && fichero.Confirmar();
    fallo = fichero.Fallo();
    return bien;
}

bool LogicaEscrutar::imgVerBoletosPremiados() {
    if (!EscrutarSistema()) return false;
    const std::string ruta = RutaInforme(entorno, "TOMBOLERA_PREMIOS.txt");
    std::string fallo;
    Escrutando = true;
    bool escrito = false;
    try {
        escrito = EscribirPremiados(ruta, fallo);
    } catch (const std::bad_alloc&) {
        fallo = DescripcionFallo(ENOMEM);
    }
    Escrutando = false;
    if (!escrito) return FalloAlGenerarInforme(entorno, fallo);
    entorno.VerInforme(ruta);
    return true;
}
