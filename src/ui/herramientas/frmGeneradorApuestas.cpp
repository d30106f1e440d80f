#include "frmGeneradorApuestas.h"

#include "BarraProgreso.h"
#include "FiltroTeclas.h"
#include "MarcoFiltro.h"
#include "PieHerramienta.h"
#include "TextoQt.h"

frmGeneradorApuestas::frmGeneradorApuestas(EstadoTrabajo& trabajo, Entorno& entorno, QWidget* padre)
    : QDialog(padre), logica(trabajo, entorno) {
    QVBoxLayout* caja = EmpezarVentana(
        *this, "frmGeneradorApuestas", "GENERAR APUESTAS ALEATORIAS POR NUMEROS", "Apuestas al azar por números",
        "Elige al azar, sin repetirlas, apuestas de las que se forman con los números marcados.");
    auto* fila = new QHBoxLayout;
    fila->setSpacing(2 * Paso);
    boleto = CrearRejillaNumeros(this, "lblNumero", {[this](int n) { logica.PulsarNumero(n), Pintar(); }, {}, {}});
    fila->addWidget(boleto.papel);
    fila->addWidget(CrearOpciones(), 1);
    caja->addLayout(fila);
    barra = CrearBarraProgreso("Apuestas grabadas");
    caja->addWidget(barra);
    cmdGenerar = CrearBoton("cmdGenerar", "Generar apuestas", "Genera las apuestas y las guarda en un fichero",
                            [this] { logica.cmdGenerar(), Pintar(); });
    imgVolver = TerminarHerramienta(*this, *caja, *cmdGenerar);
    Pintar();
    AjustarTamanio(*this);
}

QWidget* frmGeneradorApuestas::CrearOpciones() {
    opciones = new QWidget;
    auto* columna = new QVBoxLayout(opciones);
    columna->setContentsMargins(0, 0, 0, 0);
    columna->setSpacing(Paso);
    QGridLayout* azar = CrearCaja(*columna, "Marcar números");
    PonerAzar(*azar, logica.trabajo.NumeroMaximo(), logica.cboNumeros, [this] { logica.cmdAlazar(), Pintar(); });
    QGridLayout* cuentas = CrearCaja(*columna, "Apuestas");
    lblTipoCombinacion = CrearCuenta(*cuentas, 0, "Números marcados", "lblTipoCombinacion");
    lblApuestasIniciales = CrearCuenta(*cuentas, 1, "Se pueden formar", "lblApuestasIniciales");
    lblApuestasIniciales->setMinimumWidth(
        lblApuestasIniciales->fontMetrics().horizontalAdvance(Q("13.983.816 Apuestas")));
    txtApuestas = CrearCampoNumero(
        Q("txtApuestas"), Q("Cuántas apuestas se generan"), [this](const std::string& t) { logica.txtApuestas = t; },
        [] {});
    auto* etiqueta = new QLabel(Q("Apuestas a generar"));
    etiqueta->setBuddy(txtApuestas);
    cuentas->addWidget(etiqueta, 2, 0);
    cuentas->addWidget(txtApuestas, 2, 1, Qt::AlignRight);
    columna->addStretch();
    return opciones;
}

void frmGeneradorApuestas::Pintar() {
    const bool libre = !logica.Generando;
    PintarRejillaNumeros(boleto, logica.lblNumero, logica.trabajo.NumeroMaximo(), libre);
    lblTipoCombinacion->setText(Q(logica.lblTipoCombinacion()));
    lblApuestasIniciales->setText(Q(logica.lblApuestasIniciales()));
    PintarCampo(*txtApuestas, logica.txtApuestas);
    opciones->setEnabled(libre);
    cmdGenerar->setEnabled(libre);
    imgVolver->setEnabled(libre);
    PintarBarraProgreso(*barra, logica.lblProgressBar);
}

void frmGeneradorApuestas::reject() {
    if (!logica.Generando) QDialog::reject();
}
