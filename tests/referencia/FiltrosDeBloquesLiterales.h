// The filters of groups, positions, marks and profitability, one bet at a time and step by step.
#pragma once

#include "Sesion.h"

int32_t LiteralGRUPOS(Sesion& sesion);
int32_t LiteralGRUPOSENTRELIMITES(Sesion& sesion);
int32_t LiteralPOSICIONES(Sesion& sesion);
int32_t LiteralGRUPOSRELACIONADOS(Sesion& sesion);
int32_t LiteralVALORACIONES(Sesion& sesion);
int32_t LiteralCOEFICIENTERENTABILIDAD(Sesion& sesion);

/// The class of the coefficient of six numbers, at 1 to 6: its tenths, at most 99.
size_t ClaseLiteralCR(const RegistroCOEFICIENTERENTABILIDAD& registro, const std::array<size_t, 7>& apuesta);
