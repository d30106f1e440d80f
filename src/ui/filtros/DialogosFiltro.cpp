#include "DialogosFiltro.h"

#include <array>

#include "LogicaAbrirFila.h"
#include "Pintores.h"
#include "frmFiltroCR.h"
#include "frmFiltroDISTANCIAS.h"
#include "frmFiltroGRUPOS.h"
#include "frmFiltroGRUPOSENTRELIMITES.h"
#include "frmFiltroGRURELACIONADOS.h"
#include "frmFiltroPOSICIONES.h"
#include "frmFiltroSORTEOSANTERIORES.h"
#include "frmFiltroSUMAS.h"
#include "frmFiltroSUMASPORTRIOS.h"
#include "frmFiltroSencillo.h"
#include "frmFiltroTERMINACIONES.h"
#include "frmFiltroVALORACIONES.h"
#include "frmReduccion.h"

namespace {

using Dialogo = std::unique_ptr<QDialog>;
using Fabrica = Dialogo (*)(Sesion&, Entorno&, QWidget*);

template <class T>
Dialogo Crear(Sesion& sesion, Entorno& entorno, QWidget* padre) {
    return std::make_unique<T>(sesion, entorno, padre);
}

template <int k>
Dialogo CrearSencillo(Sesion& sesion, Entorno& entorno, QWidget* padre) {
    return std::make_unique<frmFiltroSencillo>(sesion, entorno, *FiltroSencilloDeFila(k), padre);
}

constexpr std::array<Fabrica, NFilas> Fabricas = [] {
    std::array<Fabrica, NFilas> f{};
    f[kALTOSBAJOS] = CrearSencillo<kALTOSBAJOS>;
    f[kDECENAS] = CrearSencillo<kDECENAS>;
    f[kDISTANCIAS] = Crear<frmFiltroDISTANCIAS>;
    f[kGRUPOS] = Crear<frmFiltroGRUPOS>;
    f[kGRUPOSRELACIONADOS] = Crear<frmFiltroGRURELACIONADOS>;
    f[kHOMOLOGOS] = CrearSencillo<kHOMOLOGOS>;
    f[kPARESIMPARES] = CrearSencillo<kPARESIMPARES>;
    f[kSEGUIDOS] = CrearSencillo<kSEGUIDOS>;
    f[kSUMAS] = Crear<frmFiltroSUMAS>;
    f[kTERMINACIONES] = Crear<frmFiltroTERMINACIONES>;
    f[kPOSICIONES] = Crear<frmFiltroPOSICIONES>;
    f[kEXTERIORESINTERIORES] = CrearSencillo<kEXTERIORESINTERIORES>;
    f[kSUPERIORESINFERIORES] = CrearSencillo<kSUPERIORESINFERIORES>;
    f[kCOLINDANTES] = CrearSencillo<kCOLINDANTES>;
    f[kSORTEOSANTERIORES] = Crear<frmFiltroSORTEOSANTERIORES>;
    f[kSUMASPORTRIOS] = Crear<frmFiltroSUMASPORTRIOS>;
    f[kVALORACIONES] = Crear<frmFiltroVALORACIONES>;
    f[kCOEFICIENTERENTABILIDAD] = Crear<frmFiltroCR>;
    f[kGRUPOSENTRELIMITES] = Crear<frmFiltroGRUPOSENTRELIMITES>;
    f[FilaReduccion] = Crear<frmReduccion>;
    return f;
}();

} // namespace

std::unique_ptr<QDialog> CrearDialogoFiltro(int k, Sesion& sesion, Entorno& entorno, QWidget* padre) {
    return Fabricas[static_cast<size_t>(k)](sesion, entorno, padre);
}

void AbrirDialogoFiltro(int k, Sesion& sesion, Entorno& entorno, QWidget* padre) {
    AbrirFila(sesion, entorno, k, [&] { MostrarModal(*CrearDialogoFiltro(k, sesion, entorno, padre)); });
}
