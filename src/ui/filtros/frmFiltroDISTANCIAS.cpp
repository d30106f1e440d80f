#include "frmFiltroDISTANCIAS.h"

#include "PanelReparto.h"
#include "TextoQt.h"

frmFiltroDISTANCIAS::frmFiltroDISTANCIAS(Sesion& sesion, Entorno& entorno, QWidget* padre)
    : QDialog(padre), logica{sesion, entorno} {
    using L = LogicaFiltroDISTANCIAS;
    marco = CrearMarcoFiltro(*this, "frmFiltroDISTANCIAS",
                             "Qué distancia puede haber entre los números de la apuesta, de menor a mayor; deben "
                             "cumplirse todas las que no sean 0.",
                             logica.marco);
    QGridLayout* rejilla = CrearCaja(*marco.contenido, "DISTANCIAS");
    CrearCabeceraIntervalos(*rejilla, Q("Mínima"), Q("Máxima"));
    for (size_t i = 0; i < distancias.size(); ++i) {
        const ParDistancia& par = ParesDistancias[i];
        const bool general = i + 1 == distancias.size();
        const QString etiqueta = Q(general ? "Distancia general, " : "Distancia entre ") + Q(par.Palabras);
        const QString nombre = Q("txtDistancia") + Q(par.Cifras);
        distancias[i] =
            CrearFilaIntervalo(*rejilla, static_cast<int>(i) + 1,
                               {.etiqueta = etiqueta,
                                .nombreMinimo = nombre + Q("Min"),
                                .nombreMaximo = nombre + Q("Max"),
                                .que = etiqueta},
                               EfectosDeIntervalo(logica, i, &L::CambiarMin, &L::CambiarMax, [this] { Pintar(); }));
    }
    PonerReparto(marco, *marco.centro,
                 {.k = kDISTANCIAS, .sesion = sesion, .entorno = entorno, .Volcar = [this](Condiciones& c) {
                      logica.Volcar(c);
                  }});
    TerminarMarco(marco, *this, logica.marco);
    logica.Abrir();
    Pintar();
}

void frmFiltroDISTANCIAS::reject() {
    if (logica.PuedeCerrar()) QDialog::reject();
}

void frmFiltroDISTANCIAS::Pintar() {
    PintarMarco(marco, logica.marco);
    for (size_t i = 0; i < distancias.size(); ++i)
        PintarFilaIntervalo(distancias[i], logica.txtDistanciaMin[i], logica.txtDistanciaMax[i]);
}
