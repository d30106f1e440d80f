#include "frmEstadisticas.h"

#include <QFontDatabase>
#include <QTextBlock>
#include <QWindow>

#include "FiltroTeclas.h"
#include "ListaJuego.h"
#include "MarcoFiltro.h"
#include "SoltarFicheros.h"
#include "TextoFijo.h"
#include "TextoQt.h"
#include "modGeneral.h"

namespace {

constexpr int Distancias = 3;

// The counts of the logic's texts as the rest of the program shows counts.
QString Agrupado(const std::string& cuenta, char miles) {
    int32_t n = 0;
    return Q(LeerEntero(cuenta, n) ? FormatoMiles(n, miles) : cuenta);
}

QLabel* CrearDato(const char* nombre, const QString& masAncho) {
    auto* dato = new QLabel;
    dato->setObjectName(Q(nombre));
    QFont letra = dato->font();
    letra.setBold(true);
    dato->setFont(letra);
    dato->setMinimumWidth(dato->fontMetrics().horizontalAdvance(masAncho) + 4);
    dato->setTextInteractionFlags(Qt::TextSelectableByMouse);
    return dato;
}

Barras DatosGrafico(const LogicaEstadisticas& logica) {
    Barras datos;
    if (logica.Figuras.empty()) return datos;
    const bool veces = logica.optFiltro == Distancias;
    datos.titulo = Q(NombreEstadistica(logica.optFiltro)) + Q(" en ") +
                   Agrupado(logica.lblSorteosConsultados, logica.entorno.SeparadorMiles) + Q(" sorteos");
    datos.una = Q(veces ? "vez" : "aparición");
    datos.varias = Q(veces ? "veces" : "apariciones");
    for (const BarraEstadistica& figura : logica.Figuras) datos.barras.push_back({Q(figura.etiqueta), figura.veces});
    return datos;
}

} // namespace

frmEstadisticas::frmEstadisticas(EstadoTrabajo& trabajo, Entorno& entorno, QWidget* padre)
    : QDialog(padre, Qt::Window), logica(trabajo, entorno) {
    setObjectName(Q("frmEstadisticas"));
    setWindowTitle(Q("ESTADISTICAS - TOMBOLERA"));
    AceptarFicheros(
        *this, false, [this] { return !logica.Ocupado(); },
        [this](const auto& rutas) { Hacer([&] { logica.Soltar(rutas.front()); }); });
    auto* caja = new QVBoxLayout(this);
    caja->setContentsMargins(2 * Paso, 2 * Paso, 2 * Paso, 2 * Paso);
    caja->setSpacing(Paso);
    CrearFicheros(*caja);
    auto* centro = new QHBoxLayout;
    centro->setSpacing(2 * Paso);
    auto* columna = new QVBoxLayout;
    columna->setSpacing(Paso);
    centro->addLayout(columna);
    caja->addLayout(centro, 1);
    CrearConsultas(*columna);
    CrearEstadisticas(*columna);
    columna->addStretch();
    CrearDatos(*centro);
    CrearPie(*caja);
    espera = CrearPanelEspera(this, "Actualizando por favor espere ...");
    espera.lblProgressBar->setRange(0, 0);
    // The window manager would keep a window that depends on another in front of it.
    create();
    windowHandle()->setTransientParent(nullptr);
    Pintar();
    resize(std::max(1100, layout()->totalSizeHint().width()), layout()->totalSizeHint().height());
}

void frmEstadisticas::CrearFicheros(QVBoxLayout& caja) {
    QGridLayout* rejilla = CrearCaja(caja, "FICHERO DE SORTEOS");
    fraFicheros = static_cast<QGroupBox*>(rejilla->parentWidget());
    fraFicheros->setObjectName(Q("fraFicheros"));
    cboTipoJuego = new ListaJuego;
    cboTipoJuego->setToolTip(Q("Juego de la actualización y de las estadísticas"));
    connect(cboTipoJuego, &QComboBox::activated, this,
            [this](int juego) { Hacer([&] { logica.ElegirJuego(juego); }); });
    txtFicheroASCII = new QLineEdit;
    txtFicheroASCII->setObjectName(Q("txtFicheroASCII"));
    txtFicheroASCII->setAccessibleName(Q("Fichero de sorteos cargado"));
    txtFicheroASCII->setPlaceholderText(Q("Abra un fichero de sorteos, arrástrelo aquí o actualice desde Internet"));
    txtFicheroASCII->setReadOnly(true);
    const auto boton = [this](const char* nombre, const char* texto, const char* ayuda, auto accion) {
        return CrearBoton(nombre, texto, ayuda, [this, accion] { Hacer([&] { (logica.*accion)(); }); });
    };
    using L = LogicaEstadisticas;
    cmdAbrirEstadisticas =
        boton("cmdAbrirEstadisticas", "Abrir...",
              "Abrir fichero de estadísticas (Formato: 01,02,03,04,05,06,CC,RR 2010 1 J)", &L::cmdAbrirEstadisticas);
    cmdActualizar = boton("cmdActualizar", "Actualizar", "Traer de Internet todos los sorteos del juego",
                          &L::ActualizarDesdeInternet);
    imgINIFichero = boton("imgINIFichero", "Quitar", "Quitar el fichero cargado", &L::imgINIFichero);
    auto* fila = new QHBoxLayout;
    fila->setSpacing(Paso);
    fila->addWidget(cboTipoJuego);
    fila->addWidget(txtFicheroASCII, 1);
    for (QPushButton* b : {cmdAbrirEstadisticas, cmdActualizar, imgINIFichero}) fila->addWidget(b);
    rejilla->addLayout(fila, 0, 0);
    CrearResumen(*rejilla);
}

void frmEstadisticas::CrearResumen(QGridLayout& rejilla) {
    lblSorteosCargados = CrearDato("lblSorteosCargados", Q("13.983.816"));
    lblTemporadaDESDE = CrearDato("lblTemporadaDESDE", Q("0000"));
    lblSorteoDESDE = CrearDato("lblSorteoDESDE", Q("000"));
    lblTemporadaHASTA = CrearDato("lblTemporadaHASTA", Q("0000"));
    lblSorteoHASTA = CrearDato("lblSorteoHASTA", Q("000"));
    auto* fila = new QHBoxLayout;
    fila->setSpacing(Paso);
    const auto poner = [fila](const char* rotulo, QLabel* dato) {
        fila->addWidget(new QLabel(Q(rotulo)));
        fila->addWidget(dato);
    };
    poner("Sorteos cargados:", lblSorteosCargados);
    fila->addSpacing(3 * Paso);
    poner("Desde la temporada", lblTemporadaDESDE);
    poner("sorteo", lblSorteoDESDE);
    fila->addSpacing(3 * Paso);
    poner("Hasta la temporada", lblTemporadaHASTA);
    poner("sorteo", lblSorteoHASTA);
    fila->addStretch();
    rejilla.addLayout(fila, 1, 0);
}

void frmEstadisticas::CrearConsultas(QBoxLayout& columna) {
    QGridLayout* rejilla = CrearCaja(columna, "CONSULTA");
    fraConsultas = static_cast<QGroupBox*>(rejilla->parentWidget());
    fraConsultas->setObjectName(Q("fraConsultas"));
    consulta = CrearRejillaConsulta(*rejilla, ConsultaDe(logica));
    for (QLineEdit* campo : consulta.campos)
        InstalarIntro(*campo, [this](const std::string&) { cmdConsultar->click(); });
    cmdConsultar = CrearBoton("cmdConsultar", "Consultar", "Calcular la estadística de los sorteos pedidos (Intro)",
                              [this] { Hacer([this] { logica.cmdConsultar(); }); });
    cmdConsultar->setDefault(true);
    lblSorteosConsultados = CrearDato("lblSorteosConsultados", Q("13.983.816"));
    lblSorteosConsultados->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
    rejilla->addWidget(cmdConsultar, 4, 0, 1, 3);
    auto* consultados = new QHBoxLayout;
    consultados->addWidget(new QLabel(Q("Sorteos consultados:")), 1);
    consultados->addWidget(lblSorteosConsultados);
    rejilla->addLayout(consultados, 5, 0, 1, 3);
}

void frmEstadisticas::CrearEstadisticas(QBoxLayout& columna) {
    QGridLayout* rejilla = CrearCaja(columna, "ESTADISTICA");
    fraEstadisticas = static_cast<QGroupBox*>(rejilla->parentWidget());
    fraEstadisticas->setObjectName(Q("fraEstadisticas"));
    rejilla->setVerticalSpacing(Paso / 2);
    for (int i = 0; i < NEstadisticas; ++i) {
        auto* opcion = new QRadioButton(Q(NombreEstadistica(i)));
        opcion->setObjectName(NombreIndexado("optFiltro", i));
        opcion->setToolTip(Q("Elegir la estadística que se consulta"));
        connect(opcion, &QRadioButton::clicked, this, [this, i] { Hacer([&] { logica.ElegirEstadistica(i); }); });
        rejilla->addWidget(opcion, i, 0);
        optFiltro[static_cast<size_t>(i)] = opcion;
    }
}

void frmEstadisticas::CrearDatos(QBoxLayout& fila) {
    QGridLayout* rejilla = CrearCaja(fila, "DATOS");
    fraDatos = static_cast<QGroupBox*>(rejilla->parentWidget());
    fraDatos->setObjectName(Q("fraDatos"));
    const QFont fija = QFontDatabase::systemFont(QFontDatabase::FixedFont);
    lblDatos = new QLabel;
    lblDatos->setObjectName(Q("lblDatos"));
    lblDatos->setFont(fija);
    txtDatos = CrearTextoFijo("txtDatos", "Texto de la estadística", [this] { return logica.TextoTabla(); });
    int ancho = 0;
    for (int i = 0; i < NEstadisticas; ++i)
        ancho = std::max(ancho, QFontMetrics(fija).horizontalAdvance(Q(TituloEstadistica(i))));
    lblDatos->setFixedWidth(ancho + 4);
    txtDatos->setFixedWidth(ancho + 4);
    grafico = new GraficoBarras(Q("grafico"), Q("Gráfico de la estadística"), logica.entorno);
    grafico->ProponerFichero("estadisticas.png");
    grafico->AlPulsar([this](size_t i) { SenalarLinea(i); });
    rejilla->addWidget(lblDatos, 0, 0);
    rejilla->addWidget(txtDatos, 1, 0);
    rejilla->addWidget(grafico, 0, 1, 2, 1);
    rejilla->addLayout(CrearBotonesGrafico(*grafico), 2, 1);
    rejilla->setColumnStretch(1, 1);
    rejilla->setRowStretch(1, 1);
}

void frmEstadisticas::CrearPie(QVBoxLayout& caja) {
    imgVolver = CrearBoton("imgVolver", "Cerrar", "Cerrar las estadísticas", [this] { close(); });
    auto* pie = new QHBoxLayout;
    pie->addStretch();
    pie->addWidget(imgVolver);
    caja.addLayout(pie);
}

void frmEstadisticas::reject() {
    if (!logica.Ocupado()) QDialog::reject();
}

void frmEstadisticas::Hacer(const std::function<void()>& accion) {
    accion();
    PintarAbiertas();
}

// The text has a line for each bar.
void frmEstadisticas::SenalarLinea(size_t i) {
    QTextCursor cursor(txtDatos->document()->findBlockByNumber(static_cast<int>(i)));
    cursor.select(QTextCursor::LineUnderCursor);
    txtDatos->setTextCursor(cursor);
}

void frmEstadisticas::Pintar() {
    const bool libre = !logica.Ocupado();
    for (QWidget* w : {static_cast<QWidget*>(fraFicheros), static_cast<QWidget*>(fraConsultas),
                       static_cast<QWidget*>(fraEstadisticas), static_cast<QWidget*>(imgVolver)})
        w->setEnabled(libre);
    fraDatos->setEnabled(!logica.Actualizando);
    PintarFicheros();
    PintarRejillaConsulta(consulta, ConsultaDe(logica));
    for (int i = 0; i < NEstadisticas; ++i) {
        optFiltro[static_cast<size_t>(i)]->setChecked(i == logica.optFiltro);
        optFiltro[static_cast<size_t>(i)]->setEnabled(logica.Ofrece(i));
    }
    PintarDatos();
    PintarPanelEspera(espera, {.Visible = logica.Actualizando, .Fraccion = 0});
}

void frmEstadisticas::PintarFicheros() {
    cboTipoJuego->setCurrentIndex(logica.cboTipoJuego);
    PintarCampo(*txtFicheroASCII, logica.txtFicheroASCII);
    txtFicheroASCII->setToolTip(Q(logica.txtFicheroASCII));
    lblSorteosCargados->setText(Agrupado(logica.lblSorteosCargados, logica.entorno.SeparadorMiles));
    lblTemporadaDESDE->setText(Q(logica.lblTemporadaDESDE));
    lblSorteoDESDE->setText(Q(logica.lblSorteoDESDE));
    lblTemporadaHASTA->setText(Q(logica.lblTemporadaHASTA));
    lblSorteoHASTA->setText(Q(logica.lblSorteoHASTA));
}

void frmEstadisticas::PintarDatos() {
    lblSorteosConsultados->setText(Agrupado(logica.lblSorteosConsultados, logica.entorno.SeparadorMiles));
    lblDatos->setText(Q(logica.lblDatos));
    PintarTextoFijo(*txtDatos, logica.txtDatos);
    grafico->Poner(DatosGrafico(logica));
}

void frmEstadisticas::resizeEvent(QResizeEvent* evento) {
    QDialog::resizeEvent(evento);
    PintarPanelEspera(espera, {.Visible = logica.Actualizando, .Fraccion = 0});
}
