#include "FiltroSorteosLiteral.h"

#include <string>

#include "VisitaLiteral.h"

namespace {

long long Clave(int anio, int sorteo) {
    if (sorteo < 0) return std::stoll(std::to_string(anio) + "00") + sorteo;
    return std::stoll(std::to_string(anio) + (sorteo < 10 ? "0" : "") + std::to_string(sorteo));
}

} // namespace

Sorteos SorteosDeBloqueLiteral(const Sorteos& todos, const BloqueSorteos& bloque) {
    const long long desde = Clave(bloque.DESDE.anio, bloque.DESDE.numero);
    const long long hasta = Clave(bloque.HASTA.anio, bloque.HASTA.numero);
    Sorteos elegidos;
    for (const Sorteo& s : todos) {
        const long long clave = Clave(s.anio, s.sorteo);
        if (desde <= clave && clave <= hasta && (bloque.sorteoDIAS == 0 || s.dia == bloque.sorteoDIAS))
            elegidos.push_back(s);
    }
    return elegidos;
}

int32_t SorteosAcertados(const Sorteos& sorteos, const BloqueSorteos& bloque, const std::array<uint8_t, 7>& apuesta) {
    int32_t cuenta = 0;
    for (const Sorteo& sorteo : sorteos) {
        size_t aciertos = 0;
        for (size_t j = 0; j < 6; ++j)
            for (size_t r = 1; r <= 6; ++r) aciertos += sorteo.numeros[j] == apuesta[r];
        if (bloque.acertarEN[aciertos] == 1) ++cuenta;
    }
    return cuenta;
}

int32_t LiteralSORTEOSANTERIORES(Sesion& sesion) {
    const Condiciones& c = sesion.condiciones;
    if (c.SorteosFiltro.empty()) return 0;
    int32_t eliminadas = 0;
    for (const BloqueSorteos& bloque : c.SORTEOSANTERIORES.grupo) {
        if (!EnVigor(bloque.acertarEN)) continue;
        const Sorteos sorteos = SorteosDeBloqueLiteral(c.SorteosFiltro, bloque);
        eliminadas += VisitarVivas<uint8_t>(sesion, [&](const std::array<uint8_t, 7>& apuesta) {
            const int32_t cuenta = SorteosAcertados(sorteos, bloque, apuesta);
            return cuenta < bloque.aciertosMinimoSORTEOS || cuenta > bloque.aciertosMaximoSORTEOS;
        });
    }
    return eliminadas;
}
