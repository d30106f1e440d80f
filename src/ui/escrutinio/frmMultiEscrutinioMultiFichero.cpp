#include "frmMultiEscrutinioMultiFichero.h"

#include <QFileInfo>

#include "MarcoFiltro.h"
#include "SoltarFicheros.h"
#include "TextoFijo.h"
#include "TextoQt.h"

namespace {

constexpr int ColumnasResumen = 110; // and some room for the bar at the side
constexpr int FilasFicheros = 6, FilasInforme = 12;

} // namespace

frmMultiEscrutinioMultiFichero::frmMultiEscrutinioMultiFichero(Sesion& sesion, Entorno& entorno, QWidget* padre)
    : QDialog(padre), logica(sesion, entorno) {
    QVBoxLayout* fuera = EmpezarVentana(
        *this, "frmMultiEscrutinioMultiFichero", logica.Titulo(), "MultiEscrutinio MultiFichero",
        "Cuenta los aciertos de muchos ficheros de apuestas en una lista de sorteos, una fila por fichero. "
        "Los ficheros también pueden soltarse sobre la ventana, todos a la vez.");
    QVBoxLayout* caja = CrearCuerpo(*fuera, cuerpo);
    CrearSorteos(*caja);
    CrearFicheros(*caja);
    CrearResultados(*caja);
    CrearPie(*fuera);
    AceptarFicheros(
        *this, true, [this] { return !logica.Ocupada(); },
        [this](const auto& rutas) { Hacer([&] { logica.AnadirFicheros(rutas); }); });
    Pintar();
    AjustarTamanio(*this);
}

void frmMultiEscrutinioMultiFichero::CrearSorteos(QBoxLayout& donde) {
    QGridLayout* rejilla = CrearCaja(donde, "SORTEOS");
    auto* fila = new QHBoxLayout;
    sorteos =
        CrearFilaFichero(*fila, {"cmdDesdeFicheroSORTEOS", "Abrir ...",
                                 "Abrir la lista de sorteos, seis números por línea", "txtFicheroASCIISORTEOS",
                                 "lblApuCargadas", [this] { Hacer([this] { logica.cmdDesdeFicheroSORTEOS(); }); }});
    fila->addWidget(CrearBoton("imgINICombinacionSORTEOS", "Quitar", "Quitar la lista de sorteos",
                               [this] { Hacer([this] { logica.imgINICombinacionSORTEOS(); }); }));
    rejilla->addLayout(fila, 0, 0);
}

void frmMultiEscrutinioMultiFichero::CrearFicheros(QBoxLayout& donde) {
    QGridLayout* rejilla = CrearCaja(donde, "FICHEROS");
    lstFicheros = new QListWidget;
    lstFicheros->setObjectName(Q("lstFicheros"));
    lstFicheros->setAccessibleName(Q("Ficheros que se escrutan, en este orden"));
    lstFicheros->setAlternatingRowColors(true);
    lstFicheros->setUniformItemSizes(true);
    HabilitarCopia(*lstFicheros);
    lstFicheros->setTextElideMode(Qt::ElideMiddle);
    lstFicheros->setFixedHeight(FilasFicheros * (lstFicheros->fontMetrics().height() + 4));
    connect(lstFicheros, &QListWidget::currentRowChanged, this, [this](int fila) { logica.Seleccionado = fila; });
    const auto boton = [this](const char* nombre, const char* texto, const char* ayuda, auto accion) {
        return CrearBoton(nombre, texto, ayuda, [this, accion] { Hacer([&] { (logica.*accion)(); }); });
    };
    using L = LogicaMultiEscrutinioMultiFichero;
    auto* botones = new QVBoxLayout;
    botones->setSpacing(Paso);
    botones->addWidget(boton("cmdADD", "Añadir ...", "Añadir ficheros de apuestas a la lista", &L::cmdADD));
    botones->addWidget(boton("cmdDEL", "Quitar", "Quitar de la lista el fichero señalado", &L::cmdDEL));
    botones->addWidget(boton("cmdDELALL", "Quitar todos", "Vaciar la lista de ficheros", &L::cmdDELALL));
    lblFicheros = new QLabel;
    lblFicheros->setObjectName(Q("lblFicheros"));
    lblFicheros->setAlignment(Qt::AlignRight);
    botones->addWidget(lblFicheros);
    botones->addStretch();
    rejilla->addWidget(lstFicheros, 0, 0);
    rejilla->addLayout(botones, 0, 1);
    rejilla->setColumnStretch(0, 1);
}

void frmMultiEscrutinioMultiFichero::CrearResultados(QBoxLayout& donde) {
    QGridLayout* rejilla = CrearCaja(donde, "RESULTADOS");
    donde.setStretchFactor(rejilla->parentWidget(), 1);
    chkTipoListadoPremios = new QCheckBox(Q("Informe detallado de cada fichero"));
    chkTipoListadoPremios->setObjectName(Q("chkTipoListadoPremios"));
    chkTipoListadoPremios->setToolTip(
        Q("Escribe y abre un informe por fichero, con una línea por sorteo, en lugar de la tabla resumen"));
    connect(chkTipoListadoPremios, &QCheckBox::clicked, this,
            [this](bool si) { Hacer([&] { logica.chkTipoListadoPremios = si; }); });
    lblEstado = new QLabel;
    lblEstado->setObjectName(Q("lblEstado"));
    lblImportando = CrearCifra("lblImportando", "Apuestas importadas", "13.983.816");
    // The summary has the table's lines; the detail has others.
    txtInforme = CrearTextoFijo(
        "txtInforme", "Resultado del escrutinio, fichero a fichero", [this] { return Tabla(); },
        [this](int linea) { return logica.Resumido ? linea : -1; });
    txtInforme->setMinimumWidth(txtInforme->fontMetrics().horizontalAdvance(QLatin1Char('0')) * ColumnasResumen);
    txtInforme->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Ignored); // its own wish is too tall
    txtInforme->setMinimumHeight(FilasInforme * txtInforme->fontMetrics().lineSpacing());
    rejilla->addWidget(chkTipoListadoPremios, 0, 0);
    rejilla->addWidget(lblEstado, 0, 1);
    rejilla->addWidget(new QLabel(Q("Apuestas:")), 0, 2);
    rejilla->addWidget(lblImportando, 0, 3);
    rejilla->addWidget(txtInforme, 1, 0, 1, 4);
    rejilla->setColumnStretch(1, 1);
    lblEstado->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
}

void frmMultiEscrutinioMultiFichero::CrearPie(QBoxLayout& caja) {
    imgCopiar = CrearBoton("imgCopiar", "Copiar tabla", "Copiar los ficheros y sus aciertos como una tabla",
                           [this] { AlPortapapeles(Tabla()); });
    marcha = CrearPanelMarcha("Saltar el fichero que se está escrutando y seguir con el siguiente",
                              [this] { logica.cmdStop(); });
    imgVolver = CrearBoton("imgVolver", "Cerrar", "Cerrar el escrutinio", [this] { close(); });
    ordenes =
        CrearPieEscrutinio(caja,
                           {CrearBoton("imgEscrutar", "Escrutar", "Escrutar todos los ficheros de la lista",
                                       [this] { Hacer([this] { logica.imgEscrutar(); }); }),
                            CrearBoton("imgVerInformeResumenPremios", "Ver Informe", "Ver el resultado en un informe",
                                       [this] { Hacer([this] { logica.imgVerInformeResumenPremios(); }); }),
                            imgCopiar},
                           marcha, imgVolver);
}

std::string frmMultiEscrutinioMultiFichero::Tabla() const {
    return logica.Escrutados.empty() ? std::string() : TablaEscrutados(logica.Escrutados);
}

void frmMultiEscrutinioMultiFichero::Hacer(const std::function<void()>& accion) {
    accion();
    Pintar();
}

void frmMultiEscrutinioMultiFichero::reject() {
    if (logica.PuedeCerrar()) QDialog::reject();
}

// The rows are the paths by themselves; a long list is only built anew when it has changed.
void frmMultiEscrutinioMultiFichero::PintarFicheros() {
    QStringList rutas;
    for (const std::string& ruta : logica.lstFicheros) rutas << Q(ruta);
    QStringList mostradas;
    for (int i = 0; i < lstFicheros->count(); ++i) mostradas << lstFicheros->item(i)->text();
    if (mostradas != rutas) {
        const QSignalBlocker callada(lstFicheros);
        lstFicheros->clear();
        lstFicheros->addItems(rutas);
        lstFicheros->setCurrentRow(logica.Seleccionado);
    }
    lblFicheros->setText(QString::number(rutas.size()) + Q(rutas.size() == 1 ? " fichero" : " ficheros"));
}

void frmMultiEscrutinioMultiFichero::Pintar() {
    if (logica.Ocupada() && cuerpo->isEnabled()) focoAnterior = focusWidget();
    for (QWidget* w : std::initializer_list<QWidget*>{cuerpo, ordenes, imgVolver}) w->setEnabled(!logica.Ocupada());
    PintarFilaFichero(sorteos, logica.txtFicheroASCIISORTEOS, logica.lblApuCargadas);
    if (!logica.Corriendo) PintarFicheros();
    chkTipoListadoPremios->setChecked(logica.chkTipoListadoPremios);
    lblEstado->setText(Q(logica.lblEstado));
    lblImportando->setText(Q(logica.lblImportando));
    PintarTextoFijo(*txtInforme, logica.txtInforme);
    imgCopiar->setEnabled(!logica.Escrutados.empty());
    PintarPanelMarcha(marcha, logica.Escrutando ? logica.lblEscrutando : "", logica.Escrutando, logica.lblProgressBar);
    if (logica.Ocupada() || focoAnterior == nullptr) return;
    focoAnterior->setFocus();
    focoAnterior = nullptr;
}
