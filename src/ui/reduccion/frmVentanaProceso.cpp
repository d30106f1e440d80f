#include "frmVentanaProceso.h"

#include <QTimer>

#include <algorithm>
#include <cmath>

#include "CopiarTabla.h"
#include "GraficoHallazgos.h"
#include "LogicaReduccion.h"
#include "MarcoFiltro.h"
#include "PanelContadores.h"
#include "Pintores.h"
#include "TextoQt.h"
#include "frmGarantiasTOTAL.h"
#include "modGeneral.h"

namespace {

constexpr int AnchoBarra = 3300; // of the full bar, in its own units

// Above this the bar would only flicker.
constexpr double CiclosQueSeVen = 4;

std::string Frase(const AjustesReduccion& ajustes) {
    return LogicaReduccion::TextoTipoReduccion(ajustes.TipoReduccion) +
           (ajustes.ActivarCiclos != 0 ? ", por ciclos: busca sistemas cada vez más pequeños hasta que se detiene."
                                       : ", en un solo ciclo.");
}

QString TextoTiempo(double segundos, char decimal) {
    const auto decimas = static_cast<qint64>(segundos * 10);
    if (segundos < 60)
        return QString::number(decimas / 10) + QLatin1Char(decimal) + QString::number(decimas % 10) + Q(" s");
    return QString::number(decimas / 600) + Q(" min ") + Q(Formato00(static_cast<int>(decimas / 10 % 60))) + Q(" s");
}

QString TextoEstado(const LogicaVentanaProceso& l) {
    if (l.Corriendo) return l.detener ? Q("Terminando ...") : l.Mejorando ? Q("Mejorando ...") : Q("Reduciendo ...");
    if (l.NApuestasReduccion == 0) return Q("Preparado");
    return l.MejorApuestas <= l.NApuestasReduccion ? Q("Terminado") : Q("Detenido sin ningún sistema");
}

QLabel* CrearDato(QGridLayout& rejilla, std::string_view nombre, std::string_view titulo, std::string_view masAncho) {
    const int fila = rejilla.rowCount();
    auto* dato = new QLabel;
    QFont letra = dato->font();
    letra.setBold(true);
    dato->setFont(letra);
    dato->setObjectName(Q(nombre));
    dato->setAccessibleName(Q(titulo));
    dato->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
    dato->setMinimumWidth(dato->fontMetrics().horizontalAdvance(Q(masAncho)) + 4);
    rejilla.addWidget(new QLabel(Q(titulo)), fila, 0);
    rejilla.addWidget(dato, fila, 1);
    return dato;
}

} // namespace

frmVentanaProceso::frmVentanaProceso(LogicaVentanaProceso& l, QWidget* padre) : QDialog(padre), logica(l) {
    QVBoxLayout* caja = EmpezarVentana(*this, "frmVentanaProceso", "Proceso de reducción", "Proceso de reducción",
                                       Frase(logica.sesion.trabajo.Reduccion));
    CrearContadores(*caja);
    CrearCentro(*caja);
    CrearPie(*caja);
    HabilitarCopia(*this, [this] { return logica.TextoTabla(); });
    Pintar();
}

void frmVentanaProceso::CrearContadores(QVBoxLayout& caja) {
    auto* panel = new QWidget;
    auto* fila = new QHBoxLayout(panel);
    fila->setContentsMargins(0, 0, 0, 0);
    fila->setSpacing(2 * Paso);
    lblApuestasInicialesVP = CrearContador(panel, fila, Q("lblApuestasInicialesVP"), Q("INICIALES"));
    PonerFlecha(panel, fila);
    lblApuestasCondicionadasVP = CrearContador(panel, fila, Q("lblApuestasCondicionadasVP"), Q("CONDICIONADAS"));
    PonerFlecha(panel, fila);
    lblApuestasVP = CrearContador(panel, fila, Q("lblApuestasVP"), Q("REDUCIDAS"));
    caja.addWidget(panel);
}

void frmVentanaProceso::CrearCentro(QVBoxLayout& caja) {
    fraPorcentajes = new QGroupBox;
    fraPorcentajes->setObjectName(Q("fraPorcentajes"));
    auto* dentro = new QVBoxLayout(fraPorcentajes);
    porcentajes = CrearRejillaPorcentajes(logica.sesion.trabajo.NumeroMaximo());
    dentro->addWidget(porcentajes.papel);
    dentro->addStretch();
    auto* derecha = new QVBoxLayout;
    derecha->setSpacing(Paso);
    derecha->addWidget(CrearMarcha());
    auto* hallazgos = new QGroupBox(Q("Sistemas encontrados"));
    grafico = new GraficoHallazgos(logica);
    (new QVBoxLayout(hallazgos))->addWidget(grafico);
    derecha->addWidget(hallazgos, 1);
    auto* columnas = new QHBoxLayout;
    columnas->setSpacing(Paso);
    columnas->addWidget(fraPorcentajes);
    columnas->addLayout(derecha, 1);
    caja.addLayout(columnas, 1);
}

QGroupBox* frmVentanaProceso::CrearMarcha() {
    auto* marcha = new QGroupBox(Q("Proceso"));
    auto* rejilla = new QGridLayout(marcha);
    rejilla->setSpacing(Paso);
    lblDirecto = CrearDato(*rejilla, "lblDirecto", "Apuestas :", "En directo");
    lblCiclos = CrearDato(*rejilla, "lblCiclos", "Ciclo Actual :", "999999999");
    lblTiempo = CrearDato(*rejilla, "lblTiempo", "Tiempo :", "9999 min 59 s");
    lblVelocidad = CrearDato(*rejilla, "lblVelocidad", "Ciclos por segundo :", "9.999.999");
    lblCota = CrearDato(*rejilla, "lblCota", "Mínimo demostrado :", "99.999.999");
    lblHuecos = CrearDato(*rejilla, "lblHuecos", "Huecos :", "-");
    rejilla->setColumnStretch(0, 1);
    return marcha;
}

void frmVentanaProceso::CrearPie(QVBoxLayout& caja) {
    lblEstado = new QLabel;
    lblEstado->setObjectName(Q("lblEstado"));
    lblEstado->setMinimumWidth(lblEstado->fontMetrics().horizontalAdvance(Q("Detenido sin ningún sistema")) + 4);
    lblProgressBar = new QProgressBar;
    lblProgressBar->setObjectName(Q("lblProgressBar"));
    lblProgressBar->setAccessibleName(Q("Avance del ciclo"));
    lblProgressBar->setTextVisible(false);
    auto* avance = new QHBoxLayout;
    avance->setSpacing(Paso);
    avance->addWidget(lblEstado);
    avance->addWidget(lblProgressBar, 1);
    caja.addLayout(avance);

    const auto boton = [this](std::string_view nombre, std::string_view texto, std::string_view ayuda,
                              void (LogicaVentanaProceso::*orden)()) {
        return CrearBoton(nombre, texto, ayuda, [this, orden] { Hacer([this, orden] { (logica.*orden)(); }); });
    };
    imgCalcular = boton("imgCalcular", "Repetir", "Repetir la misma reducción", &LogicaVentanaProceso::Calcular);
    imgDetener = boton("imgDetener", "Detener", "Detener y quedarse con el mejor sistema encontrado",
                       &LogicaVentanaProceso::Detener);
    imgMejorar = CrearBoton("imgMejorar", "Mejorar", "Buscar un sistema más pequeño con la misma garantía",
                            [this] { Hacer([this] { logica.Mejorar(); }); });
    imgHuecos = boton("imgHuecos", "Ver huecos", "Ver las apuestas condicionadas que el sistema deja sin cubrir",
                      &LogicaVentanaProceso::VerHuecos);
    imgVerPorcentajes = boton("imgVerPorcentajes", "Ver Porcentajes", "Ver los porcentajes en un informe",
                              &LogicaVentanaProceso::VerPorcentajes);
    imgGarantias = CrearBoton("imgGarantias", "Garantías", "Garantías y porcentajes del sistema encontrado",
                              [this] { Hacer([this] { AbrirGarantias(); }); });
    imgVolver = boton("imgVolver", "Volver", "Volver sin grabar las apuestas", &LogicaVentanaProceso::Volver);
    imgCalculoDefinitivo = boton("imgCalculoDefinitivo", "Cálculo Definitivo", "Aceptar el sistema y grabar apuestas",
                                 &LogicaVentanaProceso::CalculoDefinitivo);
    auto* pie = new QHBoxLayout;
    pie->setContentsMargins(0, Paso, 0, 0);
    for (QPushButton* b : {imgCalcular, imgMejorar, imgDetener, imgVerPorcentajes, imgHuecos, imgGarantias})
        pie->addWidget(b);
    pie->addStretch();
    pie->addWidget(imgVolver);
    pie->addWidget(imgCalculoDefinitivo);
    caja.addLayout(pie);
}

void frmVentanaProceso::Hacer(const std::function<void()>& accion) {
    accion();
    Pintar();
    if (logica.Cerrada) done(QDialog::Accepted);
}

void frmVentanaProceso::AbrirGarantias() {
    if (!logica.VerGarantias()) return;
    frmGarantiasTOTAL garantias(logica.sesion, logica.entorno, this);
    MostrarModal(garantias, [&garantias] { garantias.Pintar(); });
}

// A run takes the event loop, so that the first one waits for the window to be on the screen.
void frmVentanaProceso::paintEvent(QPaintEvent* evento) {
    QDialog::paintEvent(evento);
    if (arrancada) return;
    arrancada = true;
    QTimer::singleShot(0, this, [this] { Hacer([this] { logica.Activar(); }); });
}

void frmVentanaProceso::reject() {
    if (logica.PuedeCerrar()) QDialog::reject();
}

void frmVentanaProceso::Pintar() {
    lblApuestasInicialesVP->setText(Q(logica.lblApuestasInicialesVP));
    lblApuestasCondicionadasVP->setText(Q(logica.lblApuestasCondicionadasVP));
    lblApuestasVP->setText(Q(logica.lblApuestasVP));
    if (const QString titulo = Q(logica.fraPorcentajes); fraPorcentajes->title() != titulo)
        fraPorcentajes->setTitle(titulo);
    PintarRejillaPorcentajes(porcentajes, logica.lblN, logica.lblNConApuestas);
    grafico->Refrescar();
    PintarMarcha();
    PintarBotones();
}

void frmVentanaProceso::PintarMarcha() {
    lblDirecto->setText(Q(logica.lblDirecto));
    lblCiclos->setText(Q(logica.lblCiclos));
    lblTiempo->setText(
        TextoTiempo(logica.Mejorando ? logica.SegundosMejora : logica.Segundos, logica.entorno.SeparadorDecimal));
    lblVelocidad->setText(
        Q(FormatoMiles(static_cast<int64_t>(std::round(logica.CiclosPorSegundo())), logica.entorno.SeparadorMiles)));
    lblCota->setText(logica.lblCota.empty() ? Q("-") : Q(logica.lblCota));
    lblHuecos->setText(logica.lblHuecos.empty() ? Q("-") : Q(logica.lblHuecos));
    lblEstado->setText(TextoEstado(logica));
    const bool rapida = logica.Mejorando || logica.CiclosPorSegundo() > CiclosQueSeVen;
    const bool veloz = logica.Corriendo && !logica.detener && rapida;
    lblProgressBar->setRange(0, veloz ? 0 : AnchoBarra);
    lblProgressBar->setValue(veloz ? 0 : static_cast<int>(std::clamp(logica.lblProgressBar, 0.0, 1.0) * AnchoBarra));
}

// The focus goes to the one button of a run, and after it to the one that loses nothing.
void frmVentanaProceso::PintarBotones() {
    imgCalcular->setEnabled(logica.imgCalcular);
    imgVerPorcentajes->setEnabled(logica.imgVerPorcentajes);
    imgGarantias->setEnabled(logica.imgGarantias);
    imgMejorar->setEnabled(logica.imgMejorar);
    imgHuecos->setEnabled(logica.imgHuecos);
    imgVolver->setEnabled(logica.imgVolver);
    imgCalculoDefinitivo->setEnabled(logica.imgCalculoDefinitivo);
    imgDetener->setEnabled(logica.imgDetener);
    if (corria != logica.Corriendo) (logica.Corriendo ? imgDetener : imgVolver)->setFocus();
    corria = logica.Corriendo;
}
