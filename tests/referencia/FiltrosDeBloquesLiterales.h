// The filters of groups, positions, marks and profitability, one bet at a time and step by step.
#pragma once

#include "Sesion.h"

int32_t LiteralGRUPOS(Sesion& sesion);
int32_t LiteralGRUPOSENTRELIMITES(Sesion& sesion);
int32_t LiteralPOSICIONES(Sesion& sesion);
int32_t LiteralGRUPOSRELACIONADOS(Sesion& sesion);
int32_t LiteralVALORACIONES(Sesion& sesion);
int32_t LiteralCOEFICIENTERENTABILIDAD(Sesion& sesion);
