#include "frmMultiEscrutinioEstadistico.h"

#include <array>

#include "FilaIntervalo.h"
#include "FiltroTeclas.h"
#include "MarcoFiltro.h"
#include "SoltarFicheros.h"
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

} // namespace

frmMultiEscrutinioEstadistico::frmMultiEscrutinioEstadistico(Sesion& sesion, Entorno& entorno, QWidget* padre)
    : QDialog(padre), logica(sesion, entorno) {
    setObjectName(Q("frmMultiEscrutinioEstadistico"));
    setWindowTitle(Q(logica.Titulo()));
    auto* fuera = new QVBoxLayout(this);
    fuera->setContentsMargins(2 * Paso, 2 * Paso, 2 * Paso, 2 * Paso);
    fuera->setSpacing(Paso);
    cuerpo = new QWidget;
    fuera->addWidget(cuerpo, 1);
    auto* caja = new QVBoxLayout(cuerpo);
    caja->setContentsMargins(0, 0, 0, 0);
    caja->setSpacing(Paso);
    PonerCabecera(*caja, "MultiEscrutinio Estadístico",
                  "Juega un fichero de apuestas en los sorteos de la historia y dice cuánto habría ganado con los "
                  "premios que se pagaron. Cargue los sorteos, abra el fichero y pulse «Escrutar».");
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
    CrearPie(*caja);
    marcha = CrearPanelMarcha(*fuera, "Detener el escrutinio y quedarse con los sorteos ya escrutados",
                              [this] { logica.cmdStop(); });
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

QLineEdit* frmMultiEscrutinioEstadistico::CrearCampo(std::string_view nombre, std::string_view ayuda, int cifras,
                                                     std::string& campo) {
    QLineEdit* linea = CrearCampoNumero(
        Q(nombre), Q(ayuda), [&campo](const std::string& texto) { campo = texto; }, [] {});
    linea->setMaxLength(cifras);
    return linea;
}

void frmMultiEscrutinioEstadistico::CrearConsulta(QBoxLayout& columna) {
    QGridLayout* rejilla = CrearCaja(columna, "CONSULTA");
    txtTemporadaDESDE = CrearCampo("txtTemporadaDESDE", "Primera temporada", 4, logica.txtTemporadaDESDE);
    txtTemporadaHASTA = CrearCampo("txtTemporadaHASTA", "Última temporada", 4, logica.txtTemporadaHASTA);
    txtSorteoDESDE = CrearCampo("txtSorteoDESDE", "Primer sorteo de cada temporada", 3, logica.txtSorteoDESDE);
    txtSorteoHASTA = CrearCampo("txtSorteoHASTA", "Último sorteo de cada temporada", 3, logica.txtSorteoHASTA);
    cboDia = CrearLista("cboDia", "Día de la semana");
    for (const char* dia : {"Todos", "Lunes", "Martes", "Miércoles", "Jueves", "Viernes", "Sábado"})
        cboDia->addItem(Q(dia));
    connect(cboDia, &QComboBox::activated, this, [this](int dia) { logica.cboDia = dia; });
    CrearCabeceraIntervalos(*rejilla, Q("Desde"), Q("Hasta"));
    rejilla->addWidget(new QLabel(Q("Temporada")), 1, 0);
    rejilla->addWidget(txtTemporadaDESDE, 1, 1);
    rejilla->addWidget(txtTemporadaHASTA, 1, 2);
    rejilla->addWidget(new QLabel(Q("Sorteo")), 2, 0);
    rejilla->addWidget(txtSorteoDESDE, 2, 1);
    rejilla->addWidget(txtSorteoHASTA, 2, 2);
    rejilla->addWidget(new QLabel(Q("Día")), 3, 0);
    rejilla->addWidget(cboDia, 3, 1, 1, 2);
    rejilla->setColumnStretch(0, 1);
}

void frmMultiEscrutinioEstadistico::CrearResultados(QBoxLayout& donde) {
    QGridLayout* rejilla = CrearCaja(donde, "RESULTADOS");
    donde.setStretchFactor(rejilla->parentWidget(), 1);
    txtDatos = CrearTextoFijo("txtDatos", "Resultado del escrutinio, sorteo a sorteo");
    txtDatos->setMinimumWidth(txtDatos->fontMetrics().horizontalAdvance(QLatin1Char('0')) * ColumnasVisibles);
    txtDatos->setMinimumHeight(FilasVisibles * txtDatos->fontMetrics().lineSpacing());
    rejilla->addWidget(CrearRotulos(*txtDatos), 0, 0);
    rejilla->addWidget(txtDatos, 1, 0);
    rejilla->setVerticalSpacing(0);
}

void frmMultiEscrutinioEstadistico::CrearPie(QBoxLayout& caja) {
    imgCopiar = CrearBoton("imgCopiar", "Copiar tabla", "Copiar los sorteos escrutados como una tabla",
                           [this] { CopiarComoTabla(TablaGanado(logica.Ganado, logica.entorno)); });
    CrearPieEscrutinio(
        caja,
        {CrearBoton("cmdEscrutar", "Escrutar", "Escrutar las apuestas en los sorteos de la consulta",
                    [this] { Hacer([this] { logica.cmdEscrutar(); }); }),
         CrearBoton("imgVerInforme", "Ver Informe en Bloc de Notas", "Muestra en el Bloc de Notas el informe completo",
                    [this] { Hacer([this] { logica.imgVerInforme(); }); }),
         imgCopiar},
        CrearBoton("imgVolver", "Cerrar", "Cerrar el escrutinio", [this] { close(); }));
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
    cuerpo->setEnabled(!logica.Ocupada());
    cboTipoJuego->setCurrentIndex(logica.cboTipoJuego);
    lblSorteosCargados->setText(Q(logica.lblSorteosCargados));
    lblTemporadaDESDE->setText(Q(logica.lblTemporadaDESDE));
    lblSorteoDESDE->setText(Q(logica.lblSorteoDESDE));
    lblTemporadaHASTA->setText(Q(logica.lblTemporadaHASTA));
    lblSorteoHASTA->setText(Q(logica.lblSorteoHASTA));
    PintarFilaFichero(fichero, logica.txtFicheroASCII, logica.lblApuCargadas);
    PintarCampo(*txtTemporadaDESDE, logica.txtTemporadaDESDE);
    PintarCampo(*txtTemporadaHASTA, logica.txtTemporadaHASTA);
    PintarCampo(*txtSorteoDESDE, logica.txtSorteoDESDE);
    PintarCampo(*txtSorteoHASTA, logica.txtSorteoHASTA);
    cboDia->setCurrentIndex(logica.cboDia);
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
