#include "frmCoeficienteRentabilidad.h"

#include <QFileInfo>

#include "CopiarTabla.h"
#include "ListaCR.h"
#include "MarcoFiltro.h"
#include "SoltarFicheros.h"
#include "TextoQt.h"

namespace {

constexpr int AnchoNombre = 420;

} // namespace

frmCoeficienteRentabilidad::frmCoeficienteRentabilidad(Sesion& sesion, Entorno& entorno, QWidget* padre)
    : QDialog(padre), logica{sesion, entorno} {
    QVBoxLayout* caja = EmpezarVentana(
        *this, "frmCoeficienteRentabilidad", "Utilidad Coeficiente Rentablidad", "Coeficiente de rentabilidad",
        "Reparte las apuestas de un fichero según su coeficiente, el producto de las probabilidades reales "
        "de sus números entre el de las apostadas, y guarda las de los coeficientes que elija.");
    controles = new QWidget;
    auto* todo = new QVBoxLayout(controles);
    todo->setContentsMargins(0, 0, 0, 0);
    todo->setSpacing(Paso);
    CrearFichero(*todo);
    auto* columnas = new QHBoxLayout;
    columnas->setSpacing(2 * Paso);
    txtPorcentajesApostados = CrearTablaPorcentajes(*columnas, logica, TablaCR::Apostados, [this] { Pintar(); });
    txtPorcentajesReales = CrearTablaPorcentajes(*columnas, logica, TablaCR::Reales, [this] { Pintar(); });
    CrearCoeficientes(*columnas);
    todo->addLayout(columnas, 1);
    caja->addWidget(controles, 1);
    CrearPie(*caja);
    espera = CrearPanelEspera(this);
    AceptarFicheros(
        *this, false, [this] { return logica.PuedeCerrar(); },
        [this](const std::vector<std::string>& rutas) { logica.Cargar(rutas.front()), Pintar(); });
    logica.Abrir();
    Pintar();
    AjustarTamanio(*this);
}

void frmCoeficienteRentabilidad::CrearFichero(QBoxLayout& donde) {
    auto* fila = new QHBoxLayout;
    fila->setSpacing(Paso);
    cmdDesdeFichero = CrearBoton("cmdDesdeFichero", "Desde fichero...", "Cargar un fichero de apuestas",
                                 [this] { Hacer(cmdDesdeFichero, [this] { logica.cmdDesdeFichero(); }); });
    txtFicheroASCII = new QLabel;
    txtFicheroASCII->setObjectName(Q("txtFicheroASCII"));
    txtFicheroASCII->setFixedWidth(AnchoNombre);
    lblApuCargadas = new QLabel;
    lblApuCargadas->setObjectName(Q("lblApuCargadas"));
    QFont letra = lblApuCargadas->font();
    letra.setBold(true);
    lblApuCargadas->setFont(letra);
    lblApuCargadas->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
    lblApuCargadas->setMinimumWidth(lblApuCargadas->fontMetrics().horizontalAdvance(Q("13.983.816")) + 2);
    fila->addWidget(cmdDesdeFichero);
    fila->addWidget(txtFicheroASCII);
    fila->addStretch();
    fila->addWidget(new QLabel(Q("Apuestas cargadas:")));
    fila->addWidget(lblApuCargadas);
    donde.addLayout(fila);
}

void frmCoeficienteRentabilidad::CrearCoeficientes(QBoxLayout& donde) {
    auto* caja = new QWidget;
    auto* columna = new QVBoxLayout(caja);
    columna->setContentsMargins(0, 0, 0, 0);
    columna->setSpacing(Paso);
    // The widest row there can be gives the list its width.
    lstCR = CrearListaCR([](size_t) { return std::string("0,0: 13983816"); },
                         [this](size_t i, bool elegido) { logica.ElegirCR(i, elegido), Pintar(); });
    HabilitarCopia(*lstCR, [this] { return logica.Copiar(); });
    lstCR->setAccessibleName(Q("Apuestas de cada coeficiente"));
    lstCR->setToolTip(Q("Apuestas de cada coeficiente; la última fila es de 9,9 en adelante"));
    lblApuestasSeleccionadasCR = new QLabel;
    lblApuestasSeleccionadasCR->setObjectName(Q("lblApuestasSeleccionadasCR"));
    imgCopiar = CrearBoton("imgCopiar", "Copiar", "Copiar los coeficientes como una tabla",
                           [this] { AlPortapapeles(logica.Copiar()); });
    columna->addWidget(new QLabel(Q("COEFICIENTES")));
    columna->addWidget(lstCR, 1);
    columna->addWidget(lblApuestasSeleccionadasCR);
    columna->addWidget(imgCopiar);
    donde.addWidget(caja, 1);
}

void frmCoeficienteRentabilidad::CrearPie(QBoxLayout& donde) {
    auto* pie = new QHBoxLayout;
    pie->setContentsMargins(0, Paso, 0, 0);
    imgCalcular = CrearBoton("imgCalcular", "Calcular", "Calcular el coeficiente de cada apuesta",
                             [this] { Hacer(imgCalcular, [this] { logica.imgCalcular(); }); });
    imgCalcular->setDefault(true);
    imgDetener = CrearBoton("imgDetener", "Detener", "Detener el cálculo", [this] { logica.Detener(); });
    imgGrabarApuestasCR =
        CrearBoton("imgGrabarApuestasCR", "Grabar Apuestas", "Guardar las apuestas de los coeficientes elegidos",
                   [this] { Hacer(imgGrabarApuestasCR, [this] { logica.imgGrabarApuestasCR(); }); });
    imgVolver = CrearBoton("imgVolver", "Cerrar", "Cerrar la utilidad", [this] { close(); });
    pie->addWidget(imgCalcular);
    pie->addWidget(imgDetener);
    pie->addWidget(imgGrabarApuestasCR);
    pie->addStretch();
    pie->addWidget(imgVolver);
    donde.addLayout(pie);
}

void frmCoeficienteRentabilidad::Hacer(QWidget* boton, const std::function<void()>& efecto) {
    efecto();
    Pintar();
    boton->setFocus();
}

void frmCoeficienteRentabilidad::PintarLista() {
    const QSignalBlocker callada(lstCR);
    for (size_t i = 0; i < ValoresCR; ++i) {
        QListWidgetItem& fila = *lstCR->item(static_cast<int>(i));
        fila.setHidden(logica.lstCR.empty());
        if (logica.lstCR.empty()) continue;
        if (const QString texto = Q(logica.lstCR[i]); fila.text() != texto) fila.setText(texto);
        QFont letra = fila.font();
        letra.setBold(logica.ApuestasPorCR[i] > 0);
        if (letra != fila.font()) fila.setFont(letra);
    }
    PintarListaCR(*lstCR, logica.Elegidos);
}

void frmCoeficienteRentabilidad::Pintar() {
    const bool libre = !logica.Trabajando;
    controles->setEnabled(libre);
    for (QPushButton* boton : {imgCalcular, imgGrabarApuestasCR, imgVolver}) boton->setEnabled(libre);
    imgDetener->setEnabled(logica.Calculando);
    const QString ruta = Q(logica.txtFicheroASCII);
    const QString nombre = ruta.isEmpty() ? Q("Ningún fichero cargado") : QFileInfo(ruta).fileName();
    txtFicheroASCII->setText(txtFicheroASCII->fontMetrics().elidedText(nombre, Qt::ElideMiddle, AnchoNombre));
    txtFicheroASCII->setToolTip(ruta);
    lblApuCargadas->setText(Q(logica.lblApuCargadas));
    lblApuestasSeleccionadasCR->setText(Q(logica.lblApuestasSeleccionadasCR()));
    PintarTablaPorcentajes(txtPorcentajesApostados, logica.txtPorcentajesApostados);
    PintarTablaPorcentajes(txtPorcentajesReales, logica.txtPorcentajesReales);
    PintarLista();
    imgCopiar->setEnabled(!logica.lstCR.empty());
    PintarPanelEspera(espera, logica.picVentanaEspera);
}

void frmCoeficienteRentabilidad::reject() {
    if (logica.PuedeCerrar()) QDialog::reject();
}
