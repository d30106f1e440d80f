#include "frmFiltroSencillo.h"

#include "DibujoBoleto.h"
#include "FilaAciertos.h"
#include "PanelReparto.h"
#include "TextoQt.h"
#include "frmAciertos.h"

namespace {

// Lines of about fifty letters.
constexpr int AnchoDefinicion = 340;

} // namespace

frmFiltroSencillo::frmFiltroSencillo(Sesion& sesion, Entorno& entorno, const FiltroSencillo& filtro, QWidget* padre)
    : QDialog(padre), logica{sesion, filtro} {
    marco = CrearMarcoFiltro(*this, filtro.Ventana, filtro.Frase, logica.marco);
    auto* columnas = new QHBoxLayout;
    columnas->setSpacing(2 * Paso);
    auto* izquierda = new QVBoxLayout;
    auto* derecha = new QVBoxLayout;
    columnas->addLayout(izquierda);
    columnas->addLayout(derecha);
    marco.contenido->addLayout(columnas);
    if (!filtro.Tablas.empty()) CrearTablas(*izquierda);
    if (!filtro.Casillas.empty()) CrearCasillas(filtro.Tablas.empty() ? *izquierda : *derecha);
    if (!filtro.CabeceraEjemplos.empty()) CrearEjemplos(*izquierda);
    if (filtro.Dibujo != nullptr) CrearDibujo(*derecha);
    izquierda->addStretch();
    derecha->addStretch();
    PonerReparto(marco, *marco.centro,
                 {.k = filtro.Fila,
                  .sesion = sesion,
                  .entorno = entorno,
                  .Volcar = [this](Condiciones& c) { logica.Volcar(c); },
                  .AlPulsar = [this](size_t a, int32_t v) { logica.PulsarBarra(a, v), Pintar(); }});
    TerminarMarco(marco, *this, logica.marco);
    logica.Abrir();
    Pintar();
}

void frmFiltroSencillo::CrearTablas(QBoxLayout& donde) {
    QGridLayout* rejilla = CrearCaja(donde, logica.filtro.CabeceraTablas);
    for (size_t i = 0; i < logica.filtro.Tablas.size(); ++i) {
        const FilaAciertosFiltro& tabla = logica.filtro.Tablas[i];
        const QString etiqueta = Q(tabla.Etiqueta);
        txtAciertos.push_back(CrearFilaAciertos(*rejilla, static_cast<int>(i), etiqueta, Q(tabla.Texto), Q(tabla.Boton),
                                                [this, i, etiqueta] {
                                                    LogicaAciertos aciertos = logica.AbrirModificar(i);
                                                    ElegirAciertos(aciertos, etiqueta, this);
                                                    logica.CerrarModificar(i, aciertos);
                                                    Pintar();
                                                }));
    }
}

void frmFiltroSencillo::CrearCasillas(QBoxLayout& donde) {
    const FiltroSencillo& filtro = logica.filtro;
    casillas =
        CrearCajasFigura(*CrearCaja(donde, filtro.CabeceraCasillas), filtro.NombreCasillas, filtro.PrimeraCasilla,
                         filtro.Casillas, filtro.EjemplosCasillas, [this](size_t i, bool marcada) {
                             logica.PulsarCasilla(i, marcada);
                             Pintar();
                         });
}

void frmFiltroSencillo::CrearEjemplos(QBoxLayout& donde) {
    const FiltroSencillo& filtro = logica.filtro;
    QGridLayout* rejilla = CrearCaja(donde, filtro.CabeceraEjemplos);
    int fila = 0;
    if (!filtro.Definicion.empty()) {
        auto* definicion = new QLabel(Q(filtro.Definicion));
        definicion->setWordWrap(true);
        definicion->setMinimumWidth(AnchoDefinicion);
        rejilla->addWidget(definicion, fila++, 0, 1, 2);
    }
    for (const EjemploFiltro& ejemplo : filtro.Ejemplos) {
        auto* texto = ejemplo.Valor.empty() ? CrearTextoFijo(ejemplo.Texto) : new QLabel(Q(ejemplo.Texto));
        rejilla->addWidget(texto, fila, 0);
        if (!ejemplo.Valor.empty()) rejilla->addWidget(CrearTextoFijo(ejemplo.Valor), fila, 1);
        ++fila;
    }
}

void frmFiltroSencillo::CrearDibujo(QBoxLayout& donde) {
    const FiltroSencillo& filtro = logica.filtro;
    QGridLayout* rejilla = CrearCaja(donde, filtro.PieDibujo);
    rejilla->addWidget(new DibujoBoleto(filtro.Dibujo, Q(filtro.PieDibujo)), 0, 0, Qt::AlignHCenter);
}

void frmFiltroSencillo::reject() {
    if (logica.PuedeCerrar()) QDialog::reject();
}

void frmFiltroSencillo::Pintar() {
    PintarMarco(marco, logica.marco);
    for (size_t i = 0; i < txtAciertos.size(); ++i) txtAciertos[i]->setText(Q(logica.txtAciertos[i]));
    PintarCajasFigura(casillas, logica.chkFigura);
}
