#include "frmFiltroSORTEOSANTERIORES.h"

#include "FilaAciertos.h"
#include "FiltroTeclas.h"
#include "Lista.h"
#include "PanelReparto.h"
#include "Pintores.h"
#include "TablaTiempos.h"
#include "TextoQt.h"
#include "frmAciertos.h"

namespace {

// A value that changes while the dialog is open, with room for the longest: `muestra`.
QLabel* CrearRotulo(const char* nombre, const char* muestra) {
    auto* rotulo = new QLabel;
    rotulo->setObjectName(Q(nombre));
    QFont letra = rotulo->font();
    letra.setBold(true);
    rotulo->setFont(letra);
    rotulo->setMinimumWidth(QFontMetrics(letra).horizontalAdvance(Q(muestra)));
    return rotulo;
}

// Labels and controls in one row, at their own widths.
void PonerEnFila(QGridLayout& rejilla, int fila, std::initializer_list<QWidget*> controles) {
    auto* caja = new QHBoxLayout;
    caja->setSpacing(Paso);
    for (QWidget* control : controles) caja->addWidget(control);
    caja->addStretch();
    rejilla.addLayout(caja, fila, 0, 1, 3);
}

// A value that the box does not offer, from a base file, is added to it.
void PintarCaja(QComboBox& caja, int valor) {
    const QSignalBlocker callada(&caja);
    if (caja.findData(valor) < 0) caja.addItem(QString::number(valor), valor);
    caja.setCurrentIndex(caja.findData(valor));
}

} // namespace

frmFiltroSORTEOSANTERIORES::frmFiltroSORTEOSANTERIORES(Sesion& sesion, Entorno& entorno, QWidget* padre)
    : QDialog(padre), logica{sesion, entorno} {
    marco =
        CrearMarcoFiltro(*this, "frmFiltroSORTEOSANTERIORES",
                         "La apuesta ha de alcanzar los aciertos elegidos en un número de sorteos entre el mínimo y "
                         "el máximo de cada grupo.",
                         logica.marco);
    CrearSorteos();
    CrearOrdenes();
    CrearTramo();
    CrearCuentas();
    PonerReparto(marco, *marco.centro,
                 {.k = kSORTEOSANTERIORES, .sesion = sesion, .entorno = entorno, .Volcar = [this](Condiciones& c) {
                      logica.Volcar(c);
                  }});
    TerminarMarco(marco, *this, logica.marco, [this] {
        if (logica.PuedeCerrar()) QDialog::reject();
        Pintar();
    });
    logica.Abrir();
    Pintar();
}

void frmFiltroSORTEOSANTERIORES::CrearSorteos() {
    QGridLayout* rejilla = CrearCaja(*marco.contenido, "SORTEOS DEL JUEGO");
    lblTitTipo = CrearRotulo("lblTitTipo", "EURODREAMS");
    lblSorteosCargados = CrearRotulo("lblSorteosCargados", "0000000");
    lblSorteoDESDE = CrearRotulo("lblSorteoDESDE", "000");
    lblTemporadaDESDE = CrearRotulo("lblTemporadaDESDE", "0000");
    lblSorteoHASTA = CrearRotulo("lblSorteoHASTA", "000");
    lblTemporadaHASTA = CrearRotulo("lblTemporadaHASTA", "0000");
    cmdCargar = CrearBoton("cmdCargar", "Cargar sorteos", "Cargar todos los sorteos del juego desde el servicio",
                           [this] { Cargar(); });
    cmdCargar->setMinimumWidth(cmdCargar->fontMetrics().horizontalAdvance(Q("Cargando sorteos ...")) + 32);
    PonerEnFila(*rejilla, 0, {lblTitTipo, cmdCargar, new QLabel(Q("Sorteos cargados : ")), lblSorteosCargados});
    PonerEnFila(*rejilla, 1,
                {new QLabel(Q("Desde el sorteo")), lblSorteoDESDE, new QLabel(Q("de")), lblTemporadaDESDE,
                 new QLabel(Q("hasta el sorteo")), lblSorteoHASTA, new QLabel(Q("de")), lblTemporadaHASTA});
}

void frmFiltroSORTEOSANTERIORES::CrearOrdenes() {
    auto* fila = new QHBoxLayout;
    fila->setSpacing(Paso);
    marco.contenido->addLayout(fila);
    barra = CrearBarraBloque(*fila, logica.bloque, "",
                             {.menos = [this] { logica.cmdMENOSBloque(), Pintar(); },
                              .mas = [this] { logica.cmdMASBloque(), Pintar(); },
                              .ir = {}});
    barra.lblNumeroGrupo->setMinimumWidth(
        barra.lblNumeroGrupo->fontMetrics().horizontalAdvance(Q("GRUPO 20 (Máx. 20)")) + Paso);
    fila->addWidget(CrearBoton("imgINIGrupo", "Inicializar", "Inicializa este grupo", [this] {
        logica.imgINIGrupo();
        Pintar();
    }));
    QPushButton* informacion = CrearBoton("imgInformacion", "Tiempos", "Tiempos aproximados de cálculo", [] {});
    PonerTablaTiempos(*informacion);
    fila->addWidget(informacion);
}

// The items stand for consecutive values. They are there before anybody hears of a choice.
QComboBox* frmFiltroSORTEOSANTERIORES::CrearLista(const char* nombre, const char* ayuda, int Logica::*campo,
                                                  int primero, const QStringList& items) {
    QComboBox* caja = ::CrearLista(nombre, ayuda);
    for (const QString& item : items) caja->addItem(item, primero + caja->count());
    caja->setMaxVisibleItems(20);
    connect(caja, &QComboBox::currentIndexChanged, this, [this, caja, campo](int) {
        logica.ElegirEnCaja(campo, caja->currentData().toInt());
        Pintar();
    });
    return caja;
}

void frmFiltroSORTEOSANTERIORES::CrearTramo() {
    QGridLayout* rejilla = CrearCaja(*marco.contenido, "SORTEOS DEL GRUPO");
    const auto anio = [this](const char* nombre, const char* ayuda, int Logica::*campo) {
        return CrearLista(nombre, ayuda, campo, Logica::PrimerAnio, Enteros(Logica::PrimerAnio, logica.UltimoAnio()));
    };
    const auto sorteo = [this](const char* nombre, const char* ayuda, int Logica::*campo) {
        return CrearLista(nombre, ayuda, campo, 1, Enteros(1, Logica::UltimoSorteo));
    };
    cboSorteoINI = sorteo("cboSorteoINI", "Primer sorteo: su número en el año", &Logica::cboSorteoINI);
    cboAnioINI = anio("cboAnioINI", "Primer sorteo: su año", &Logica::cboAnioINI);
    cboSorteoFIN = sorteo("cboSorteoFIN", "Último sorteo: su número en el año", &Logica::cboSorteoFIN);
    cboAnioFIN = anio("cboAnioFIN", "Último sorteo: su año", &Logica::cboAnioFIN);
    QStringList dias;
    for (const std::string_view dia : Logica::Dias) dias << Q(dia);
    cboDia = CrearLista("cboDia", "Día de la semana de los sorteos", &Logica::cboDia, 0, dias);
    lblSorteosConsultados = CrearRotulo("lblSorteosConsultados", "0000000");
    PonerEnFila(*rejilla, 0,
                {new QLabel(Q("Desde el sorteo")), cboSorteoINI, new QLabel(Q("de")), cboAnioINI,
                 new QLabel(Q("hasta el sorteo")), cboSorteoFIN, new QLabel(Q("de")), cboAnioFIN});
    PonerEnFila(*rejilla, 1,
                {new QLabel(Q("En los días")), cboDia, new QLabel(Q("Número de sorteos de la consulta : ")),
                 lblSorteosConsultados});
}

void frmFiltroSORTEOSANTERIORES::CrearCuentas() {
    QGridLayout* rejilla = CrearCaja(*marco.contenido, "ACIERTOS EN ESOS SORTEOS");
    txtAciertos = CrearFilaAciertos(*rejilla, 0, Q("Se han de acertar"), Q("txtAciertos"), Q("cmdModificar"),
                                    [this] { Modificar(); });
    txtSorteoMINIMO = CrearCampoNumero(
        Q("txtSorteoMINIMO"), Q("Mínimo de sorteos"),
        [this](const std::string& texto) { logica.CambiarMinimo(texto), Pintar(); }, [] {});
    txtSorteoMAXIMO = CrearCampoNumero(
        Q("txtSorteoMAXIMO"), Q("Máximo de sorteos"),
        [this](const std::string& texto) { logica.CambiarMaximo(texto), Pintar(); }, [] {});
    PonerEnFila(*rejilla, 1,
                {new QLabel(Q("En mínimo")), txtSorteoMINIMO, new QLabel(Q("y máximo")), txtSorteoMAXIMO,
                 new QLabel(Q("sorteos"))});
}

// The window shows that it waits for the service.
void frmFiltroSORTEOSANTERIORES::Cargar() {
    {
        const Pintor pintor([this] { Pintar(); });
        logica.cmdCargar();
    }
    Pintar();
    cmdCargar->setFocus();
}

void frmFiltroSORTEOSANTERIORES::Modificar() {
    LogicaAciertos aciertos = logica.AbrirModificar();
    ElegirAciertos(aciertos, Q("Se han de acertar"), this);
    logica.CerrarModificar(aciertos);
    Pintar();
}

void frmFiltroSORTEOSANTERIORES::Pintar() {
    setEnabled(!logica.Cargando);
    cmdCargar->setText(Q(logica.Cargando ? "Cargando sorteos ..." : "Cargar sorteos"));
    PintarMarco(marco, logica.marco);
    PintarBarraBloque(barra, logica.bloque, logica.lblNumeroGrupo());
    lblTitTipo->setText(Q(logica.lblTitTipo()));
    lblSorteosCargados->setText(Q(logica.lblSorteosCargados));
    lblSorteoDESDE->setText(Q(logica.lblSorteoDESDE));
    lblTemporadaDESDE->setText(Q(logica.lblTemporadaDESDE));
    lblSorteoHASTA->setText(Q(logica.lblSorteoHASTA));
    lblTemporadaHASTA->setText(Q(logica.lblTemporadaHASTA));
    PintarCaja(*cboSorteoINI, logica.cboSorteoINI);
    PintarCaja(*cboAnioINI, logica.cboAnioINI);
    PintarCaja(*cboSorteoFIN, logica.cboSorteoFIN);
    PintarCaja(*cboAnioFIN, logica.cboAnioFIN);
    PintarCaja(*cboDia, logica.cboDia);
    lblSorteosConsultados->setText(Q(logica.lblSorteosConsultados));
    PintarCampo(*txtSorteoMINIMO, logica.txtSorteoMINIMO);
    PintarCampo(*txtSorteoMAXIMO, logica.txtSorteoMAXIMO);
    PintarCampo(*txtAciertos, logica.txtAciertos);
}
