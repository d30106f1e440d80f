#include "frmReduccion.h"

#include "FiltroTeclas.h"
#include "Lista.h"
#include "TextoQt.h"

namespace {

constexpr int TiposDeReduccion = 5, Porcentajes = 100;

QStringList Textos(int entradas, std::string (*texto)(int)) {
    QStringList textos;
    for (int i = 0; i < entradas; ++i) textos << Q(texto(i));
    return textos;
}

template <class T>
T* CrearOpcion(const QString& nombre, std::string_view texto, std::string_view ayuda) {
    auto* opcion = new T(Q(texto));
    opcion->setObjectName(nombre);
    opcion->setToolTip(Q(ayuda));
    return opcion;
}

void PonerExplicacion(QGridLayout& rejilla, int fila, std::string_view texto) {
    auto* explicacion = new QLabel(Q(texto));
    explicacion->setIndent(3 * Paso);
    rejilla.addWidget(explicacion, fila, 0, 1, 2);
}

} // namespace

frmReduccion::frmReduccion(Sesion& sesion, Entorno& entorno, QWidget* padre)
    : QDialog(padre), logica{sesion, entorno}, logicaMarco{sesion, FilaReduccion} {
    marco = CrearMarcoFiltro(*this, "frmReduccion",
                             "Deja un sistema más pequeño que conserva una garantía: si la combinación ganadora "
                             "está entre las apuestas condicionadas, alguna de las reducidas tiene al menos esos "
                             "aciertos.",
                             logicaMarco);
    CrearGarantia(*marco.contenido);
    CrearAlcance(*marco.contenido);
    CrearBusqueda(*marco.contenido);
    TerminarMarco(marco, *this, logicaMarco);
    marco.imgActivar->setToolTip(Q("Activar/Desactivar reducción"));
    marco.imgVolver->setToolTip(Q("Cerrar reducción"));
    logica.Abrir();
    Pintar();
}

void frmReduccion::CrearGarantia(QBoxLayout& donde) {
    QGridLayout* rejilla = CrearCaja(donde, "GARANTIA");
    cboTipoReduccion = CrearLista("cboTipoReduccion", "Aciertos que asegura la reducción",
                                  Textos(TiposDeReduccion, LogicaReduccion::TextoTipoReduccion));
    rejilla->addWidget(new QLabel(Q("Tipo de reducción")), 0, 0);
    rejilla->addWidget(cboTipoReduccion, 0, 1);
    rejilla->setColumnStretch(0, 1);
    connect(cboTipoReduccion, &QComboBox::activated, this, [this](int i) {
        logica.CambiarTipoReduccion(i);
        Pintar();
    });
}

void frmReduccion::CrearAlcance(QBoxLayout& donde) {
    QGridLayout* rejilla = CrearCaja(donde, "ALCANCE");
    optTipo[0] = CrearOpcion<QRadioButton>(Q("optTipo_0"), "Nº de Apuestas", "Reducir hasta un número de apuestas");
    optTipo[1] =
        CrearOpcion<QRadioButton>(Q("optTipo_1"), "Porcentaje", "Asegurar la garantía en una parte del sistema");
    txtNColumnas = CrearCampoNumero(
        Q("txtNColumnas"), Q("Número de apuestas"),
        [this](const std::string& texto) { logica.CambiarNColumnas(texto); }, [] {});
    txtNColumnas->setFixedWidth(txtNColumnas->fontMetrics().horizontalAdvance(Q("2147483647")) + 3 * Paso);
    chkApuestasExactas = CrearOpcion<QCheckBox>(Q("chkApuestasExactas"), "Generar Número de Apuestas Exactas",
                                                "Añadir o quitar apuestas hasta que sean justo ese número");
    cboPorcentaje = CrearLista("cboPorcentaje", "Parte del sistema que se asegura",
                               Textos(Porcentajes, LogicaReduccion::TextoPorcentaje));
    rejilla->addWidget(optTipo[0], 0, 0);
    rejilla->addWidget(txtNColumnas, 0, 1, Qt::AlignRight);
    rejilla->addWidget(chkApuestasExactas, 1, 1, Qt::AlignRight);
    rejilla->addWidget(optTipo[1], 2, 0);
    rejilla->addWidget(cboPorcentaje, 2, 1, Qt::AlignRight);
    rejilla->setColumnStretch(0, 1);
    for (int i = 0; i < 2; ++i)
        connect(optTipo[static_cast<size_t>(i)], &QRadioButton::clicked, this, [this, i] {
            logica.PulsarTipo(i);
            Pintar();
        });
    connect(cboPorcentaje, &QComboBox::activated, this, [this](int i) {
        logica.CambiarPorcentaje(i);
        Pintar();
    });
    connect(chkApuestasExactas, &QCheckBox::clicked, this, [this](bool marcado) {
        logica.CambiarApuestasExactas(marcado);
        Pintar();
    });
}

void frmReduccion::CrearBusqueda(QBoxLayout& donde) {
    QGridLayout* rejilla = CrearCaja(donde, "BUSQUEDA");
    chkActivarCiclos = CrearOpcion<QCheckBox>(Q("chkActivarCiclos"), "Ciclos", "Buscar sistemas cada vez más pequeños");
    chkAleatorio = CrearOpcion<QCheckBox>(Q("chkAleatorio"), "Aleatorio", "Barajar de otra manera en cada cálculo");
    rejilla->addWidget(chkActivarCiclos, 0, 0);
    PonerExplicacion(*rejilla, 1, "Repite la búsqueda y se queda con el sistema más pequeño, hasta que se detiene.");
    rejilla->addWidget(chkAleatorio, 2, 0);
    PonerExplicacion(*rejilla, 3, "Cada cálculo baraja las apuestas de otra manera; sin marcar, siempre igual.");
    connect(chkActivarCiclos, &QCheckBox::clicked, this, [this](bool marcado) {
        logica.CambiarActivarCiclos(marcado);
        Pintar();
    });
    connect(chkAleatorio, &QCheckBox::clicked, this, [this](bool marcado) {
        logica.CambiarAleatorio(marcado);
        Pintar();
    });
}

void frmReduccion::reject() {
    if (logica.PuedeCerrar()) QDialog::reject();
}

void frmReduccion::Pintar() {
    PintarMarco(marco, logicaMarco);
    cboTipoReduccion->setCurrentIndex(logica.cboTipoReduccion);
    cboPorcentaje->setCurrentIndex(logica.cboPorcentaje);
    optTipo[logica.optTipo == 0 ? 0 : 1]->setChecked(true);
    PintarCampo(*txtNColumnas, logica.txtNColumnas);
    chkApuestasExactas->setChecked(logica.chkApuestasExactas);
    chkActivarCiclos->setChecked(logica.chkActivarCiclos);
    chkAleatorio->setChecked(logica.chkAleatorio);
    txtNColumnas->setEnabled(logica.txtNColumnasHabilitado);
    cboPorcentaje->setEnabled(logica.cboPorcentajeHabilitado);
    chkApuestasExactas->setEnabled(logica.chkApuestasExactasHabilitado);
}
