// The evaluators, one for each filter. Their contract is that of `Evaluador` in TablaFiltros.h; what
// each record means is told in registros/Registros.h.
#pragma once

#include "Entorno.h"
#include "Sesion.h"

int32_t FiltrarALTOSBAJOS(Sesion&, Entorno&);
int32_t FiltrarDECENAS(Sesion&, Entorno&);
int32_t FiltrarDISTANCIAS(Sesion&, Entorno&);
int32_t FiltrarGRUPOS(Sesion&, Entorno&);
int32_t FiltrarGRUPOSRELACIONADOS(Sesion&, Entorno&);
int32_t FiltrarHOMOLOGOS(Sesion&, Entorno&);
int32_t FiltrarPARESIMPARES(Sesion&, Entorno&);
int32_t FiltrarSEGUIDOS(Sesion&, Entorno&);
int32_t FiltrarSUMAS(Sesion&, Entorno&);
int32_t FiltrarTERMINACIONES(Sesion&, Entorno&);
int32_t FiltrarPOSICIONES(Sesion&, Entorno&);
int32_t FiltrarEXTERIORESINTERIORES(Sesion&, Entorno&);
int32_t FiltrarSUPERIORESINFERIORES(Sesion&, Entorno&);
int32_t FiltrarCOLINDANTES(Sesion&, Entorno&);
int32_t FiltrarSORTEOSANTERIORES(Sesion&, Entorno&);
int32_t FiltrarSUMASPORTRIOS(Sesion&, Entorno&);
int32_t FiltrarVALORACIONES(Sesion&, Entorno&);
int32_t FiltrarCOEFICIENTERENTABILIDAD(Sesion&, Entorno&);
int32_t FiltrarGRUPOSENTRELIMITES(Sesion&, Entorno&);
