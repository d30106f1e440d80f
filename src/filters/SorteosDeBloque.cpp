#include "SorteosDeBloque.h"

// A base file may hold negative values: a negative year makes the whole number negative, and a negative
// draw comes before all those of its year.
int64_t ClaveSorteo(int16_t anio, int32_t sorteo) {
    int64_t potencia = 100;
    while (sorteo >= potencia) potencia *= 10;
    return anio * potencia + (anio < 0 && sorteo > 0 ? -sorteo : sorteo);
}

TramoDeSorteos::TramoDeSorteos(const BloqueSorteos& bloque)
    : desde_(ClaveSorteo(bloque.DESDE.anio, bloque.DESDE.numero)),
      hasta_(ClaveSorteo(bloque.HASTA.anio, bloque.HASTA.numero)), dia_(bloque.sorteoDIAS) {}

bool TramoDeSorteos::Contiene(const Sorteo& sorteo) const {
    const int64_t clave = ClaveSorteo(sorteo.anio, sorteo.sorteo);
    return clave >= desde_ && clave <= hasta_ && (dia_ == 0 || sorteo.dia == dia_);
}
