#include "frmEscrutar.h"

#include <QApplication>
#include <QHeaderView>
#include <QRandomGenerator>

#include "CopiarTabla.h"
#include "Lista.h"
#include "MarcoFiltro.h"
#include "PiezasEscrutinio.h"
#include "Pintores.h"
#include "SoltarFicheros.h"
#include "TextoQt.h"
#include "frmCalculadoraPremios.h"
#include "tema.h"

namespace {

constexpr int PausaColores = 120; // ms
constexpr int AltoFila = 24;      // of the results, px

// The numbers of the base on the paper, whether marked or not.
constexpr const char* EstiloBase = R"(
    QFrame#papel QToolButton[base="true"] { background: #f6d5ca; font-weight: bold; }
    QFrame#papel QToolButton[base="true"]:checked { background: #c2102b; border: 3px double #ffffff; border-radius: 4px; })";

QLabel* CrearDato(std::string_view nombre, std::string_view accesible) {
    auto* dato = new QLabel;
    dato->setObjectName(Q(nombre));
    dato->setAccessibleName(Q(accesible));
    QFont letra = dato->font();
    letra.setBold(true);
    dato->setFont(letra);
    dato->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
    dato->setMinimumWidth(dato->fontMetrics().horizontalAdvance(Q("13.983.816")) + 4);
    return dato;
}

// Paper and print of the ticket for a number of the base.
void PintarEnBase(QComboBox& lista, bool enBase) {
    QPalette paleta;
    if (enBase) {
        paleta.setColor(QPalette::Button, QColor(0xF6, 0xD5, 0xCA));
        paleta.setColor(QPalette::ButtonText, QColor(0x7A, 0x10, 0x20));
    }
    lista.setPalette(paleta);
}

// A category and its count; a rule is an empty row.
QTreeWidgetItem* CrearFila(const std::string& fila) {
    const QStringList celdas = Q(fila).split(QLatin1Char('\t'));
    auto* item = new QTreeWidgetItem;
    item->setSizeHint(0, QSize(0, AltoFila));
    if (fila.find('-') != std::string::npos) {
        item->setFlags(Qt::NoItemFlags);
        return item;
    }
    item->setText(0, celdas.value(0));
    item->setText(1, celdas.value(1));
    item->setTextAlignment(1, Qt::AlignRight | Qt::AlignVCenter);
    QFont letra = QApplication::font();
    letra.setBold(celdas.value(1) != Q("0"));
    item->setFont(1, letra);
    return item;
}

} // namespace

frmEscrutar::frmEscrutar(Sesion& sesion, Entorno& entorno, QWidget* padre) : QDialog(padre), logica(sesion, entorno) {
    QVBoxLayout* fuera = EmpezarVentana(
        *this, "frmEscrutar", logica.Titulo(), "Escrutar",
        "Comprueba un sistema con un sorteo: cuántas apuestas hay de cada categoría y qué boletos tienen "
        "premio. Marque los números premiados y pulse «Escrutar».");
    QVBoxLayout* caja = CrearCuerpo(*fuera, cuerpo);
    auto* columnas = new QHBoxLayout;
    columnas->setSpacing(Paso);
    caja->addLayout(columnas, 1);
    CrearSorteo(*columnas);
    auto* derecha = new QVBoxLayout;
    derecha->setSpacing(Paso);
    columnas->addLayout(derecha, 1);
    CrearApuestas(*derecha);
    CrearResultados(*derecha);
    CrearPie(*caja);
    AceptarFicheros(
        *this, false, [this] { return !logica.Escrutando; },
        [this](const auto& rutas) { Hacer([&] { logica.CargarFichero(rutas.front()); }); });
    logica.Abrir();
    Pintar();
    AjustarTamanio(*this);
}

void frmEscrutar::CrearSorteo(QBoxLayout& donde) {
    QGridLayout* rejilla = CrearCaja(donde, "SORTEO");
    lblTipoCombinacion = new QLabel;
    lblTipoCombinacion->setObjectName(Q("lblTipoCombinacion"));
    rejilla->addWidget(lblTipoCombinacion, 0, 0);
    rejilla->addWidget(CrearBoton("imgININumeros", "Borrar", "Borrar los números y el complementario",
                                  [this] { Hacer([this] { logica.imgININumeros(); }); }),
                       0, 1, Qt::AlignRight);
    picNumeros = CrearRejillaNumeros(
        this, "lblNumero",
        {.numero = [this](int n) { Hacer([this, n] { logica.PulsarNumero(n); }); }, .fila = {}, .columna = {}});
    for (int n = 1; n <= NumeroMaximoBoleto; ++n)
        picNumeros.numero[static_cast<size_t>(n)]->setProperty("base", logica.EnBase(n));
    picNumeros.papel->setStyleSheet(EstiloBoleto() + Q(EstiloBase));
    rejilla->addWidget(picNumeros.papel, 1, 0, 1, 2);
    auto* leyenda = new QLabel(Q("Con fondo, los números de la base actual."));
    rejilla->addWidget(leyenda, 2, 0, 1, 2);
    CrearElegidos(*rejilla);
    rejilla->setColumnStretch(0, 1);
    rejilla->setRowStretch(1, 1);
}

void frmEscrutar::CrearElegidos(QGridLayout& rejilla) {
    lblComplementario = new QLabel(Q("Complementario:"));
    lblComplementario->setObjectName(Q("lblComplementario"));
    cboComplementario = CrearLista("cboComplementario", "Número complementario");
    cboComplementario->addItem(Q("--"));
    for (int n = 1; n <= NumeroMaximoBoleto; ++n) cboComplementario->addItem(QString::number(n));
    const Juego& juego = logica.sesion.trabajo.JuegoActual();
    lblReintegro = new QLabel(juego.Nombre == Juegos[EURODREAMS].Nombre ? Q("Sueño:") : Q("Reintegro:"));
    lblReintegro->setObjectName(Q("lblReintegro"));
    cboReintegro = CrearLista("cboReintegro", "Reintegro o sueño premiado");
    for (int d = juego.DigitoMinimo; d <= juego.DigitoMaximo; ++d) cboReintegro->addItem(QString::number(d));
    rejilla.addWidget(lblComplementario, 3, 0);
    rejilla.addWidget(cboComplementario, 3, 1);
    rejilla.addWidget(lblReintegro, 4, 0);
    rejilla.addWidget(cboReintegro, 4, 1);
    for (QWidget* w : {static_cast<QWidget*>(lblComplementario), static_cast<QWidget*>(cboComplementario)})
        w->setVisible(logica.MuestraComplementario());
    for (QWidget* w : {static_cast<QWidget*>(lblReintegro), static_cast<QWidget*>(cboReintegro)})
        w->setVisible(logica.MuestraReintegros());
    connect(cboComplementario, &QComboBox::activated, this,
            [this](int i) { Hacer([this, i] { logica.CambiarComplementario(i); }); });
    connect(cboReintegro, &QComboBox::activated, this,
            [this](int i) { Hacer([this, i] { logica.CambiarReintegro(i); }); });
}

void frmEscrutar::CrearApuestas(QBoxLayout& donde) {
    QGridLayout* rejilla = CrearCaja(donde, "APUESTAS");
    constexpr std::array<std::string_view, 2> Textos{"Combinación actual", "Combinación nueva"};
    constexpr std::array<std::string_view, 2> Ayudas{"Las apuestas del sistema calculado",
                                                     "Las apuestas de un fichero"};
    for (size_t i = 0; i < optModo.size(); ++i) {
        optModo[i] = new QRadioButton(Q(Textos[i]));
        optModo[i]->setObjectName(NombreIndexado("optModo", static_cast<int>(i)));
        optModo[i]->setToolTip(Q(Ayudas[i]));
        connect(optModo[i], &QRadioButton::clicked, this,
                [this, i] { Hacer([this, i] { logica.PulsarModo(static_cast<int>(i)); }); });
    }
    lblApuestasActuales = CrearDato("lblApuestasActuales", "Apuestas de la combinación actual");
    chkReintegros = new QCheckBox(Q(logica.sesion.trabajo.JuegoActual().CargarReintegros));
    chkReintegros->setObjectName(Q("chkReintegros"));
    chkReintegros->setToolTip(Q("Las apuestas del fichero llevan un séptimo campo"));
    connect(chkReintegros, &QCheckBox::clicked, this,
            [this](bool si) { Hacer([this, si] { logica.CambiarReintegros(si); }); });
    rejilla->addWidget(optModo[0], 0, 0);
    rejilla->addWidget(lblApuestasActuales, 0, 1);
    rejilla->addWidget(optModo[1], 1, 0);
    rejilla->addWidget(chkReintegros, 1, 1, Qt::AlignRight);
    auto* fila = new QHBoxLayout;
    fichero = CrearFilaFichero(*fila, {"cmdDesdeFichero", "Abrir ...",
                                       "Abrir un fichero de apuestas; también puede "
                                       "soltarlo sobre la ventana",
                                       "txtFicheroASCII", "lblApuestasFichero",
                                       [this] { Hacer([this] { logica.cmdDesdeFichero(); }); }});
    rejilla->addLayout(fila, 2, 0, 1, 2);
    rejilla->setColumnStretch(0, 1);
}

void frmEscrutar::CrearResultados(QBoxLayout& donde) {
    QGridLayout* rejilla = CrearCaja(donde, "RESULTADOS");
    lstPremios = new QTreeWidget;
    lstPremios->setObjectName(Q("lstPremios"));
    lstPremios->setAccessibleName(Q("Apuestas de cada categoría"));
    lstPremios->setHeaderLabels({Q("Categoría"), Q("Apuestas")});
    lstPremios->headerItem()->setTextAlignment(1, Qt::AlignRight | Qt::AlignVCenter);
    lstPremios->setRootIsDecorated(false);
    lstPremios->setUniformRowHeights(true);
    lstPremios->setAlternatingRowColors(true);
    lstPremios->setSelectionMode(QAbstractItemView::ExtendedSelection);
    lstPremios->setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    HabilitarCopia(*lstPremios);
    rejilla->addWidget(lstPremios, 0, 0, 4, 1);
    lblApuestas = CrearDato("lblApuestas", "Apuestas escrutadas");
    lblBoletos = CrearDato("lblBoletos", "Boletos");
    lblEscrutando = new QLabel;
    lblEscrutando->setObjectName(Q("lblEscrutando"));
    lblEscrutando->setWordWrap(true);
    lblEscrutando->setMinimumHeight(3 * lblEscrutando->fontMetrics().lineSpacing());
    rejilla->addWidget(new QLabel(Q("Apuestas:")), 0, 1);
    rejilla->addWidget(lblApuestas, 0, 2);
    rejilla->addWidget(new QLabel(Q("Boletos:")), 1, 1);
    rejilla->addWidget(lblBoletos, 1, 2);
    rejilla->addWidget(lblEscrutando, 2, 1, 1, 2, Qt::AlignTop);
    rejilla->setRowStretch(3, 1);
    rejilla->setColumnStretch(0, 1);
    Timer1 = new QTimer(this);
    Timer1->setInterval(PausaColores);
    connect(Timer1, &QTimer::timeout, this, [this] {
        QPalette paleta = lblEscrutando->palette();
        paleta.setColor(QPalette::WindowText, QColor::fromHsv(QRandomGenerator::global()->bounded(360), 255,
                                                              EsOscura(palette()) ? 255 : 150));
        lblEscrutando->setPalette(paleta);
    });
}

void frmEscrutar::CrearPie(QVBoxLayout& caja) {
    CrearPieEscrutinio(caja,
                       {CrearBoton("imgEscrutar", "Escrutar", "Comprobar las apuestas con el sorteo",
                                   [this] { Hacer([this] { logica.EscrutarSistema(); }); }),
                        CrearBoton("imgVerBoletosPremiados", "Ver Boletos Premiados",
                                   "Escrutar y ver los boletos premiados en un informe",
                                   [this] { Hacer([this] { logica.imgVerBoletosPremiados(); }); }),
                        CrearBoton("imgCalculadoraPremios", "Calculadora de Premios", "Pasar los aciertos a euros",
                                   [this] { AbrirCalculadora(); }),
                        CrearBoton("cmdCopiar", "Copiar", "Copiar los resultados como una tabla",
                                   [this] { AlPortapapeles(logica.Copiar()); })},
                       {}, CrearBoton("imgVolver", "Cerrar", "Cerrar el escrutinio", [this] { close(); }));
}

void frmEscrutar::Hacer(const std::function<void()>& accion) {
    accion();
    Pintar();
}

void frmEscrutar::AbrirCalculadora() {
    if (!logica.imgCalculadoraPremios()) return;
    frmCalculadoraPremios calculadora(logica, this);
    MostrarModal(calculadora, [&calculadora] { calculadora.Pintar(); });
}

void frmEscrutar::reject() {
    if (!logica.Escrutando) QDialog::reject();
}

void frmEscrutar::Pintar() {
    if (logica.Escrutando && cuerpo->isEnabled()) focoAnterior = focusWidget();
    cuerpo->setEnabled(!logica.Escrutando);
    PintarSorteo();
    PintarApuestas();
    PintarResultados();
    if (logica.Escrutando || focoAnterior == nullptr) return;
    focoAnterior->setFocus();
    focoAnterior = nullptr;
}

void frmEscrutar::PintarSorteo() {
    lblTipoCombinacion->setText(Q(logica.lblTipoCombinacion()));
    PintarRejillaNumeros(picNumeros, logica.lblNumero, logica.sesion.trabajo.NumeroMaximo(), true);
    cboComplementario->setCurrentIndex(logica.cboComplementario);
    PintarEnBase(*cboComplementario, logica.EnBase(logica.cboComplementario));
    cboReintegro->setCurrentIndex(logica.cboReintegro);
}

void frmEscrutar::PintarApuestas() {
    const bool nueva = logica.optModo == CombinacionNueva;
    for (size_t i = 0; i < optModo.size(); ++i) optModo[i]->setChecked(logica.optModo == static_cast<int>(i));
    lblApuestasActuales->setText(Q(logica.lblApuestasActuales()));
    chkReintegros->setVisible(nueva && logica.MuestraReintegros());
    chkReintegros->setChecked(logica.chkReintegros);
    for (QWidget* w : {static_cast<QWidget*>(fichero.boton), static_cast<QWidget*>(fichero.nombre),
                       static_cast<QWidget*>(fichero.cuenta)})
        w->setEnabled(nueva);
    PintarFilaFichero(fichero, logica.txtFicheroASCII, logica.lblApuestasFichero);
}

void frmEscrutar::PintarResultados() {
    lstPremios->clear();
    for (const std::string& fila : logica.lstPremios) lstPremios->addTopLevelItem(CrearFila(fila));
    const int alto = lstPremios->sizeHintForRow(0) * static_cast<int>(logica.lstPremios.size());
    lstPremios->setMinimumHeight(lstPremios->header()->sizeHint().height() + alto + 2 * lstPremios->frameWidth() + 2);
    lblApuestas->setText(Q(logica.lblApuestas));
    lblBoletos->setText(Q(logica.lblBoletos));
    lblEscrutando->setText(logica.Escrutando  ? Q("Escrutando ...")
                           : logica.Pendiente ? Q("El sorteo ha cambiado: pulse «Escrutar».")
                                              : QString());
    if (logica.Escrutando == Timer1->isActive()) return;
    logica.Escrutando ? Timer1->start() : Timer1->stop();
    if (!logica.Escrutando) lblEscrutando->setPalette(QPalette());
}
