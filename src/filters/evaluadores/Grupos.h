// How groups of numbers become the tables of the kernels, eight to a byte.
#pragma once

#include "NucleosGrupos.h"
#include "Preparar.h"

/// Sets bit g for the numbers of the group in the table of its members.
void AnadirMiembros(const EstadoTrabajo& trabajo, const MarcasNumeros& numeros, size_t g, PorPosicion& miembro);

/// Sets bit g for the counts that the hit table allows.
void AnadirAciertos(const TablaAciertos& aciertos, size_t g, AciertosDeOcho& permite);
