// The reader of percentage files, alone and behind the two dialogs that use it.
#include <cmath>

#include "Difusion.h"
#include "FicheroPorcentajes.h"
#include "LogicaFiltroCR.h"
#include "LogicaFiltroVALORACIONES.h"
#include "Sesiones.h"
#include "modGeneral.h"

namespace {

void ExigirValores(const std::string& ruta) {
    int ultimo = 0;
    LeerPorcentajes(ruta, [&](int n, const std::string& texto, double valor) {
        Exigir(n > ultimo && n <= 49, "numbers ascend");
        ultimo = n;
        double leido = 0;
        Exigir(LeerDecimal(texto, leido) && leido == valor, "the text is the value");
        Exigir(std::isfinite(valor) && valor != 0, "finite, not zero");
        return true;
    });
}

// Whatever the file holds, the fields stay good enough to close the dialog.
void ExigirDialogos(Sesion& sesion, Entorno& entorno) {
    LogicaFiltroCR cr{sesion, entorno};
    cr.Abrir();
    cr.imgAbrirPorcentajes(TablaCR::Reales);
    Exigir(cr.PuedeCerrar(), "every field is a number");
    for (const double p : sesion.condiciones.COEFICIENTERENTABILIDAD.PorcentajesReales)
        Exigir(std::isfinite(p), "finite percentages");

    LogicaFiltroVALORACIONES valoraciones{sesion, entorno};
    valoraciones.Abrir();
    valoraciones.cmdAbrirPorcentajes();
    for (size_t i = 0; i < valoraciones.cboPorcentaje.size(); ++i) {
        const int item = valoraciones.cboPorcentaje[i];
        Exigir(item >= 0 && item <= 100, "an item of the box");
        Exigir(item == 0 || valoraciones.Habilitada(static_cast<int>(i) + 1), "a number of the base");
    }
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* datos, size_t largo) {
    const FicheroEnMemoria fichero({reinterpret_cast<const char*>(datos), largo});
    ExigirValores(fichero.Ruta());
    Entorno entorno;
    entorno.PedirAbrir = [&](const PeticionFichero&) { return fichero.Ruta(); };
    Sesion sesion;
    IniciarSesion(sesion, entorno);
    for (size_t n = 1; n <= 49; n += largo % 3 + 1) sesion.trabajo.lblNumero[n] = true;
    ExigirDialogos(sesion, entorno);
    return 0;
}
