#include "frmFiltroTERMINACIONES.h"

#include "FilaAciertos.h"
#include "FiltroTeclas.h"
#include "PanelReparto.h"
#include "TextoQt.h"
#include "frmAciertos.h"

frmFiltroTERMINACIONES::frmFiltroTERMINACIONES(Sesion& sesion, Entorno& entorno, QWidget* padre)
    : QDialog(padre), logica{sesion, entorno} {
    marco = CrearMarcoFiltro(*this, "frmFiltroTERMINACIONES",
                             "Cuántos números pueden terminar en cada cifra, cómo pueden repartirse entre las "
                             "terminaciones y cuánto pueden sumar éstas.",
                             logica.marco);
    auto* columnas = new QHBoxLayout;
    columnas->setSpacing(2 * Paso);
    auto* izquierda = new QVBoxLayout;
    auto* derecha = new QVBoxLayout;
    columnas->addLayout(izquierda);
    columnas->addLayout(derecha);
    marco.contenido->addLayout(columnas);
    CrearTerminados(*izquierda);
    CrearFiguras(*derecha);
    CrearSuma(*derecha);
    izquierda->addStretch();
    derecha->addStretch();
    PonerReparto(marco, *marco.centro,
                 {.k = kTERMINACIONES,
                  .sesion = sesion,
                  .entorno = entorno,
                  .Volcar = [this](Condiciones& c) { logica.Volcar(c); },
                  .AlPulsar = [this](size_t a, int32_t v) { logica.PulsarBarra(a, v), Pintar(); }});
    TerminarMarco(marco, *this, logica.marco);
    logica.Abrir();
    Pintar();
}

void frmFiltroTERMINACIONES::CrearTerminados(QBoxLayout& donde) {
    QGridLayout* rejilla = CrearCaja(donde, "ACIERTOS POR TERMINACION");
    for (size_t d = 0; d < txtAciertos.size(); ++d) {
        const int digito = static_cast<int>(d);
        const QString etiqueta = Q("Terminados en ") + QString::number(digito);
        txtAciertos[d] = CrearFilaAciertos(*rejilla, digito, etiqueta, NombreIndexado("txtAciertos", digito),
                                           NombreIndexado("cmdModificar", digito), [this, d, etiqueta] {
                                               LogicaAciertos aciertos = logica.AbrirModificar(d);
                                               ElegirAciertos(aciertos, etiqueta, this);
                                               logica.CerrarModificar(d, aciertos);
                                               Pintar();
                                           });
    }
}

void frmFiltroTERMINACIONES::CrearFiguras(QBoxLayout& donde) {
    figuras = CrearCajasFigura(*CrearCaja(donde, "FIGURAS"), "chkFigura", 1, FigurasDeTERMINACIONES,
                               EjemplosTERMINACIONES, [this](size_t i, bool marcada) {
                                   logica.PulsarFigura(i, marcada);
                                   Pintar();
                               });
}

void frmFiltroTERMINACIONES::CrearSuma(QBoxLayout& donde) {
    QGridLayout* rejilla = CrearCaja(donde, "SUMA DE TERMINACIONES");
    using L = LogicaFiltroTERMINACIONES;
    const auto campo = [this](const char* nombre, const char* ayuda, void (L::*cambiar)(const std::string&)) {
        return CrearCampoNumero(
            Q(nombre), Q(ayuda), [this, cambiar](const std::string& texto) { (logica.*cambiar)(texto), Pintar(); },
            [this] { logica.marco.ActivarFiltro(), Pintar(); });
    };
    txtSumaTerminacionesMinimo = campo("txtSumaTerminacionesMinimo", "Suma de terminaciones mínima", &L::CambiarMinimo);
    txtSumaTerminacionesMaximo = campo("txtSumaTerminacionesMaximo", "Suma de terminaciones máxima", &L::CambiarMaximo);
    rejilla->addWidget(new QLabel(Q("Mínimo valor permitido 2(10,11,20,30,40,41)")), 0, 0);
    rejilla->addWidget(txtSumaTerminacionesMinimo, 0, 1);
    rejilla->addWidget(new QLabel(Q("Máximo valor permitido 53(09,19,29,39,48,49)")), 1, 0);
    rejilla->addWidget(txtSumaTerminacionesMaximo, 1, 1);
    rejilla->setColumnStretch(0, 1);
}

void frmFiltroTERMINACIONES::reject() {
    if (logica.PuedeCerrar()) QDialog::reject();
}

void frmFiltroTERMINACIONES::Pintar() {
    PintarMarco(marco, logica.marco);
    for (size_t d = 0; d < txtAciertos.size(); ++d) txtAciertos[d]->setText(Q(logica.txtAciertos[d]));
    PintarCajasFigura(figuras, logica.chkFigura);
    PintarCampo(*txtSumaTerminacionesMinimo, logica.txtSumaTerminacionesMinimo);
    PintarCampo(*txtSumaTerminacionesMaximo, logica.txtSumaTerminacionesMaximo);
}
