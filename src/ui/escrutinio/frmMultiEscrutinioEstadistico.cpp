#include "frmMultiEscrutinioEstadistico.h"

#include <QTextBlock>

#include <array>

#include "Lista.h"
#include "MarcoFiltro.h"
#include "SoltarFicheros.h"
#include "TextoFijo.h"
#include "TextoQt.h"

namespace {

// The captions of the report's lines, each over its column of the fixed-pitch text.
struct Rotulo {
    const char* texto;
    int columna;
};
constexpr std::array<Rotulo, 7> Rotulos{
    {{"Nº", 0}, {"Año", 8}, {"Sorteo", 12}, {"Día", 19}, {"Números", 23}, {"6-5C-5-4-3", 46}, {"Importe", 60}}};
constexpr int ColumnasVisibles = 78, FilasVisibles = 26;

QWidget* CrearRotulos(const QPlainTextEdit& texto) {
    auto* fila = new QWidget;
    const int letra = texto.fontMetrics().horizontalAdvance(QLatin1Char('0'));
    const int margen = static_cast<int>(texto.document()->documentMargin()) + texto.frameWidth();
    fila->setFixedHeight(texto.fontMetrics().height() + 2);
    for (const Rotulo& rotulo : Rotulos) {
        auto* etiqueta = new QLabel(Q(rotulo.texto), fila);
        etiqueta->setFont(texto.font());
        etiqueta->move(margen + rotulo.columna * letra, 0);
        etiqueta->adjustSize();
    }
    return fila;
}

// The draw that a line of the report tells, "000012. 1991 ...", or -1.
int SorteoDeLinea(const QPlainTextEdit& texto, int linea) {
    constexpr int cifras = 6;
    const QString contenido = texto.document()->findBlockByNumber(linea).text();
    bool esNumero = false;
    const int numero = contenido.left(cifras).toInt(&esNumero);
    return esNumero && contenido.mid(cifras, 1) == Q(".") ? numero : -1;
}

} // namespace

frmMultiEscrutinioEstadistico::frmMultiEscrutinioEstadistico(Sesion& sesion, Entorno& entorno, QWidget* padre)
    : QDialog(padre), logica(sesion, entorno) {
    QVBoxLayout* fuera =
        EmpezarVentana(*this, "frmMultiEscrutinioEstadistico", logica.Titulo(), "MultiEscrutinio Estadístico",
                       "Juega un fichero de apuestas en los sorteos de la historia y dice cuánto habría ganado con los "
                       "premios que se pagaron. Cargue los sorteos, abra el fichero y pulse «Escrutar».");
    QVBoxLayout* caja = CrearCuerpo(*fuera, cuerpo);
    auto* columnas = new QHBoxLayout;
    columnas->setSpacing(Paso);
    caja->addLayout(columnas, 1);
    auto* izquierda = new QVBoxLayout;
    izquierda->setSpacing(Paso);
    columnas->addLayout(izquierda);
    CrearSorteos(*izquierda);
    CrearApuestas(*izquierda);
    CrearConsulta(*izquierda);
    izquierda->addStretch();
    CrearResultados(*columnas);
    CrearPie(*fuera);
    AceptarFicheros(
        *this, false, [this] { return !logica.Ocupada(); },
        [this](const auto& rutas) { Hacer([&] { logica.CargarApuestas(rutas.front()); }); });
    Pintar();
    AjustarTamanio(*this);
}

void frmMultiEscrutinioEstadistico::CrearSorteos(QBoxLayout& columna) {
    QGridLayout* rejilla = CrearCaja(columna, "SORTEOS");
    cboTipoJuego = CrearLista("cboTipoJuego", "Juego de los sorteos que se cargan");
    for (const int juego : {PRIMITIVA, BONOLOTO}) cboTipoJuego->addItem(Q(Juegos[static_cast<size_t>(juego)].Nombre));
    connect(cboTipoJuego, &QComboBox::activated, this, [this](int i) { Hacer([&] { logica.ElegirJuego(i); }); });
    lblSorteosCargados = CrearCifra("lblSorteosCargados", "Sorteos cargados", "999.999");
    lblTemporadaDESDE = CrearCifra("lblTemporadaDESDE", "Temporada del primer sorteo", "0000");
    lblSorteoDESDE = CrearCifra("lblSorteoDESDE", "Número del primer sorteo", "000");
    lblTemporadaHASTA = CrearCifra("lblTemporadaHASTA", "Temporada del último sorteo", "0000");
    lblSorteoHASTA = CrearCifra("lblSorteoHASTA", "Número del último sorteo", "000");
    rejilla->addWidget(cboTipoJuego, 0, 0);
    rejilla->addWidget(CrearBoton("cmdCargar", "Cargar desde Internet",
                                  "Traer de Internet todos los sorteos del juego, con sus premios",
                                  [this] { Hacer([this] { logica.cmdCargar(); }); }),
                       0, 1, 1, 3);
    const auto fila = [&](int f, const char* texto, QLabel* temporada, QLabel* sorteo) {
        rejilla->addWidget(new QLabel(Q(texto)), f, 0);
        rejilla->addWidget(temporada, f, 1);
        rejilla->addWidget(new QLabel(Q("sorteo")), f, 2);
        rejilla->addWidget(sorteo, f, 3);
    };
    rejilla->addWidget(new QLabel(Q("Sorteos cargados")), 1, 0);
    rejilla->addWidget(lblSorteosCargados, 1, 1, 1, 3);
    fila(2, "Desde la temporada", lblTemporadaDESDE, lblSorteoDESDE);
    fila(3, "Hasta la temporada", lblTemporadaHASTA, lblSorteoHASTA);
    rejilla->setColumnStretch(0, 1);
}

void frmMultiEscrutinioEstadistico::CrearApuestas(QBoxLayout& columna) {
    QGridLayout* rejilla = CrearCaja(columna, "APUESTAS");
    auto* fila = new QHBoxLayout;
    fichero = CrearFilaFichero(
        *fila, {"cmdDesdeFichero", "Abrir ...", "Abrir un fichero de apuestas; también puede soltarlo sobre la ventana",
                "txtFicheroASCII", "lblApuCargadas", [this] { Hacer([this] { logica.cmdDesdeFichero(); }); }});
    rejilla->addLayout(fila, 0, 0);
}

void frmMultiEscrutinioEstadistico::CrearConsulta(QBoxLayout& columna) {
    QGridLayout* rejilla = CrearCaja(columna, "CONSULTA");
    consulta = CrearRejillaConsulta(*rejilla, ConsultaDe(logica));
    rejilla->setColumnStretch(0, 1);
}

void frmMultiEscrutinioEstadistico::CrearResultados(QBoxLayout& donde) {
    QGridLayout* rejilla = CrearCaja(donde, "RESULTADOS");
    donde.setStretchFactor(rejilla->parentWidget(), 1);
    txtDatos = CrearTextoFijo(
        "txtDatos", "Resultado del escrutinio, sorteo a sorteo", [this] { return Tabla(); },
        [this](int linea) { return SorteoDeLinea(*txtDatos, linea); });
    txtDatos->setMinimumWidth(txtDatos->fontMetrics().horizontalAdvance(QLatin1Char('0')) * ColumnasVisibles);
    txtDatos->setMinimumHeight(FilasVisibles * txtDatos->fontMetrics().lineSpacing());
    rejilla->addWidget(CrearRotulos(*txtDatos), 0, 0);
    rejilla->addWidget(txtDatos, 1, 0);
    rejilla->setVerticalSpacing(0);
}

void frmMultiEscrutinioEstadistico::CrearPie(QBoxLayout& caja) {
    imgCopiar = CrearBoton("imgCopiar", "Copiar tabla", "Copiar los sorteos escrutados como una tabla",
                           [this] { AlPortapapeles(Tabla()); });
    marcha = CrearPanelMarcha("Detener el escrutinio y quedarse con los sorteos ya escrutados",
                              [this] { logica.cmdStop(); });
    imgVolver = CrearBoton("imgVolver", "Cerrar", "Cerrar el escrutinio", [this] { close(); });
    ordenes = CrearPieEscrutinio(
        caja,
        {CrearBoton("cmdEscrutar", "Escrutar", "Escrutar las apuestas en los sorteos de la consulta",
                    [this] { Hacer([this] { logica.cmdEscrutar(); }); }),
         CrearBoton("imgVerInforme", "Ver Informe en Bloc de Notas", "Muestra en el Bloc de Notas el informe completo",
                    [this] { Hacer([this] { logica.imgVerInforme(); }); }),
         imgCopiar},
        marcha, imgVolver);
}

std::string frmMultiEscrutinioEstadistico::Tabla() const {
    return logica.Ganado.empty() ? std::string() : TablaGanado(logica.Ganado, logica.entorno);
}

void frmMultiEscrutinioEstadistico::Hacer(const std::function<void()>& accion) {
    accion();
    Pintar();
}

void frmMultiEscrutinioEstadistico::reject() {
    if (logica.PuedeCerrar()) QDialog::reject();
}

void frmMultiEscrutinioEstadistico::Pintar() {
    if (logica.Ocupada() && cuerpo->isEnabled()) focoAnterior = focusWidget();
    for (QWidget* w : std::initializer_list<QWidget*>{cuerpo, ordenes, imgVolver}) w->setEnabled(!logica.Ocupada());
    cboTipoJuego->setCurrentIndex(logica.cboTipoJuego);
    lblSorteosCargados->setText(Q(logica.lblSorteosCargados));
    lblTemporadaDESDE->setText(Q(logica.lblTemporadaDESDE));
    lblSorteoDESDE->setText(Q(logica.lblSorteoDESDE));
    lblTemporadaHASTA->setText(Q(logica.lblTemporadaHASTA));
    lblSorteoHASTA->setText(Q(logica.lblSorteoHASTA));
    PintarFilaFichero(fichero, logica.txtFicheroASCII, logica.lblApuCargadas);
    PintarRejillaConsulta(consulta, ConsultaDe(logica));
    imgCopiar->setEnabled(!logica.Ganado.empty());
    if (!logica.Ocupada()) PintarTextoFijo(*txtDatos, logica.txtDatos);
    PintarPanelMarcha(marcha,
                      logica.Escrutando ? "Escrutando ..."
                      : logica.Cargando ? "Cargando ..."
                                        : "",
                      logica.Escrutando, logica.lblProgressBar);
    if (logica.Ocupada() || focoAnterior == nullptr) return;
    focoAnterior->setFocus();
    focoAnterior = nullptr;
}
