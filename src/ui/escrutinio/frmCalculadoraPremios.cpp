#include "frmCalculadoraPremios.h"

#include <QGridLayout>
#include <QVBoxLayout>

#include "CopiarTabla.h"
#include "FiltroTeclas.h"
#include "Lista.h"
#include "MarcoFiltro.h"
#include "SoltarFicheros.h"
#include "TextoQt.h"
#include "tema.h"

namespace {

constexpr std::array<std::string_view, NCategoriasPremio> Rotulos{"De 6 :", "De 5+C :", "De 5 :", "De 4 :", "De 3 :"};
constexpr std::string_view ImporteAncho = "999999999,99";

QLabel* CrearDato(const QString& nombre, const QString& accesible, std::string_view masAncho) {
    auto* dato = new QLabel;
    dato->setObjectName(nombre);
    dato->setAccessibleName(accesible);
    dato->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
    dato->setMinimumWidth(dato->fontMetrics().horizontalAdvance(Q(masAncho)) + 4);
    return dato;
}

void PonerTitulos(QGridLayout& rejilla, int fila, std::initializer_list<std::string_view> titulos) {
    int columna = 1;
    for (const std::string_view titulo : titulos)
        rejilla.addWidget(new QLabel(Q(titulo)), fila, columna++, Qt::AlignRight | Qt::AlignVCenter);
}

QGroupBox* CajaDe(const QGridLayout& rejilla, std::string_view nombre) {
    auto* caja = static_cast<QGroupBox*>(rejilla.parentWidget());
    caja->setObjectName(Q(nombre));
    return caja;
}

} // namespace

frmCalculadoraPremios::frmCalculadoraPremios(const LogicaEscrutar& escrutar, QWidget* padre)
    : QDialog(padre), logica(escrutar) {
    QVBoxLayout* caja = EmpezarVentana(
        *this, "frmCalculadoraPremios", logica.Titulo(), "Calculadora de Premios",
        "Lo que vale lo acertado en la última comprobación. Los euros se escriben o se toman del sorteo.");
    CrearConsulta(*caja);
    auto* columnas = new QHBoxLayout;
    columnas->setSpacing(Paso);
    CrearSorteo(*columnas);
    CrearCalculadora(*columnas);
    caja->addLayout(columnas);
    caja->addStretch();
    CrearPie(*caja);
    AceptarFicheros(
        *this, false, [this] { return !logica.Consultando; },
        [this](const auto& rutas) { Hacer([&] { logica.CargarPremiosXML(rutas.front()); }); });
    Pintar();
    AjustarTamanio(*this);
}

QLineEdit* frmCalculadoraPremios::CrearTexto(std::string_view nombre, std::string_view ayuda, std::string_view masAncho,
                                             std::string& texto) {
    QLineEdit* campo = CrearCampoNumero(
        Q(nombre), Q(ayuda), [&texto](const std::string& nuevo) { texto = nuevo; }, [] {});
    campo->setFixedWidth(campo->fontMetrics().horizontalAdvance(Q(masAncho)) + 2 * Paso);
    return campo;
}

void frmCalculadoraPremios::CrearConsulta(QVBoxLayout& caja) {
    txtDia = CrearTexto("txtDia", "Día del sorteo, con dos cifras", "000", logica.txtDia);
    txtMes = CrearTexto("txtMes", "Mes del sorteo, con dos cifras", "000", logica.txtMes);
    txtAnio = CrearTexto("txtAnio", "Año del sorteo, con cuatro cifras", "00000", logica.txtAnio);
    cmdConsultarSorteo = CrearBoton("cmdConsultarSorteo", "&Consultar por Fecha de Sorteo",
                                    "Tomar del servicio los premios del sorteo de esa fecha",
                                    [this] { Hacer([this] { logica.cmdConsultarSorteo(); }); });
    cmdConsultarSorteo->setDefault(true);
    auto* fila = new QHBoxLayout;
    fila->setSpacing(Paso / 2);
    fila->addWidget(new QLabel(Q("Fecha del sorteo:")));
    fila->addWidget(txtDia);
    fila->addWidget(new QLabel(Q("/")));
    fila->addWidget(txtMes);
    fila->addWidget(new QLabel(Q("/")));
    fila->addWidget(txtAnio);
    fila->addSpacing(Paso);
    fila->addWidget(cmdConsultarSorteo);
    fila->addStretch();
    caja.addLayout(fila);
}

void frmCalculadoraPremios::CrearSorteo(QBoxLayout& donde) {
    QGridLayout* rejilla = CrearCaja(donde, "SORTEO");
    frmPremiosSorteo = CajaDe(*rejilla, "frmPremiosSorteo");
    txtNumeroSorteo = CrearTexto("txtNumeroSorteo", "Número del sorteo en su año", "00000", logica.txtNumeroSorteo);
    cboDia = CrearLista("cboDia", "Día de la semana");
    for (const char letra : LetrasDia) cboDia->addItem(QString(QLatin1Char(letra)));
    connect(cboDia, &QComboBox::activated, this, [this](int i) { logica.cboDia = i; });
    txtRecaudacion = CrearDato(Q("txtRecaudacion"), Q("Recaudación"), ImporteAncho);
    txtBote = CrearDato(Q("txtBote"), Q("Bote"), ImporteAncho);
    rejilla->addWidget(new QLabel(Q("Número y día")), 0, 0);
    rejilla->addWidget(txtNumeroSorteo, 0, 1, Qt::AlignRight);
    rejilla->addWidget(cboDia, 0, 2, Qt::AlignRight);
    rejilla->addWidget(new QLabel(Q("Recaudación")), 1, 0);
    rejilla->addWidget(txtRecaudacion, 1, 1, 1, 2);
    rejilla->addWidget(new QLabel(Q("Bote")), 2, 0);
    rejilla->addWidget(txtBote, 2, 1, 1, 2);
    PonerTitulos(*rejilla, 3, {"Premio", "Acertantes"});
    for (size_t c = 0; c < NCategoriasPremio; ++c) {
        const int i = static_cast<int>(c);
        txtSorteoPremios[c] = CrearDato(NombreIndexado("txtSorteoPremios", i), Q("Premio del sorteo"), ImporteAncho);
        txtSorteoAciertos[c] = CrearDato(NombreIndexado("txtSorteoAciertos", i), Q("Acertantes"), "99.999.999");
        rejilla->addWidget(new QLabel(Q(Rotulos[c])), 4 + i, 0);
        rejilla->addWidget(txtSorteoPremios[c], 4 + i, 1);
        rejilla->addWidget(txtSorteoAciertos[c], 4 + i, 2);
    }
    rejilla->setRowStretch(9, 1);
}

void frmCalculadoraPremios::CrearCalculadora(QBoxLayout& donde) {
    QGridLayout* rejilla = CrearCaja(donde, "CALCULADORA");
    fraCalculadora = CajaDe(*rejilla, "fraCalculadora");
    PonerTitulos(*rejilla, 0, {"NºPremios", "Euros"});
    for (size_t c = 0; c < NCategoriasPremio; ++c) {
        const int i = static_cast<int>(c);
        txtCalculadoraPremios[c] = CrearCampoNumero(
            NombreIndexado("txtCalculadoraPremios", i), Q("Premios conseguidos"),
            [this, c](const std::string& texto) { Hacer([&] { logica.CambiarPremios(c, texto); }); }, [] {});
        txtCalculadoraEuros[c] = CrearCampoNumero(
            NombreIndexado("txtCalculadoraEuros", i), Q("Euros por premio"),
            [this, c](const std::string& texto) { Hacer([&] { logica.CambiarEuros(c, texto); }); }, [] {});
        txtCalculadoraEuros[c]->setFixedWidth(fontMetrics().horizontalAdvance(Q(ImporteAncho)) + 3 * Paso);
        rejilla->addWidget(new QLabel(Q(Rotulos[c])), 1 + i, 0);
        rejilla->addWidget(txtCalculadoraPremios[c], 1 + i, 1, Qt::AlignRight);
        rejilla->addWidget(txtCalculadoraEuros[c], 1 + i, 2, Qt::AlignRight);
    }
    txtPremiosTOTAL = CrearDato(Q("txtPremiosTOTAL"), Q("Total cobrado"), ImporteAncho);
    txtPorcentajeTOTAL = CrearDato(Q("txtPorcentajeTOTAL"), Q("Porcentaje recuperado"), ImporteAncho);
    for (QLabel* total : {txtPremiosTOTAL, txtPorcentajeTOTAL}) {
        QFont letra = total->font();
        letra.setBold(true);
        total->setFont(letra);
    }
    rejilla->addWidget(new QLabel(Q("Total cobrado")), 6, 0, 1, 2);
    rejilla->addWidget(txtPremiosTOTAL, 6, 2);
    rejilla->addWidget(new QLabel(Q("Porcentaje recuperado")), 7, 0, 1, 2);
    rejilla->addWidget(txtPorcentajeTOTAL, 7, 2);
    rejilla->addWidget(CrearBoton("cmdIniCalculadoraPremios", "Poner a cero", "Poner a cero los euros de cada premio",
                                  [this] { Hacer([this] { logica.cmdIniCalculadoraPremios(); }); }),
                       8, 2, Qt::AlignRight);
    rejilla->setRowStretch(9, 1);
}

void frmCalculadoraPremios::CrearPie(QVBoxLayout& caja) {
    const auto boton = [this](std::string_view nombre, std::string_view texto, std::string_view ayuda, auto orden) {
        return CrearBoton(nombre, texto, ayuda, [this, orden] { Hacer([this, orden] { (logica.*orden)(); }); });
    };
    auto* pie = new QHBoxLayout;
    pie->setContentsMargins(0, Paso, 0, 0);
    pie->addWidget(boton("cmdVerInformePremios", "Ver Informe", "Ver el cálculo en un informe",
                         &LogicaCalculadoraPremios::cmdVerInformePremios));
    pie->addWidget(boton("cmdAbrirPremios", "Abrir ...", "Abrir un cálculo guardado; también puede soltarlo aquí",
                         &LogicaCalculadoraPremios::AbrirPremiosXML));
    pie->addWidget(boton("cmdGuardarPremios", "Guardar ...", "Guardar el cálculo en un fichero",
                         &LogicaCalculadoraPremios::GuardarPremiosXML));
    pie->addWidget(CrearBoton("cmdCopiar", "Copiar", "Copiar el cálculo como una tabla",
                              [this] { AlPortapapeles(logica.Copiar()); }));
    HabilitarCopia(*this, [this] { return logica.Copiar(); });
    pie->addStretch();
    imgVolver = CrearBoton("imgVolver", "Cerrar", "Cerrar la calculadora", [this] { close(); });
    pie->addWidget(imgVolver);
    caja.addLayout(pie);
}

void frmCalculadoraPremios::Hacer(const std::function<void()>& accion) {
    accion();
    Pintar();
}

void frmCalculadoraPremios::reject() {
    if (!logica.Consultando) QDialog::reject();
}

void frmCalculadoraPremios::Pintar() {
    for (QWidget* w : std::initializer_list<QWidget*>{imgVolver, cmdConsultarSorteo, frmPremiosSorteo, fraCalculadora,
                                                      txtDia, txtMes, txtAnio})
        w->setEnabled(!logica.Consultando);
    PintarCampo(*txtDia, logica.txtDia);
    PintarCampo(*txtMes, logica.txtMes);
    PintarCampo(*txtAnio, logica.txtAnio);
    PintarCampo(*txtNumeroSorteo, logica.txtNumeroSorteo);
    cboDia->setCurrentIndex(logica.cboDia);
    txtRecaudacion->setText(Q(logica.txtRecaudacion));
    txtBote->setText(Q(logica.txtBote));
    for (size_t c = 0; c < NCategoriasPremio; ++c) {
        txtSorteoPremios[c]->setText(Q(logica.txtSorteoPremios[c]));
        txtSorteoAciertos[c]->setText(Q(logica.txtSorteoAciertos[c]));
        PintarCampo(*txtCalculadoraPremios[c], logica.txtCalculadoraPremios[c]);
        PintarCampo(*txtCalculadoraEuros[c], logica.txtCalculadoraEuros[c]);
    }
    PintarTotales();
}

void frmCalculadoraPremios::PintarTotales() {
    txtPremiosTOTAL->setText(Q(logica.txtPremiosTOTAL));
    txtPorcentajeTOTAL->setText(Q(logica.txtPorcentajeTOTAL));
    const bool oscura = EsOscura(palette());
    QPalette paleta = txtPorcentajeTOTAL->palette();
    paleta.setColor(QPalette::WindowText,
                    logica.Rentable ? QColor(oscura ? 0x6FDC93 : 0x1B7F3B) : QColor(oscura ? 0xFF8A80 : 0xB8102A));
    txtPorcentajeTOTAL->setPalette(paleta);
}
