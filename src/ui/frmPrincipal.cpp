#include "frmPrincipal.h"

#include <QApplication>
#include <QClipboard>
#include <QCloseEvent>
#include <QFileInfo>
#include <QHBoxLayout>
#include <QTreeWidget>

#include "CopiarTabla.h"
#include "DialogosFiltro.h"
#include "Lista.h"
#include "SoltarFicheros.h"
#include "TextoQt.h"
#include "TextosAlVuelo.h"
#include "Ventanas.h"
#include "VistaFiltros.h"
#include "frmAlazar.h"
#include "tema.h"

namespace {

constexpr int AnchoBoleto = 360;

// A turn of the wheel over a list would change the game and clear the ticket.
class SinRueda final : public QObject {
  public:
    using QObject::QObject;
    bool eventFilter(QObject*, QEvent* evento) override { return evento->type() == QEvent::Wheel; }
};

QComboBox* CrearListaSinRueda(std::string_view nombre, std::string_view ayuda, const QStringList& textos) {
    QComboBox* lista = CrearLista(nombre, ayuda, textos);
    lista->installEventFilter(new SinRueda(lista));
    return lista;
}

} // namespace

frmPrincipal::frmPrincipal(Sesion& sesion, Entorno& entorno)
    : logica{sesion, entorno}, alVuelo(sesion, [this] { PintarAlVuelo(); }), pintor([this] { Pintar(); }) {
    setObjectName(Q("frmPrincipal"));
    setWindowIcon(IconoPrograma());
    AceptarFicheros(
        *this, false, [this] { return !logica.Bloqueada(); },
        [this](const auto& rutas) { logica.Soltar(rutas.front()), PintarAbiertas(); });
    barra = CrearBarraOrdenes(this, [this](Orden orden) { Hacer(orden); });
    auto* centro = new QWidget(this);
    auto* rejilla = new QGridLayout(centro);
    rejilla->setContentsMargins(12, 8, 12, 4);
    rejilla->setSpacing(8);
    auto* columna = new QWidget(centro);
    columna->setFixedWidth(AnchoBoleto);
    auto* izquierda = new QVBoxLayout(columna);
    izquierda->setContentsMargins(0, 0, 0, 0);
    izquierda->setSpacing(8);
    izquierda->addWidget(CrearJuego());
    izquierda->addWidget(CrearBoleto(), 1);
    izquierda->addWidget(CrearDigitos());
    lstFiltros = CrearVistaFiltros(
        centro, [this](int k) { logica.AlternarFila(k), Pintar(); }, [this](int k) { AbrirFila(k); });
    ColorearVistaFiltros(lstFiltros, palette());
    contadores = CrearPanelContadores(centro);
    rejilla->addWidget(columna, 0, 0);
    rejilla->addWidget(lstFiltros, 0, 1);
    rejilla->addWidget(contadores.panel, 1, 0, 1, 2);
    rejilla->setColumnStretch(1, 1);
    rejilla->setRowStretch(0, 1);
    setCentralWidget(centro);
    espera = CrearPanelEspera(centro);
    resize(1280, 720);
    Pintar();
}

QWidget* frmPrincipal::CrearJuego() {
    picBanner2 = new QFrame(this);
    picBanner2->setObjectName(Q("picBanner2"));
    picBanner2->setFrameStyle(QFrame::StyledPanel);
    franja = new QFrame(picBanner2);
    franja->setObjectName(Q("franja"));
    franja->setFixedWidth(8);
    franja->setAutoFillBackground(true);
    QStringList juegos;
    for (const Juego& juego : Juegos) juegos << Q(juego.Nombre);
    cboTipoJuego = CrearListaSinRueda("cboTipoJuego", "Juego", juegos);
    cboTipoCombinacion =
        CrearListaSinRueda("cboTipoCombinacion", "Modo de la base",
                           {Q("Pronóstico Manual"), Q("Pronóstico Aleatorio"), Q("Pronóstico Desde Archivo")});
    txtFicheroASCII = new QLabel(picBanner2);
    txtFicheroASCII->setObjectName(Q("txtFicheroASCII"));
    auto* fila = new QHBoxLayout(picBanner2);
    fila->setContentsMargins(0, 0, 8, 0);
    auto* listas = new QVBoxLayout;
    auto* dos = new QHBoxLayout;
    dos->addWidget(cboTipoJuego, 2);
    dos->addWidget(cboTipoCombinacion, 3);
    listas->setContentsMargins(0, 8, 0, 8);
    listas->addLayout(dos);
    listas->addWidget(txtFicheroASCII);
    fila->addWidget(franja);
    fila->addLayout(listas, 1);
    connect(cboTipoJuego, &QComboBox::activated, this, [this](int i) { logica.CambiarJuego(i), Pintar(); });
    connect(cboTipoCombinacion, &QComboBox::activated, this, [this](int i) { CambiarTipoCombinacion(i); });
    return picBanner2;
}

QWidget* frmPrincipal::CrearBoleto() {
    auto* caja = new QWidget(this);
    auto* columna = new QVBoxLayout(caja);
    columna->setContentsMargins(0, 0, 0, 0);
    columna->setSpacing(4);
    cmdCuadroApuDirecto = new QLabel(caja);
    cmdCuadroApuDirecto->setObjectName(Q("cmdCuadroApuDirecto"));
    lblMarcarDesmarcarTODOS = new QToolButton(caja);
    lblMarcarDesmarcarTODOS->setObjectName(Q("lblMarcarDesmarcarTODOS"));
    lblMarcarDesmarcarTODOS->setFocusPolicy(Qt::StrongFocus);
    lblMarcarDesmarcarTODOS->setToolTip(Q("Marcar o desmarcar todos los números del boleto"));
    lblMarcarDesmarcarTODOS->setMinimumWidth(
        lblMarcarDesmarcarTODOS->fontMetrics().horizontalAdvance(Q("Desmarcar todos")) + 16);
    picNumeros = CrearRejillaNumeros(caja, "lblNumero",
                                     {[this](int n) { logica.PulsarNumero(n), Pintar(); },
                                      [this](int r) { logica.PulsarFila(r), Pintar(); },
                                      [this](int c) { logica.PulsarColumna(c), Pintar(); }});
    CrearPortapapeles(picNumeros.papel);
    CrearHistoria(picNumeros.papel);
    auto* cabecera = new QHBoxLayout;
    cabecera->addWidget(cmdCuadroApuDirecto, 1);
    cabecera->addWidget(lblMarcarDesmarcarTODOS);
    columna->addLayout(cabecera);
    columna->addWidget(picNumeros.papel, 1);
    connect(lblMarcarDesmarcarTODOS, &QToolButton::clicked, this, [this] { logica.MarcarDesmarcarTODOS(), Pintar(); });
    return caja;
}

QWidget* frmPrincipal::CrearDigitos() {
    picCuadroReintegros = new QWidget(this);
    picCuadroReintegros->setObjectName(Q("picCuadroReintegros"));
    // The ticket keeps its size where the game has no digits.
    QSizePolicy reservado = picCuadroReintegros->sizePolicy();
    reservado.setRetainSizeWhenHidden(true);
    picCuadroReintegros->setSizePolicy(reservado);
    auto* caja = new QVBoxLayout(picCuadroReintegros);
    caja->setContentsMargins(0, 0, 0, 0);
    caja->setSpacing(4);
    lblTituloReintegros = new QLabel(picCuadroReintegros);
    lblTituloReintegros->setObjectName(Q("lblTituloReintegros"));
    cboTipoReintegro = CrearListaSinRueda("cboTipoReintegro", "Reparto de los dígitos",
                                          {Q("Al directo"), Q("Secuenciales"), Q("Aleatorios")});
    chkReintegros = new QCheckBox(picCuadroReintegros);
    chkReintegros->setObjectName(Q("chkReintegros"));
    chkReintegros->setToolTip(Q("Las apuestas de un fichero llevan un séptimo campo"));
    auto* titulo = new QHBoxLayout;
    titulo->addWidget(lblTituloReintegros, 1);
    titulo->addWidget(chkReintegros);
    titulo->addWidget(cboTipoReintegro);
    caja->addLayout(titulo);
    digitos = CrearRejillaDigitos(picCuadroReintegros, "lblReintegro",
                                  [this](int d) { logica.PulsarReintegro(d), Pintar(); });
    caja->addWidget(digitos.papel);
    connect(cboTipoReintegro, &QComboBox::activated, this, [this](int i) { logica.CambiarTipoReintegro(i), Pintar(); });
    connect(chkReintegros, &QCheckBox::clicked, this, [this](bool si) { logica.CambiarReintegros(si), Pintar(); });
    return picCuadroReintegros;
}

void frmPrincipal::CrearPortapapeles(QWidget* boleto) {
    auto* copiar = new QAction(Q("Copiar números"), this);
    auto* pegar = new QAction(Q("Pegar números"), this);
    copiar->setObjectName(Q("accionCopiar"));
    pegar->setObjectName(Q("accionPegar"));
    copiar->setShortcut(QKeySequence::Copy);
    pegar->setShortcut(QKeySequence::Paste);
    addActions({copiar, pegar});
    boleto->addActions({copiar, pegar});
    boleto->setContextMenuPolicy(Qt::ActionsContextMenu);
    connect(copiar, &QAction::triggered, this, [this] { AlPortapapeles(logica.Copiar()); });
    connect(pegar, &QAction::triggered, this, [this] {
        logica.Pegar(Utf8(QApplication::clipboard()->text()));
        Pintar();
    });
}

void frmPrincipal::CrearHistoria(QWidget* boleto) {
    accionDeshacer = new QAction(Q("Deshacer"), this);
    accionRehacer = new QAction(Q("Rehacer"), this);
    accionDeshacer->setObjectName(Q("accionDeshacer"));
    accionRehacer->setObjectName(Q("accionRehacer"));
    accionDeshacer->setShortcut(QKeySequence::Undo);
    accionRehacer->setShortcuts({QKeySequence(Qt::CTRL | Qt::Key_Y), QKeySequence(Qt::CTRL | Qt::SHIFT | Qt::Key_Z)});
    addActions({accionDeshacer, accionRehacer});
    boleto->addActions({accionDeshacer, accionRehacer});
    connect(accionDeshacer, &QAction::triggered, this, [this] { logica.Deshacer(), Pintar(); });
    connect(accionRehacer, &QAction::triggered, this, [this] { logica.Rehacer(), Pintar(); });
}

// A visit to a dialog is one step, whatever is painted behind it.
void frmPrincipal::PintarHistoria(bool bloqueada) {
    if (!bloqueada && QApplication::activeModalWidget() == nullptr) logica.historia.Recordar(logica.sesion);
    accionDeshacer->setEnabled(!bloqueada && logica.historia.PuedeDeshacer());
    accionRehacer->setEnabled(!bloqueada && logica.historia.PuedeRehacer());
}

void frmPrincipal::Pintar() {
    const EstadoTrabajo& trabajo = logica.sesion.trabajo;
    const bool bloqueada = logica.Bloqueada();
    if (bloqueada && focoAnterior == nullptr) focoAnterior = focusWidget();
    // "[*]" in a title is where the mark of unsaved work goes.
    setWindowTitle(Q(trabajo.Titulo).replace(Q("[*]"), Q("[*][*]")) + Q("[*]"));
    setWindowModified(!trabajo.CombinacionGuardada);
    menuBar()->setEnabled(!bloqueada);
    PintarBarraOrdenes(barra, !logica.Bloqueada());
    PintarJuego();
    PintarBoleto();
    PintarVistaFiltros(lstFiltros, logica.sesion, logica.entorno.SeparadorMiles, !bloqueada);
    PintarPanelContadores(contadores, Q(logica.lblApuestasIniciales()), Q(logica.lblApuestasCondicionadas()),
                          Q(logica.lblApuestasReducidas()), Q(logica.lblTipoCombinacion()),
                          !trabajo.Contador.Progreso.empty(), trabajo.EstadoCalculando);
    PintarPanelEspera(espera, trabajo.picVentanaEspera);
    PintarHistoria(bloqueada);
    if (!bloqueada) alVuelo.Mirar();
    PintarAlVuelo();
    if (!bloqueada && focoAnterior != nullptr) {
        focoAnterior->setFocus();
        focoAnterior = nullptr;
    }
}

void frmPrincipal::PintarJuego() {
    const EstadoTrabajo& trabajo = logica.sesion.trabajo;
    cboTipoJuego->setCurrentIndex(trabajo.cboTipoJuego);
    cboTipoCombinacion->setCurrentIndex(trabajo.cboTipoCombinacion);
    picBanner2->setEnabled(!logica.Bloqueada());
    const QString ruta = Q(trabajo.txtFicheroASCII);
    txtFicheroASCII->setVisible(trabajo.cboTipoCombinacion == PronosticoDesdeArchivo);
    txtFicheroASCII->setText(QFileInfo(ruta).fileName());
    txtFicheroASCII->setToolTip(ruta);
    QPalette color = franja->palette();
    color.setColor(QPalette::Window, QColor::fromRgb(trabajo.JuegoActual().ColorFondo));
    franja->setPalette(color);
}

void frmPrincipal::PintarBoleto() {
    const EstadoTrabajo& trabajo = logica.sesion.trabajo;
    const Juego& juego = trabajo.JuegoActual();
    const bool habilitado = logica.BoletoHabilitado();
    cmdCuadroApuDirecto->setText(Q(logica.cmdCuadroApuDirecto()));
    lblMarcarDesmarcarTODOS->setText(logica.HayMarcas() ? Q("Desmarcar todos") : Q("Marcar todos"));
    lblMarcarDesmarcarTODOS->setEnabled(habilitado);
    PintarRejillaNumeros(picNumeros, trabajo.lblNumero, trabajo.NumeroMaximo(), habilitado);
    picCuadroReintegros->setVisible(juego.TieneDigito());
    PintarRejillaDigitos(digitos, trabajo.lblReintegro, juego, habilitado);
    lblTituloReintegros->setText(Q(juego.TituloReintegros));
    chkReintegros->setText(Q(juego.CargarReintegros));
    chkReintegros->setChecked(trabajo.chkReintegros);
    chkReintegros->setEnabled(!logica.Bloqueada());
    cboTipoReintegro->setCurrentIndex(trabajo.cboTipoReintegro);
    cboTipoReintegro->setEnabled(habilitado);
}

void frmPrincipal::PintarAlVuelo() {
    const Entorno& entorno = logica.entorno;
    const CuentaAlVuelo* cuenta = alVuelo.Cuenta();
    const std::string falta = alVuelo.SinMemoria() ? "no hay memoria suficiente" : FaltaBase(logica.sesion.trabajo);
    const std::string texto =
        cuenta != nullptr && falta.empty() ? TextoAlVuelo(*cuenta, entorno) : "Al vuelo: " + falta;
    ::PintarAlVuelo(contadores, Q(texto), alVuelo.AlDia());
    std::array<QString, NFiltros> costes;
    for (size_t k = 0; cuenta != nullptr && k < costes.size(); ++k)
        if (cuenta->Costes[k]) costes[k] = Q(TextoCoste(*cuenta->Costes[k], entorno));
    PonerCostes(lstFiltros, costes);
}

void frmPrincipal::Hacer(Orden orden) {
    if (orden == Orden::Salir) {
        close();
        return;
    }
    logica.Hacer(orden);
    if (logica.PuedeAbrir(orden)) AbrirVentana(orden, logica.sesion, logica.entorno, this);
    PintarAbiertas();
}

void frmPrincipal::AbrirFila(int k) {
    if (!logica.Bloqueada()) AbrirDialogoFiltro(k, logica.sesion, logica.entorno, this);
    Pintar();
}

void frmPrincipal::CambiarTipoCombinacion(int indice) {
    if (logica.CambiarTipoCombinacion(indice)) {
        Pintar();
        frmAlazar alazar(logica.sesion.trabajo, this);
        MostrarModal(alazar);
    }
    PintarAbiertas();
}

void frmPrincipal::closeEvent(QCloseEvent* evento) {
    evento->setAccepted(logica.PuedeCerrar() && CerrarVentanas(*this));
}

void frmPrincipal::changeEvent(QEvent* evento) {
    QMainWindow::changeEvent(evento);
    if (evento->type() != QEvent::PaletteChange || lstFiltros == nullptr) return;
    ColorearBarraOrdenes(barra, palette());
    ColorearVistaFiltros(lstFiltros, palette());
    Pintar();
}

void frmPrincipal::resizeEvent(QResizeEvent* evento) {
    QMainWindow::resizeEvent(evento);
    PintarPanelEspera(espera, logica.sesion.trabajo.picVentanaEspera);
}
