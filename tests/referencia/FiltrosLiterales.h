// The filters without blocks, one bet at a time and step by step, with a figure written as a string.
#pragma once

#include "Sesion.h"

int32_t LiteralALTOSBAJOS(Sesion& sesion);
int32_t LiteralDECENAS(Sesion& sesion);
int32_t LiteralDISTANCIAS(Sesion& sesion);
int32_t LiteralHOMOLOGOS(Sesion& sesion);
int32_t LiteralPARESIMPARES(Sesion& sesion);
int32_t LiteralSEGUIDOS(Sesion& sesion);
int32_t LiteralSUMAS(Sesion& sesion);
int32_t LiteralTERMINACIONES(Sesion& sesion);
int32_t LiteralEXTERIORESINTERIORES(Sesion& sesion);
int32_t LiteralSUPERIORESINFERIORES(Sesion& sesion);
int32_t LiteralCOLINDANTES(Sesion& sesion);
int32_t LiteralSUMASPORTRIOS(Sesion& sesion);
