#include "dialogos.h"

#include "DialogosFiltro.h"
#include "TablaFiltros.h"
#include "frmAcercaDe.h"
#include "frmAciertos.h"
#include "frmAlazar.h"

namespace {

DialogoProbado DeFila(const std::string& nombre, int k, bool soloVolver = false) {
    return {nombre, [k](Guion& g) { return CrearDialogoFiltro(k, g.sesion, g.entorno, nullptr); }, soloVolver};
}

// The chooser works on a scratch copy of its caller's.
std::unique_ptr<QDialog> Aciertos(Guion&) {
    static LogicaAciertos aciertos;
    aciertos = AbrirAciertos({0, 1, 0, 1, 1, 0, 0}, 0);
    return std::make_unique<frmAciertos>(aciertos, QStringLiteral("10 al 19 : "), nullptr);
}

} // namespace

const std::vector<DialogoProbado>& Dialogos() {
    static const std::vector<DialogoProbado> dialogos{
        DeFila("frmFiltroALTOSBAJOS", kALTOSBAJOS),
        DeFila("frmFiltroDECENAS", kDECENAS),
        DeFila("frmFiltroDISTANCIAS", kDISTANCIAS),
        DeFila("frmFiltroHOMOLOGOS", kHOMOLOGOS),
        DeFila("frmFiltroPARESIMPARES", kPARESIMPARES),
        DeFila("frmFiltroSEGUIDOS", kSEGUIDOS),
        DeFila("frmFiltroSUMAS", kSUMAS),
        DeFila("frmFiltroTERMINACIONES", kTERMINACIONES),
        DeFila("frmFiltroEXTERIORES", kEXTERIORESINTERIORES),
        DeFila("frmFiltroSUPERIORES", kSUPERIORESINFERIORES),
        DeFila("frmFiltroCOLINDANTES", kCOLINDANTES),
        DeFila("frmFiltroSUMASPORTRIOS", kSUMASPORTRIOS),
        {"frmAciertos", Aciertos},
        {"frmAlazar", [](Guion& g) { return std::make_unique<frmAlazar>(g.sesion.trabajo, nullptr); }},
        {"frmAcercaDe", [](Guion&) { return std::make_unique<frmAcercaDe>(nullptr); }},
    };
    return dialogos;
}
