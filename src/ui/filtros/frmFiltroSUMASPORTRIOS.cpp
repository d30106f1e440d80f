#include "frmFiltroSUMASPORTRIOS.h"

#include "PanelReparto.h"
#include "TextoQt.h"

frmFiltroSUMASPORTRIOS::frmFiltroSUMASPORTRIOS(Sesion& sesion, Entorno& entorno, QWidget* padre)
    : QDialog(padre), logica{sesion, entorno} {
    using L = LogicaFiltroSUMASPORTRIOS;
    marco =
        CrearMarcoFiltro(*this, "frmFiltroSUMASPORTRIOS",
                         "Entre qué valores pueden estar la suma de los tres primeros números de la apuesta y la de "
                         "los tres últimos; basta con un intervalo de cada trío.",
                         logica.marco);
    auto* trios = new QHBoxLayout;
    trios->setSpacing(2 * Paso);
    marco.contenido->addLayout(trios);
    CrearTrio(*trios, "TRES PRIMEROS NUMEROS", Q("T1"), intervalosT1, &L::CambiarMinimaT1, &L::CambiarMaximaT1);
    CrearTrio(*trios, "TRES ULTIMOS NUMEROS", Q("T2"), intervalosT2, &L::CambiarMinimaT2, &L::CambiarMaximaT2);
    PonerReparto(marco, *marco.centro,
                 {.k = kSUMASPORTRIOS, .sesion = sesion, .entorno = entorno, .Volcar = [this](Condiciones& c) {
                      logica.Volcar(c);
                  }});
    TerminarMarco(marco, *this, logica.marco);
    logica.Abrir();
    Pintar();
}

void frmFiltroSUMASPORTRIOS::CrearTrio(QBoxLayout& donde, std::string_view titulo, const QString& trio,
                                       std::array<FilaIntervalo, 5>& filas, Cambiar cambiarMinima,
                                       Cambiar cambiarMaxima) {
    QGridLayout* rejilla = CrearCaja(donde, titulo);
    CrearCabeceraIntervalos(*rejilla, Q("Mínima"), Q("Máxima"));
    for (size_t i = 0; i < filas.size(); ++i) {
        const int fila = static_cast<int>(i);
        const QString etiqueta = Q("Intervalo ") + QString::number(fila + 1);
        filas[i] = CrearFilaIntervalo(
            *rejilla, fila + 1,
            {.etiqueta = etiqueta,
             .nombreMinimo = NombreIndexado(Utf8(Q("txtSumaMinima") + trio), fila),
             .nombreMaximo = NombreIndexado(Utf8(Q("txtSumaMaxima") + trio), fila),
             .que = (trio == Q("T1") ? Q("Tres primeros números, ") : Q("Tres últimos números, ")) + etiqueta.toLower(),
             .or_ = i + 1 < filas.size()},
            EfectosDeIntervalo(logica, i, cambiarMinima, cambiarMaxima, [this] { Pintar(); }));
    }
}

void frmFiltroSUMASPORTRIOS::reject() {
    if (logica.PuedeCerrar()) QDialog::reject();
}

void frmFiltroSUMASPORTRIOS::Pintar() {
    PintarMarco(marco, logica.marco);
    for (size_t i = 0; i < intervalosT1.size(); ++i) {
        PintarFilaIntervalo(intervalosT1[i], logica.txtSumaMinimaT1[i], logica.txtSumaMaximaT1[i]);
        PintarFilaIntervalo(intervalosT2[i], logica.txtSumaMinimaT2[i], logica.txtSumaMaximaT2[i]);
    }
}
