// Which draws a block of SORTEOSANTERIORES looks at.
#pragma once

#include "Registros.h"
#include "Sorteos.h"

/// The decimal number written as the year and the draw in at least two digits: 202305, 2023123. From
/// draw 100 on it is one digit longer, so that a stretch beyond draw 99 takes in draws of later years.
int64_t ClaveSorteo(int16_t anio, int32_t sorteo);

/// A block's stretch of keys and its weekday.
class TramoDeSorteos {
  public:
    explicit TramoDeSorteos(const BloqueSorteos& bloque);
    bool Contiene(const Sorteo& sorteo) const;

  private:
    int64_t desde_, hasta_;
    int16_t dia_; // 0 any
};
