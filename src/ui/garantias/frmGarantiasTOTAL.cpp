#include "frmGarantiasTOTAL.h"

#include <QVBoxLayout>

#include <algorithm>

#include "Lista.h"
#include "MarcoFiltro.h"
#include "TablaTriangulo.h"
#include "TextoFijo.h"
#include "TextoQt.h"

namespace {

constexpr int AnchoBarra = 1000, LineasResumen = 7;

} // namespace

frmGarantiasTOTAL::frmGarantiasTOTAL(Sesion& sesion, Entorno& entorno, QWidget* padre)
    : QDialog(padre), logica(sesion, entorno) {
    QVBoxLayout* caja = EmpezarVentana(
        *this, "frmGarantiasTOTAL", "Cálculo de Garantías y de Porcentajes", "Cálculo de Garantías y de Porcentajes",
        "Qué asegura el sistema final caiga como caiga el sorteo: en qué parte de los casos hay premio de cada "
        "nivel, y cuántas apuestas de cada uno, de menos a más.");
    CrearOpciones(*caja);
    CrearOrdenes(*caja);
    paneles = new QStackedWidget;
    paneles->addWidget(CrearResultados());
    paneles->addWidget(CrearExtendidas());
    caja->addWidget(paneles, 1);
    CrearAvance(*caja);
    Pintar();
    AjustarTamanio(*this);
}

void frmGarantiasTOTAL::CrearOpciones(QVBoxLayout& caja) {
    picOpciones = new QGroupBox(Q("MEDIDA"));
    picOpciones->setObjectName(Q("picOpciones"));
    auto* rejilla = new QGridLayout(picOpciones);
    rejilla->setSpacing(Paso);
    for (int i = 0; i < 3; ++i) {
        if (i == 1) CrearAciertos(*rejilla); // the next one on the way of the Tab key
        QRadioButton*& opcion = optTipoGarantias[static_cast<size_t>(i)];
        opcion = new QRadioButton(Q(logica.lblTitulo[static_cast<size_t>(i)]));
        opcion->setObjectName(NombreIndexado("optTipoGarantias", i));
        opcion->setToolTip(i == SobreElTotal ? Q("Todos los sorteos que se pueden formar con los números de la base")
                                             : Q("Sólo los sorteos que son una de estas apuestas"));
        rejilla->addWidget(opcion, i, 0);
        connect(opcion, &QRadioButton::clicked, this, [this, i] { Hacer([this, i] { logica.CambiarTipo(i); }); });
    }
    lblTituloApuestas = new QLabel;
    lblTituloApuestas->setObjectName(Q("lblTituloApuestas"));
    QFont letra = lblTituloApuestas->font();
    letra.setBold(true);
    letra.setPointSizeF(letra.pointSizeF() * 1.2);
    lblTituloApuestas->setFont(letra);
    rejilla->addWidget(lblTituloApuestas, 0, 3, Qt::AlignRight);
    rejilla->setColumnStretch(2, 1);
    caja.addWidget(picOpciones);
}

void frmGarantiasTOTAL::CrearAciertos(QGridLayout& rejilla) {
    cboTipoGarantias = CrearLista("cboTipoGarantias", "Números del sorteo que se aciertan en la base");
    cboTipoGarantias->setToolTip(Q("Cuántos números del sorteo están entre los de la base"));
    for (int k = TodasLasGarantias; k <= SeisAciertos; ++k)
        cboTipoGarantias->addItem(Q(LogicaGarantias::TextoAciertos(k)));
    QSizePolicy queda = cboTipoGarantias->sizePolicy();
    queda.setRetainSizeWhenHidden(true);
    cboTipoGarantias->setSizePolicy(queda);
    connect(cboTipoGarantias, &QComboBox::activated, this,
            [this](int k) { Hacer([this, k] { logica.CambiarAciertos(k); }); });
    rejilla.addWidget(cboTipoGarantias, 0, 1);
}

void frmGarantiasTOTAL::CrearOrdenes(QVBoxLayout& caja) {
    imgCalcularGarantias = CrearBoton("imgCalcularGarantias", "Calcular", "Calcular Garantías y Porcentajes",
                                      [this] { Hacer([this] { logica.Calcular(); }); });
    imgGarantiasExtendidas =
        CrearBoton("imgGarantiasExtendidas", "Garantías extendidas", "Calcular Garantías extendidas",
                   [this] { Hacer([this] { logica.GarantiasExtendidas(); }); });
    imgVerInformeTabulado =
        CrearBoton("imgVerInformeTabulado", "Ver informe", "Ver informe de garantías en el Bloc de Notas",
                   [this] { Hacer([this] { logica.InformeGarantias(1); }); });
    cmdCopiarTabla = CrearBoton("cmdCopiarTabla", "Copiar tabla", "Copiar la tabla para pegarla en una hoja de cálculo",
                                [this] { AlPortapapeles(logica.resultados.TextoTabla(logica.Visibles())); });
    auto* fila = new QHBoxLayout;
    fila->setSpacing(Paso);
    fila->addWidget(imgCalcularGarantias);
    fila->addWidget(imgGarantiasExtendidas);
    fila->addStretch();
    fila->addWidget(imgVerInformeTabulado);
    fila->addWidget(cmdCopiarTabla);
    caja.addLayout(fila);
}

QWidget* frmGarantiasTOTAL::CrearResultados() {
    auto* panel = new QWidget;
    auto* dentro = new QVBoxLayout(panel);
    dentro->setContentsMargins(0, 0, 0, 0);
    dentro->setSpacing(Paso);
    tabla = CrearTablaTriangulo();
    txtResumen = CrearTextoFijo("txtResumen", "Resumen de garantías y porcentajes");
    txtResumen->setMinimumHeight((LineasResumen + 1) * txtResumen->fontMetrics().lineSpacing() + 2 * Paso);
    dentro->addWidget(tabla);
    dentro->addWidget(txtResumen, 1);
    return panel;
}

QWidget* frmGarantiasTOTAL::CrearExtendidas() {
    auto* panel = new QGroupBox(Q("GARANTIAS EXTENDIDAS"));
    panel->setObjectName(Q("picMiniGarantias"));
    auto* dentro = new QVBoxLayout(panel);
    dentro->setSpacing(Paso);
    dentro->addWidget(new QLabel(Q("«x si y»: de todos los grupos de y números de la base, la parte en la que alguna "
                                   "apuesta lleva al menos x de ellos.")));
    txtMiniGarantias = CrearTextoFijo("txtMiniGarantias", "Garantías extendidas");
    dentro->addWidget(txtMiniGarantias, 1);
    cmdCerrarpicMiniGarantias =
        CrearBoton("cmdCerrarpicMiniGarantias", "Volver a la tabla", "Cerrar las garantías extendidas",
                   [this] { Hacer([this] { logica.CerrarMiniGarantias(); }); });
    dentro->addWidget(cmdCerrarpicMiniGarantias, 0, Qt::AlignRight);
    return panel;
}

void frmGarantiasTOTAL::CrearAvance(QVBoxLayout& caja) {
    lblEspera = new QLabel;
    lblEspera->setObjectName(Q("lblEspera"));
    lblEspera->setMinimumWidth(lblEspera->fontMetrics().horizontalAdvance(Q("Calculando garantías y porcentajes ...")) +
                               Paso);
    lblProgressBar = new QProgressBar;
    lblProgressBar->setObjectName(Q("lblProgressBar"));
    lblProgressBar->setAccessibleName(Q("Avance del cálculo"));
    lblProgressBar->setTextVisible(false);
    lblProgressBar->setRange(0, AnchoBarra);
    cmdStop = CrearBoton("cmdStop", "Detener", "Detener el cálculo", [this] { logica.Detener(); });
    imgVolver = CrearBoton("imgVolver", "Cerrar", "Cerrar garantías", [this] { close(); });
    auto* fila = new QHBoxLayout;
    fila->setContentsMargins(0, Paso, 0, 0);
    fila->setSpacing(Paso);
    fila->addWidget(lblEspera);
    fila->addWidget(lblProgressBar, 1);
    fila->addWidget(cmdStop);
    fila->addSpacing(3 * Paso);
    fila->addWidget(imgVolver);
    caja.addLayout(fila);
}

void frmGarantiasTOTAL::Hacer(const std::function<void()>& accion) {
    accion();
    Pintar();
}

void frmGarantiasTOTAL::reject() {
    if (logica.PuedeCerrar()) QDialog::reject();
}

void frmGarantiasTOTAL::Pintar() {
    PintarOpciones();
    PintarTablaTriangulo(*tabla, logica);
    PintarTextoFijo(*txtResumen, logica.resultados.txtResumen);
    PintarTextoFijo(*txtMiniGarantias, logica.txtMiniGarantias);
    paneles->setCurrentIndex(logica.picVisorMiniGarantias ? 1 : 0);
    PintarAvance();
}

void frmGarantiasTOTAL::PintarOpciones() {
    const bool libre = logica.Libre();
    picOpciones->setEnabled(libre);
    for (size_t i = 0; i < optTipoGarantias.size(); ++i) {
        optTipoGarantias[i]->setText(Q(logica.lblTitulo[i]));
        optTipoGarantias[i]->setEnabled(logica.optHabilitado[i]);
    }
    optTipoGarantias[static_cast<size_t>(logica.optTipoGarantias)]->setChecked(true);
    cboTipoGarantias->setVisible(logica.cboTipoGarantiasVisible());
    cboTipoGarantias->setCurrentIndex(logica.cboTipoGarantias);
    lblTituloApuestas->setText(Q(logica.lblTituloApuestas));
    for (QPushButton* boton : {imgCalcularGarantias, imgGarantiasExtendidas, imgVerInformeTabulado, cmdCopiarTabla})
        boton->setEnabled(libre);
    txtResumen->setEnabled(libre);
    imgVolver->setEnabled(libre);
}

// The focus goes to the one button of a run, and after it to the way on.
void frmGarantiasTOTAL::PintarAvance() {
    lblEspera->setText(logica.picVentanaGarantias ? Q(logica.lblEspera) : QString());
    lblProgressBar->setValue(
        logica.picVentanaGarantias ? static_cast<int>(std::clamp(logica.lblProgressBar, 0.0, 1.0) * AnchoBarra) : 0);
    cmdStop->setEnabled(logica.Corriendo && !logica.detener);
    if (corria == logica.Corriendo) return;
    corria = logica.Corriendo;
    (corria ? cmdStop : logica.picVisorMiniGarantias ? cmdCerrarpicMiniGarantias : imgCalcularGarantias)->setFocus();
}
