// The conditions on which measurements and the signature run.
#pragma once

#include <array>

#include "Condiciones.h"
#include "TablaFiltros.h"

/// The filters without blocks, in row order.
inline constexpr std::array FiltrosEjemplo{kALTOSBAJOS,
                                           kDECENAS,
                                           kDISTANCIAS,
                                           kHOMOLOGOS,
                                           kPARESIMPARES,
                                           kSEGUIDOS,
                                           kSUMAS,
                                           kTERMINACIONES,
                                           kEXTERIORESINTERIORES,
                                           kSUPERIORESINFERIORES,
                                           kCOLINDANTES,
                                           kSUMASPORTRIOS};

/// Sets each of them as a player might, with hit tables and figures in force.
void ElegirCondicionesEjemplo(Condiciones& condiciones);
