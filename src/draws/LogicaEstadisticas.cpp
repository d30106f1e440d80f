#include "LogicaEstadisticas.h"

#include "Juegos.h"

LogicaEstadisticas::LogicaEstadisticas(EstadoTrabajo& estado, Entorno& mundo) : trabajo(estado), entorno(mundo) {
    txtTemporadaDESDE = "1985";
    txtTemporadaHASTA = std::to_string(entorno.Ahora().Anio);
    txtSorteoDESDE = "1";
    txtSorteoHASTA = "999";
    cboTipoJuego = trabajo.cboTipoJuego;
}
