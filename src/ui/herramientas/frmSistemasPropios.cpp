#include "frmSistemasPropios.h"

#include "BarraProgreso.h"
#include "Lista.h"
#include "MarcoFiltro.h"
#include "Mientras.h"
#include "PieHerramienta.h"
#include "SoltarFicheros.h"
#include "TextoFijo.h"
#include "TextoQt.h"

namespace {

// A column in a box of its own, so that the Tab key goes through one after the other.
QVBoxLayout* Columna(QHBoxLayout& fila) {
    auto* caja = new QWidget;
    auto* columna = new QVBoxLayout(caja);
    columna->setContentsMargins(0, 0, 0, 0);
    columna->setSpacing(Paso / 2);
    fila.addWidget(caja);
    return columna;
}

QVBoxLayout* Columna(QHBoxLayout& fila, QLabel*& titulo, std::string_view encabezado, std::string_view nombre) {
    QVBoxLayout* columna = Columna(fila);
    auto* cabecera = new QHBoxLayout;
    auto* texto = new QLabel(Q(encabezado));
    QFont letra = texto->font();
    letra.setBold(true);
    texto->setFont(letra);
    titulo = new QLabel;
    titulo->setObjectName(Q(nombre));
    cabecera->addWidget(texto, 1);
    cabecera->addWidget(titulo);
    columna->addLayout(cabecera);
    return columna;
}

} // namespace

frmSistemasPropios::frmSistemasPropios(EstadoTrabajo& trabajo, Entorno& entorno, QWidget* padre)
    : QDialog(padre), logica(trabajo, entorno) {
    QVBoxLayout* caja = EmpezarVentana(
        *this, "frmSistemasPropios", "SISTEMAS PROPIOS", "Sistemas propios",
        "Pasa un sistema ya hecho a otros números, con la misma garantía: cada número de origen deja su sitio a uno "
        "de destino.");
    fichero = CrearFilaFichero(*caja, {"cmdDesdeFichero", "Abrir sistema", "Carga el sistema de origen de un fichero",
                                       "txtFicheroASCII", "txtApuCargadas",
                                       [this] { Trabajar([this] { logica.cmdDesdeFichero(); }); }});
    cuerpo = new QWidget;
    auto* fila = new QHBoxLayout(cuerpo);
    fila->setContentsMargins(0, 0, 0, 0);
    fila->setSpacing(2 * Paso);
    CrearOrigen(*fila);
    CrearDestino(*fila);
    CrearOrden(*fila);
    caja->addWidget(cuerpo);
    barra = CrearBarraProgreso("Apuestas grabadas");
    caja->addWidget(barra);
    imgCalculoDefinitivo =
        CrearBoton("imgCalculoDefinitivo", "Generar sistema propio", "Escribe el sistema con los números de destino",
                   [this] { Trabajar([this] { logica.imgCalculoDefinitivo(); }); });
    imgVolver = TerminarHerramienta(*this, *caja, *imgCalculoDefinitivo);
    AceptarFicheros(
        *this, false, [this] { return !ocupada; },
        [this](const auto& rutas) { Trabajar([&] { logica.Cargar(rutas.front()); }); });
    RellenarListas();
    Pintar();
    AjustarTamanio(*this);
}

void frmSistemasPropios::CrearOrigen(QHBoxLayout& fila) {
    QVBoxLayout* columna = Columna(fila, lblTitNumerosORIGEN, "Sistema Origen", "lblTitNumerosORIGEN");
    auto* dos = new QHBoxLayout;
    dos->setSpacing(Paso);
    origen = CrearRejillaNumeros(this, "lblNumero", {});
    txtPorcentajesNumeros = CrearTextoFijo("txtPorcentajesNumeros", "Porcentaje de apuestas de cada número de origen",
                                           [this] { return logica.TextoTabla(); });
    txtPorcentajesNumeros->setFixedWidth(txtPorcentajesNumeros->fontMetrics().horizontalAdvance(Q("00-00,00%")) + 40);
    dos->addWidget(origen.papel);
    dos->addWidget(txtPorcentajesNumeros);
    columna->addLayout(dos, 1);
}

void frmSistemasPropios::CrearDestino(QHBoxLayout& fila) {
    QVBoxLayout* columna = Columna(fila, lblTitNumerosDESTINO, "Sistema Destino", "lblTitNumerosDESTINO");
    destino =
        CrearRejillaNumeros(this, "lblNumeroFINAL", {[this](int n) { logica.PulsarDestino(n), Pintar(); }, {}, {}});
    columna->addWidget(destino.papel, 1);
    auto* azar = new QGridLayout;
    PonerAzar(*azar, logica.trabajo.NumeroMaximo(), logica.cboNumeros, [this] { logica.cmdAlazar(), Pintar(); });
    columna->addLayout(azar);
}

// A row for each destination; only those of the marked ones show.
void frmSistemasPropios::CrearOrden(QHBoxLayout& fila) {
    QVBoxLayout* columna = Columna(fila);
    chkElegirOrden = new QCheckBox(Q("Elegir orden :"));
    chkElegirOrden->setObjectName(Q("chkElegirOrden"));
    chkElegirOrden->setToolTip(Q("Sin marcar, los números se emparejan de menor a mayor"));
    connect(chkElegirOrden, &QCheckBox::clicked, this, [this](bool si) { logica.chkElegirOrden = si, Pintar(); });
    columna->addWidget(chkElegirOrden);
    lista = new QScrollArea;
    lista->setWidgetResizable(true);
    lista->setFocusPolicy(Qt::NoFocus);
    auto* hoja = new QWidget;
    auto* rejilla = new QGridLayout(hoja);
    rejilla->setVerticalSpacing(Paso / 2);
    lblSinDestinos = new QLabel(Q("Marque los números\nde destino"));
    rejilla->addWidget(lblSinDestinos, 0, 0, 1, 2);
    for (int n = 1; n <= NumeroMaximoBoleto; ++n) {
        const auto i = static_cast<size_t>(n);
        lblDestino[i] = new QLabel(Q("El ") + QString::number(n) + Q(" por el"));
        cboOrden[i] = CrearLista("cboOrden_" + std::to_string(n - 1), "Número de origen del " + std::to_string(n));
        connect(cboOrden[i], &QComboBox::activated, this, [this, n, i] {
            logica.ElegirOrigen(n, cboOrden[i]->currentData().toInt());
            Pintar();
        });
        rejilla->addWidget(lblDestino[i], n, 0);
        rejilla->addWidget(cboOrden[i], n, 1);
    }
    rejilla->setRowStretch(NumeroMaximoBoleto + 1, 1);
    lista->setWidget(hoja);
    lista->setFixedWidth(190);
    columna->addWidget(lista, 1);
}

void frmSistemasPropios::RellenarListas() {
    const std::vector<int> origenes = logica.Origenes();
    for (size_t n = 1; n < cboOrden.size(); ++n) {
        cboOrden[n]->clear();
        cboOrden[n]->addItem(Q("---"), 0);
        for (const int o : origenes) cboOrden[n]->addItem(QString::number(o), o);
    }
}

void frmSistemasPropios::Trabajar(const std::function<void()>& accion) {
    {
        const Mientras trabajando(ocupada);
        Pintar();
        accion();
    }
    RellenarListas();
    Pintar();
}

void frmSistemasPropios::Pintar() {
    PintarFilaFichero(fichero, logica.txtFicheroASCII,
                      (logica.lblApuCargadas.empty() ? logica.txtApuCargadas : logica.lblApuCargadas) + " Apuestas");
    lblTitNumerosORIGEN->setText(Q(logica.lblTitNumerosORIGEN()));
    lblTitNumerosDESTINO->setText(Q(logica.lblTitNumerosDESTINO()));
    PintarRejillaNumeros(origen, logica.lblNumero, NumeroMaximoBoleto, true);
    PintarRejillaNumeros(destino, logica.lblNumeroFINAL, NumeroMaximoBoleto, true);
    PintarTextoFijo(*txtPorcentajesNumeros, logica.txtPorcentajesNumeros());
    chkElegirOrden->setChecked(logica.chkElegirOrden);
    lblSinDestinos->setVisible(logica.Destinos().empty());
    for (int n = 1; n <= NumeroMaximoBoleto; ++n) {
        const auto i = static_cast<size_t>(n);
        const QString parte = Q(logica.Porcentaje(n));
        origen.numero[i]->setToolTip(parte);
        lblDestino[i]->setVisible(logica.lblNumeroFINAL[i]);
        cboOrden[i]->setVisible(logica.lblNumeroFINAL[i]);
        cboOrden[i]->setCurrentIndex(std::max(0, cboOrden[i]->findData(logica.cboOrden[i])));
    }
    lista->setEnabled(logica.chkElegirOrden);
    for (QWidget* w : {cuerpo, static_cast<QWidget*>(fichero.boton), static_cast<QWidget*>(imgCalculoDefinitivo),
                       static_cast<QWidget*>(imgVolver)})
        w->setEnabled(!ocupada);
    PintarBarraProgreso(*barra, logica.lblProgressBar);
}

void frmSistemasPropios::reject() {
    if (!ocupada) QDialog::reject();
}
