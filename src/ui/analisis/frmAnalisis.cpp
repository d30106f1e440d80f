#include "frmAnalisis.h"

#include <QGroupBox>

#include <algorithm>

#include "CopiarTabla.h"
#include "MapaCalor.h"
#include "MarcoFiltro.h"
#include "TextoQt.h"
#include "modGeneral.h"

namespace {

constexpr std::string_view MasAncha = "13983816"; // the whole ticket, wider than "100,00%"

QVBoxLayout* CrearGrupo(QBoxLayout& donde, std::string_view titulo, int estiramiento = 0) {
    auto* grupo = new QGroupBox(Q(titulo));
    donde.addWidget(grupo, estiramiento);
    return new QVBoxLayout(grupo);
}

} // namespace

frmAnalisis::frmAnalisis(const Sesion& sesion, Entorno& entorno, int32_t apuestas, QWidget* padre)
    : QDialog(padre), logica(sesion, entorno) {
    logica.publicApuestasAnalizar = apuestas;
    logica.Abrir();
    QVBoxLayout* caja =
        EmpezarVentana(*this, "frmAnalisis", "Análisis", "Análisis de las apuestas",
                       "En cuántas de las " + FormatoMiles(apuestas, entorno.SeparadorMiles) +
                           " apuestas está cada número. En el mapa, los números más oscuros son los que están en más.");
    CrearCentro(*caja);
    CrearPie(*caja);
    PonerConsejos();
    Pintar();
    AjustarTamanio(*this);
}

void frmAnalisis::CrearCentro(QVBoxLayout& caja) {
    const Juego& juego = logica.sesion.trabajo.JuegoActual();
    auto* cifras = new QVBoxLayout;
    cifras->setSpacing(Paso);
    numeros = CrearRejillaPorcentajes(juego.NumeroMaximo, MasAncha);
    CrearGrupo(*cifras, "Análisis de los Números", 1)->addWidget(numeros.papel);
    if (juego.TieneDigito()) {
        digitos = CrearRejillaPorcentajesDigitos(juego, MasAncha);
        CrearGrupo(*cifras, logica.TituloDigitos)->addWidget(digitos.papel);
    }
    mapa = new MapaCalor(Q("Mapa de los números por sus apuestas"));
    mapa->setObjectName(Q("mapa"));
    auto* columnas = new QHBoxLayout;
    columnas->setSpacing(Paso);
    columnas->addLayout(cifras);
    CrearGrupo(*columnas, "Mapa del boleto", 1)->addWidget(mapa);
    caja.addLayout(columnas, 1);
}

void frmAnalisis::CrearPie(QVBoxLayout& caja) {
    imgSwitch = CrearBoton("imgSwitch", "Ver número de apuestas", "", [this] {
        logica.Cambiar();
        Pintar();
    });
    imgSwitch->setMinimumWidth(imgSwitch->sizeHint().width());
    auto* pie = new QHBoxLayout;
    pie->setContentsMargins(0, Paso, 0, 0);
    pie->addWidget(imgSwitch);
    pie->addWidget(CrearBoton("imgVerAnalisis", "Ver Análisis", "Ver el análisis en un informe",
                              [this] { logica.VerAnalisis(); }));
    pie->addWidget(CrearBoton("imgCopiar", "Copiar tabla",
                              "Copiar las cifras como una tabla, para una hoja de cálculo (Ctrl+C)",
                              [this] { AlPortapapeles(logica.TextoTabla()); }));
    pie->addStretch();
    pie->addWidget(CrearBoton("imgVolver", "Cerrar", "Cerrar el análisis", [this] { close(); }));
    caja.addLayout(pie);
    HabilitarCopia(*this, [this] { return logica.TextoTabla(); });
}

void frmAnalisis::PonerConsejos() {
    for (size_t n = 1; n < numeros.lblN.size(); ++n)
        numeros.lblN[n]->setToolTip(Q(logica.ConsejoNumero(static_cast<int>(n))));
    for (size_t d = 0; d < digitos.lblN.size(); ++d)
        if (digitos.lblN[d] != nullptr) digitos.lblN[d]->setToolTip(Q(logica.ConsejoDigito(static_cast<int>(d))));
}

void frmAnalisis::Pintar() {
    PintarRejillaPorcentajes(numeros, logica.lblN, logica.lblNConApuestas);
    PintarRejillaPorcentajes(digitos, logica.lblR, logica.lblRConApuestas);
    imgSwitch->setText(Q(logica.ConsejoSwitch()));
    imgSwitch->setToolTip(Q(logica.ConsejoSwitch()));
    PintarMapa();
}

void frmAnalisis::PintarMapa() {
    std::vector<CeldaCalor> celdas;
    const int maximo = logica.sesion.trabajo.NumeroMaximo();
    const bool columnas = maximo == NumeroMaximoBoleto;
    for (int n = 1; n <= maximo; ++n)
        celdas.push_back({columnas ? n % 10 : (n - 1) / 5, columnas ? n / 10 : (n - 1) % 5, QString::number(n),
                          logica.Calor(n), Q(logica.ConsejoNumero(n))});
    mapa->Poner(std::move(celdas), Q(logica.lblMenor), Q(logica.lblMayor));
}
