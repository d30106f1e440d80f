#include "frmFiltroSUMAS.h"

#include "PanelReparto.h"
#include "TextoQt.h"

frmFiltroSUMAS::frmFiltroSUMAS(Sesion& sesion, Entorno& entorno, QWidget* padre)
    : QDialog(padre), logica{sesion, entorno} {
    using L = LogicaFiltroSUMAS;
    marco = CrearMarcoFiltro(*this, "frmFiltroSUMAS",
                             "Entre qué valores puede estar la suma de los seis números; basta con un intervalo.",
                             logica.marco);
    QGridLayout* rejilla = CrearCaja(*marco.contenido, "SUMA DE LA APUESTA");
    CrearCabeceraIntervalos(*rejilla, Q("Mínima"), Q("Máxima"));
    for (size_t i = 0; i < intervalos.size(); ++i) {
        const int fila = static_cast<int>(i) + 1;
        const QString etiqueta = Q("Intervalo ") + QString::number(fila);
        intervalos[i] = CrearFilaIntervalo(
            *rejilla, fila,
            {.etiqueta = etiqueta,
             .nombreMinimo = NombreIndexado("txtSumaMinima", fila - 1),
             .nombreMaximo = NombreIndexado("txtSumaMaxima", fila - 1),
             .que = etiqueta,
             .or_ = i + 1 < intervalos.size()},
            EfectosDeIntervalo(logica, i, &L::CambiarMinima, &L::CambiarMaxima, [this] { Pintar(); }));
    }
    PonerReparto(
        marco, *marco.centro,
        {.k = kSUMAS, .sesion = sesion, .entorno = entorno, .Volcar = [this](Condiciones& c) { logica.Volcar(c); }});
    TerminarMarco(marco, *this, logica.marco);
    logica.Abrir();
    Pintar();
}

void frmFiltroSUMAS::reject() {
    if (logica.PuedeCerrar()) QDialog::reject();
}

void frmFiltroSUMAS::Pintar() {
    PintarMarco(marco, logica.marco);
    for (size_t i = 0; i < intervalos.size(); ++i)
        PintarFilaIntervalo(intervalos[i], logica.txtSumaMinima[i], logica.txtSumaMaxima[i]);
}
