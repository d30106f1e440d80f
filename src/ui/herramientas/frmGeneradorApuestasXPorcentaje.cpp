#include "frmGeneradorApuestasXPorcentaje.h"

#include "BarraProgreso.h"
#include "FicheroPorcentajes.h"
#include "FiltroTeclas.h"
#include "Lista.h"
#include "MarcoFiltro.h"
#include "PieHerramienta.h"
#include "RejillaValores.h"
#include "SoltarFicheros.h"
#include "TextoQt.h"

namespace {

QStringList TextosLista() {
    return QStringList(Q("------")) + Enteros(1, 100);
}

} // namespace

frmGeneradorApuestasXPorcentaje::frmGeneradorApuestasXPorcentaje(EstadoTrabajo& trabajo, Entorno& entorno,
                                                                 QWidget* padre)
    : QDialog(padre), logica(trabajo, entorno) {
    QVBoxLayout* caja =
        EmpezarVentana(*this, "frmGeneradorApuestasXPorcentaje", "GENERAR APUESTAS ALEATORIAS POR PORCENTAJES",
                       "Apuestas al azar por porcentajes",
                       "Cada número elegido sale en el tanto por ciento de las apuestas que se le pone; el resto "
                       "de cada apuesta se completa al azar.");
    CrearListas(*caja);
    CrearPedido(*caja);
    caja->addWidget(new QLabel(Q("NOTA : Pueden generarse apuestas repetidas.")));
    barra = CrearBarraProgreso("Apuestas grabadas");
    caja->addWidget(barra);
    cmdGenerar = CrearBoton("cmdGenerar", "Generar apuestas", "Genera las apuestas y las guarda en un fichero",
                            [this] { logica.cmdGenerar(), Pintar(); });
    imgVolver = TerminarHerramienta(*this, *caja, *cmdGenerar);
    AceptarFicheros(
        *this, false, [this] { return !logica.Generando; }, [this](const auto& rutas) { Cargar(rutas.front()); });
    Pintar();
    AjustarTamanio(*this);
}

void frmGeneradorApuestasXPorcentaje::CrearListas(QVBoxLayout& caja) {
    caja.addWidget(new QLabel(Q("Porcentaje de apuestas de cada número")));
    listas = CrearRejillaValores(logica.trabajo.NumeroMaximo(), [this](int n) { return CrearLista(n); });
    caja.addWidget(listas);
}

QComboBox* frmGeneradorApuestasXPorcentaje::CrearLista(int n) {
    static const QStringList textos = TextosLista();
    QComboBox* lista =
        ::CrearLista("cboPorcentaje_" + std::to_string(n - 1), "Porcentaje del " + std::to_string(n), textos);
    lista->setPalette(ColoresSobrePapel(palette()));
    connect(lista, &QComboBox::activated, this, [this, n](int porcentaje) {
        logica.cboPorcentaje[static_cast<size_t>(n)] = porcentaje;
        Pintar();
    });
    cboPorcentaje[static_cast<size_t>(n)] = lista;
    return lista;
}

void frmGeneradorApuestasXPorcentaje::CrearPedido(QVBoxLayout& caja) {
    auto* fila = new QHBoxLayout;
    fila->setSpacing(Paso);
    lblTitNumeros = new QLabel;
    lblTitNumeros->setObjectName(Q("lblTitNumeros"));
    lblSumaPorcentajes = new QLabel;
    lblSumaPorcentajes->setObjectName(Q("lblSumaPorcentajes"));
    lblSumaPorcentajes->setMinimumWidth(lblSumaPorcentajes->fontMetrics().horizontalAdvance(Q("4900 %")));
    lblSumaPorcentajes->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
    lblSumaPorcentajes->setToolTip(Q("La suma ha de ser menor de 600"));
    fila->addWidget(lblTitNumeros);
    fila->addStretch();
    fila->addWidget(new QLabel(Q("Suma de los porcentajes :")));
    fila->addWidget(lblSumaPorcentajes);
    caja.addLayout(fila);

    auto* pedido = new QHBoxLayout;
    pedido->setSpacing(Paso);
    cmdCargar = CrearBoton("cmdCargar", "Cargar porcentajes", "Toma los porcentajes de un fichero", [this] {
        const std::string ruta = PedirPorcentajesAbrir(logica.entorno);
        if (!ruta.empty()) Cargar(ruta);
    });
    txtApuestas = CrearCampoNumero(
        Q("txtApuestas"), Q("Cuántas apuestas se generan"), [this](const std::string& t) { logica.txtApuestas = t; },
        [] {});
    auto* etiqueta = new QLabel(Q("Apuestas a generar"));
    etiqueta->setBuddy(txtApuestas);
    pedido->addWidget(cmdCargar);
    pedido->addStretch();
    pedido->addWidget(etiqueta);
    pedido->addWidget(txtApuestas);
    caja.addLayout(pedido);
}

void frmGeneradorApuestasXPorcentaje::Cargar(const std::string& ruta) {
    logica.CargarPorcentajes(ruta);
    Pintar();
}

void frmGeneradorApuestasXPorcentaje::Pintar() {
    const bool libre = !logica.Generando;
    for (size_t n = 1; n < cboPorcentaje.size() && cboPorcentaje[n] != nullptr; ++n)
        cboPorcentaje[n]->setCurrentIndex(logica.cboPorcentaje[n]);
    lblTitNumeros->setText(Q(logica.lblTitNumeros()));
    lblSumaPorcentajes->setText(Q(logica.lblSumaPorcentajes()) + Q(" %"));
    PintarCampo(*txtApuestas, logica.txtApuestas);
    for (QWidget* w : {listas, static_cast<QWidget*>(cmdCargar), static_cast<QWidget*>(txtApuestas),
                       static_cast<QWidget*>(cmdGenerar), static_cast<QWidget*>(imgVolver)})
        w->setEnabled(libre);
    PintarBarraProgreso(*barra, logica.lblProgressBar);
}

void frmGeneradorApuestasXPorcentaje::reject() {
    if (!logica.Generando) QDialog::reject();
}
