#include "frmAlgebra.h"

#include <QFileInfo>

#include "Lista.h"
#include "MarcoFiltro.h"
#include "SoltarFicheros.h"
#include "TextoFijo.h"
#include "TextoQt.h"

namespace {

constexpr int AnchoNombre = 240, AnchoResultados = 400, LineasResultados = 8;
constexpr std::array<std::string_view, 2> NombreCeldas{"lblNumero", "lblNumeroS2"};

QVBoxLayout* Columna(QWidget* caja) {
    auto* columna = new QVBoxLayout(caja);
    columna->setSpacing(Paso);
    return columna;
}

QLabel* Etiqueta(std::string_view nombre, size_t i, Qt::Alignment lado) {
    auto* etiqueta = new QLabel;
    etiqueta->setObjectName(NombreIndexado(nombre, static_cast<int>(i)));
    etiqueta->setAlignment(lado | Qt::AlignVCenter);
    return etiqueta;
}

} // namespace

frmAlgebra::frmAlgebra(Sesion& sesion, Entorno& entorno, QWidget* padre) : QDialog(padre), logica{sesion, entorno} {
    logica.Abrir();
    QVBoxLayout* caja = EmpezarVentana(
        *this, "frmAlgebra", logica.Titulo(), "Álgebra de combinaciones",
        "Ordena las apuestas de un fichero, o hace de dos ficheros un tercero: los suma, toma las apuestas "
        "comunes o quita de uno las del otro.");
    controles = new QWidget;
    auto* columnas = new QHBoxLayout(controles);
    columnas->setContentsMargins(0, 0, 0, 0);
    columnas->setSpacing(2 * Paso);
    columnas->addWidget(CrearSistema(0));
    columnas->addWidget(CrearSistema(1));
    columnas->addWidget(CrearOperacion(), 1);
    caja->addWidget(controles, 1);
    auto* pie = new QHBoxLayout;
    pie->setContentsMargins(0, Paso, 0, 0);
    imgDetener = CrearBoton("imgDetener", "Detener", "Detener el cálculo", [this] { logica.Detener(); });
    imgVolver = CrearBoton("imgVolver", "Cerrar", "Cerrar la utilidad", [this] { close(); });
    pie->addStretch();
    pie->addWidget(imgDetener);
    pie->addWidget(imgVolver);
    caja->addLayout(pie);
    espera = CrearPanelEspera(this);
    AceptarFicheros(
        *this, true, [this] { return logica.PuedeCerrar(); },
        [this](const std::vector<std::string>& rutas) { logica.Soltar(rutas), Pintar(); });
    Pintar();
    AjustarTamanio(*this);
}

QWidget* frmAlgebra::CrearSistema(size_t i) {
    PanelSistema& s = sistemas[i];
    auto* caja = new QGroupBox(Q("SISTEMA ") + QString::number(i + 1));
    auto* columna = Columna(caja);
    CrearBotonesSistema(*columna, i);
    s.txtFicheroASCII = Etiqueta("txtFicheroASCII", i, Qt::AlignLeft);
    s.txtFicheroASCII->setFixedWidth(AnchoNombre);
    columna->addWidget(s.txtFicheroASCII);
    auto* cuentas = new QHBoxLayout;
    s.txtApuCargadas = Etiqueta("txtApuCargadas", i, Qt::AlignLeft);
    QFont letra = s.txtApuCargadas->font();
    letra.setBold(true);
    s.txtApuCargadas->setFont(letra);
    s.lblTipoCombinacion = Etiqueta("lblTipoCombinacion", i, Qt::AlignRight);
    cuentas->addWidget(new QLabel(Q("Apuestas:")));
    cuentas->addWidget(s.txtApuCargadas, 1);
    cuentas->addWidget(s.lblTipoCombinacion);
    columna->addLayout(cuentas);
    s.rejilla = CrearRejillaNumeros(caja, NombreCeldas[i], {});
    columna->addWidget(s.rejilla.papel, 1);
    AceptarFicheros(
        *caja, false, [this] { return logica.PuedeCerrar(); },
        [this, i](const std::vector<std::string>& rutas) { logica.Cargar(i, rutas.front()), Pintar(); });
    return caja;
}

void frmAlgebra::CrearBotonesSistema(QBoxLayout& donde, size_t i) {
    const std::string indice = "_" + std::to_string(i), numero = std::to_string(i + 1);
    auto* fila = new QHBoxLayout;
    auto* abrir = CrearBoton("cmdDesdeFichero" + indice, "Desde fichero...", "Cargar el sistema " + numero, [] {});
    connect(abrir, &QPushButton::clicked, this,
            [this, abrir, i] { Hacer(abrir, [this, i] { logica.cmdDesdeFichero(i); }); });
    fila->addWidget(abrir);
    fila->addStretch();
    fila->addWidget(CrearBoton("imgINICombinacion" + indice, "Vaciar", "Vaciar el sistema " + numero,
                               [this, i] { logica.imgINICombinacion(i), Pintar(); }));
    donde.addLayout(fila);
}

QWidget* frmAlgebra::CrearOperacion() {
    auto* lado = new QWidget;
    auto* columna = Columna(lado);
    columna->setContentsMargins(0, 0, 0, 0);
    auto* caja = new QGroupBox(Q("OPERACIÓN"));
    auto* tipos = Columna(caja);
    CrearTipos(*tipos);
    imgCalcular = CrearBoton("imgCalcular", "Calcular", "Hacer la operación elegida",
                             [this] { Hacer(imgCalcular, [this] { logica.imgCalcular(); }); });
    imgCalcular->setDefault(true);
    tipos->addWidget(imgCalcular, 0, Qt::AlignLeft);
    columna->addWidget(caja);
    CrearResultados(*columna);
    return lado;
}

void frmAlgebra::CrearTipos(QBoxLayout& donde) {
    for (size_t i = 0; i < optTipo.size(); ++i) {
        const int tipo = static_cast<int>(i);
        optTipo[i] = new QRadioButton(Q(LogicaAlgebra::TextoTipo(tipo)));
        optTipo[i]->setObjectName(NombreIndexado("optTipo", tipo));
        optTipo[i]->setAccessibleName(optTipo[i]->text());
        connect(optTipo[i], &QRadioButton::clicked, this, [this, tipo] { logica.ElegirTipo(tipo), Pintar(); });
        auto* fila = new QHBoxLayout;
        fila->addWidget(optTipo[i]);
        donde.addLayout(fila);
        if (tipo != OrdenarSistema1) continue;
        cboTipoOrdenacion = CrearLista("cboTipoOrdenacion", "Sentido de la ordenación");
        for (int orden = 0; orden < 2; ++orden) cboTipoOrdenacion->addItem(Q(LogicaAlgebra::TextoOrdenacion(orden)));
        connect(cboTipoOrdenacion, &QComboBox::activated, this,
                [this](int orden) { logica.cboTipoOrdenacion = orden, Pintar(); });
        fila->addWidget(cboTipoOrdenacion);
        fila->addStretch();
    }
}

void frmAlgebra::CrearResultados(QBoxLayout& donde) {
    auto* caja = new QGroupBox(Q("RESULTADOS"));
    auto* columna = Columna(caja);
    txtVentanaResultados = CrearTextoFijo(
        "txtVentanaResultados", "Resultados", [this] { return logica.Copiar(); }, [](int linea) { return linea; });
    txtVentanaResultados->setLineWrapMode(QPlainTextEdit::WidgetWidth); // sentences, not columns
    txtVentanaResultados->setMinimumSize(AnchoResultados,
                                         LineasResultados * txtVentanaResultados->fontMetrics().lineSpacing());
    columna->addWidget(txtVentanaResultados, 1);
    auto* fila = new QHBoxLayout;
    imgGuardar = CrearBoton("imgGuardar", "Guardar...", "Guardar el sistema resultante",
                            [this] { Hacer(imgGuardar, [this] { logica.imgGuardar(); }); });
    imgCopiar = CrearBoton("imgCopiar", "Copiar", "Copiar los resultados como una tabla",
                           [this] { AlPortapapeles(logica.Copiar()); });
    fila->addWidget(imgGuardar);
    fila->addStretch();
    fila->addWidget(imgCopiar);
    columna->addLayout(fila);
    donde.addWidget(caja, 1);
}

void frmAlgebra::Hacer(QWidget* boton, const std::function<void()>& efecto) {
    efecto();
    Pintar();
    boton->setFocus();
}

void frmAlgebra::PintarSistema(size_t i) {
    const SistemaCargado& s = logica.Sistema[i];
    const PanelSistema& p = sistemas[i];
    const QString ruta = Q(s.txtFicheroASCII);
    const QString nombre = ruta.isEmpty() ? Q("Ningún fichero cargado") : QFileInfo(ruta).fileName();
    p.txtFicheroASCII->setText(p.txtFicheroASCII->fontMetrics().elidedText(nombre, Qt::ElideMiddle, AnchoNombre));
    p.txtFicheroASCII->setToolTip(ruta);
    p.txtApuCargadas->setText(Q(s.txtApuCargadas));
    p.lblTipoCombinacion->setText(Q(s.lblTipoCombinacion()));
    PintarRejillaNumeros(sistemas[i].rejilla, s.lblNumero, logica.sesion.trabajo.NumeroMaximo(), true);
}

void frmAlgebra::Pintar() {
    controles->setEnabled(!logica.Trabajando);
    imgDetener->setEnabled(logica.Calculando);
    imgVolver->setEnabled(!logica.Trabajando);
    for (size_t i = 0; i < sistemas.size(); ++i) PintarSistema(i);
    for (size_t i = 0; i < optTipo.size(); ++i) optTipo[i]->setChecked(logica.optTipo == static_cast<int>(i));
    cboTipoOrdenacion->setCurrentIndex(logica.cboTipoOrdenacion);
    cboTipoOrdenacion->setEnabled(logica.optTipo == OrdenarSistema1);
    std::string texto;
    for (const std::string& linea : logica.txtVentanaResultados) texto += (texto.empty() ? "" : "\n") + linea;
    PintarTextoFijo(*txtVentanaResultados, texto);
    imgCopiar->setEnabled(!texto.empty());
    PintarPanelEspera(espera, logica.picVentanaEspera);
}

void frmAlgebra::reject() {
    if (logica.PuedeCerrar()) QDialog::reject();
}
