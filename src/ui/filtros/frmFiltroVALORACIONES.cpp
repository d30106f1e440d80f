#include "frmFiltroVALORACIONES.h"

#include <QFocusEvent>
#include <QStringListModel>

#include "PanelReparto.h"
#include "RejillaValores.h"
#include "TextoQt.h"

namespace {

// Light red where a mark can be given and white where not.
QPalette ColoresLista(const QPalette& base) {
    QPalette paleta = ColoresSobrePapel(base);
    for (const auto grupo : {QPalette::Active, QPalette::Inactive})
        paleta.setColor(grupo, QPalette::Button, QColor(0xFF, 0xD9, 0xD6));
    return paleta;
}

QStringList Items(int ultimo) {
    QStringList items{Q("------")};
    for (int i = 1; i <= ultimo; ++i) items << QString::number(i);
    return items;
}

} // namespace

frmFiltroVALORACIONES::frmFiltroVALORACIONES(Sesion& sesion, Entorno& entorno, QWidget* padre)
    : QDialog(padre), logica{sesion, entorno} {
    marco = CrearMarcoFiltro(*this, "frmFiltroVALORACIONES",
                             "Valore de 1 a 100 los números de su base; la suma de los seis de cada apuesta ha de caer "
                             "en uno de los intervalos de cada grupo.",
                             logica.marco);
    barra = CrearBarraBloque(*marco.contenido, logica.bloque, "",
                             {.menos = [this] { logica.cmdMENOSBloque(), Pintar(); },
                              .mas = [this] { logica.cmdMASBloque(), Pintar(); },
                              .ir = {}});
    auto* columnas = new QHBoxLayout;
    columnas->setSpacing(2 * Paso);
    marco.contenido->addLayout(columnas);
    CrearMarcas(*columnas);
    auto* derecha = new QVBoxLayout;
    columnas->addLayout(derecha);
    CrearIntervalos(*derecha);
    CrearOrdenes(*derecha);
    derecha->addStretch();
    PonerReparto(marco, *marco.centro,
                 {.k = kVALORACIONES, .sesion = sesion, .entorno = entorno, .Volcar = [this](Condiciones& c) {
                      logica.Volcar(c);
                  }});
    TerminarMarco(marco, *this, logica.marco, [this] {
        if (logica.PuedeCerrar()) QDialog::reject();
    });
    logica.Abrir();
    Pintar();
}

void frmFiltroVALORACIONES::CrearMarcas(QBoxLayout& donde) {
    auto* marcas = new QStringListModel(Items(LogicaFiltroVALORACIONES::MarcaMaxima), this);
    auto* vacia = new QStringListModel(Items(0), this);
    donde.addWidget(
        CrearRejillaValores(logica.sesion.trabajo.NumeroMaximo(), [&](int n) { return CrearLista(n, marcas, vacia); }),
        1);
}

QComboBox* frmFiltroVALORACIONES::CrearLista(int numero, QAbstractItemModel* marcas, QAbstractItemModel* vacia) {
    auto* lista = new QComboBox;
    lista->setObjectName(NombreIndexado("cboPorcentaje", numero - 1));
    lista->setAccessibleName(Q("Valoración del ") + QString::number(numero));
    lista->setPalette(ColoresLista(palette()));
    const bool habilitada = logica.Habilitada(numero);
    lista->setModel(habilitada ? marcas : vacia);
    lista->setEnabled(habilitada);
    lista->setMinimumWidth(lista->fontMetrics().horizontalAdvance(Q("------")) + 40);
    lista->installEventFilter(this);
    connect(lista, &QComboBox::currentIndexChanged, this, [this, numero](int item) {
        logica.ElegirPorcentaje(numero, item);
        Pintar();
    });
    cboPorcentaje[static_cast<size_t>(numero - 1)] = lista;
    return lista;
}

void frmFiltroVALORACIONES::CrearIntervalos(QBoxLayout& donde) {
    using L = LogicaFiltroVALORACIONES;
    QGridLayout* rejilla = CrearCaja(donde, "SUMA DE VALORACIONES DE LA APUESTA");
    CrearCabeceraIntervalos(*rejilla, Q("Mínima"), Q("Máxima"));
    for (size_t i = 0; i < intervalos.size(); ++i) {
        const int fila = static_cast<int>(i);
        const QString etiqueta = Q("Intervalo ") + QString::number(fila + 1);
        intervalos[i] = CrearFilaIntervalo(
            *rejilla, fila + 1,
            {.etiqueta = etiqueta,
             .nombreMinimo = NombreIndexado("txtValoracionMinima", fila),
             .nombreMaximo = NombreIndexado("txtValoracionMaxima", fila),
             .que = etiqueta,
             .or_ = i + 1 < intervalos.size()},
            EfectosDeIntervalo(logica, i, &L::CambiarMinima, &L::CambiarMaxima, [this] { Pintar(); }));
    }
}

void frmFiltroVALORACIONES::CrearOrdenes(QBoxLayout& donde) {
    QGridLayout* rejilla = CrearCaja(donde, "VALORACIONES DEL GRUPO");
    lblSumaPorcentajes = new QLabel;
    lblSumaPorcentajes->setObjectName(Q("lblSumaPorcentajes"));
    lblSumaPorcentajes->setAlignment(Qt::AlignRight);
    lblSumaPorcentajes->setMinimumWidth(lblSumaPorcentajes->fontMetrics().horizontalAdvance(Q("00000")));
    lblTitNumeros = new QLabel(Q("00 Valoraciones Seleccionadas"));
    lblTitNumeros->setObjectName(Q("lblTitNumeros"));
    lblTitNumeros->setMinimumWidth(lblTitNumeros->sizeHint().width());
    rejilla->addWidget(new QLabel(Q("Suma de Valoraciones :")), 0, 0);
    rejilla->addWidget(lblSumaPorcentajes, 0, 1);
    rejilla->addWidget(lblTitNumeros, 1, 0, 1, 2);
    const auto boton = [&](int fila, const char* nombre, const char* texto, const char* ayuda,
                           void (LogicaFiltroVALORACIONES::*orden)()) {
        rejilla->addWidget(CrearBoton(nombre, texto, ayuda, [this, orden] { (logica.*orden)(), Pintar(); }), fila, 0, 1,
                           2);
    };
    using L = LogicaFiltroVALORACIONES;
    boton(2, "imgININumeros", "Borrar", "Inicializa todas las valoraciones", &L::imgININumeros);
    boton(3, "cmdAbrirPorcentajes", "Abrir...", "Abrir Fichero de Porcentajes", &L::cmdAbrirPorcentajes);
    boton(4, "cmdGuardarPorcentajes", "Guardar...", "Guardar Fichero de Porcentajes", &L::cmdGuardarPorcentajes);
}

bool frmFiltroVALORACIONES::eventFilter(QObject* objeto, QEvent* evento) {
    if (evento->type() == QEvent::FocusIn) {
        const auto razon = static_cast<QFocusEvent*>(evento)->reason();
        if (razon != Qt::ActiveWindowFocusReason && razon != Qt::PopupFocusReason) {
            logica.EnfocarPorcentaje();
            Pintar();
        }
    }
    return QDialog::eventFilter(objeto, evento);
}

void frmFiltroVALORACIONES::Pintar() {
    PintarMarco(marco, logica.marco);
    PintarBarraBloque(barra, logica.bloque, logica.lblNumeroGrupo());
    for (size_t i = 0; i < cboPorcentaje.size(); ++i)
        if (QComboBox* lista = cboPorcentaje[i]; lista != nullptr) {
            const QSignalBlocker callada(lista);
            lista->setCurrentIndex(logica.cboPorcentaje[i]);
        }
    for (size_t i = 0; i < intervalos.size(); ++i)
        PintarFilaIntervalo(intervalos[i], logica.txtValoracionMinima[i], logica.txtValoracionMaxima[i]);
    lblSumaPorcentajes->setText(Q(logica.lblSumaPorcentajes()));
    lblTitNumeros->setText(Q(logica.lblTitNumeros()));
}
