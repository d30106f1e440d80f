// The routines of the spread, one for each filter. Their contract is that of `Repartidor` in
// TablaFiltros.h.
#pragma once

#include <vector>

#include "Reparto.h"

std::vector<ApartadoReparto> RepartirALTOSBAJOS(Sesion&, Entorno&);
std::vector<ApartadoReparto> RepartirDECENAS(Sesion&, Entorno&);
std::vector<ApartadoReparto> RepartirDISTANCIAS(Sesion&, Entorno&);
std::vector<ApartadoReparto> RepartirGRUPOS(Sesion&, Entorno&);
std::vector<ApartadoReparto> RepartirGRUPOSRELACIONADOS(Sesion&, Entorno&);
std::vector<ApartadoReparto> RepartirHOMOLOGOS(Sesion&, Entorno&);
std::vector<ApartadoReparto> RepartirPARESIMPARES(Sesion&, Entorno&);
std::vector<ApartadoReparto> RepartirSEGUIDOS(Sesion&, Entorno&);
std::vector<ApartadoReparto> RepartirSUMAS(Sesion&, Entorno&);
std::vector<ApartadoReparto> RepartirTERMINACIONES(Sesion&, Entorno&);
std::vector<ApartadoReparto> RepartirPOSICIONES(Sesion&, Entorno&);
std::vector<ApartadoReparto> RepartirEXTERIORESINTERIORES(Sesion&, Entorno&);
std::vector<ApartadoReparto> RepartirSUPERIORESINFERIORES(Sesion&, Entorno&);
std::vector<ApartadoReparto> RepartirCOLINDANTES(Sesion&, Entorno&);
std::vector<ApartadoReparto> RepartirSORTEOSANTERIORES(Sesion&, Entorno&);
std::vector<ApartadoReparto> RepartirSUMASPORTRIOS(Sesion&, Entorno&);
std::vector<ApartadoReparto> RepartirVALORACIONES(Sesion&, Entorno&);
std::vector<ApartadoReparto> RepartirCOEFICIENTERENTABILIDAD(Sesion&, Entorno&);
std::vector<ApartadoReparto> RepartirGRUPOSENTRELIMITES(Sesion&, Entorno&);
