#include "frmFiltroCR.h"

#include "FiltroTeclas.h"
#include "ListaCR.h"
#include "RejillaValores.h"
#include "TextoQt.h"

namespace {

constexpr int ModoDecimales = 4;

} // namespace

frmFiltroCR::frmFiltroCR(Sesion& sesion, Entorno& entorno, QWidget* padre) : QDialog(padre), logica{sesion, entorno} {
    marco = CrearMarcoFiltro(*this, "frmFiltroCR",
                             "El coeficiente de una apuesta es el producto de las probabilidades reales de sus números "
                             "entre el de las apostadas; quedan las que dan uno de los elegidos.",
                             logica.marco);
    controles = new QWidget;
    marco.contenido->addWidget(controles);
    auto* columnas = new QHBoxLayout(controles);
    columnas->setContentsMargins(0, 0, 0, 0);
    columnas->setSpacing(2 * Paso);
    CrearTabla(*columnas, TablaCR::Apostados, "PROBABILIDAD APOSTADA (%)", "Apostados", txtPorcentajesApostados);
    CrearTabla(*columnas, TablaCR::Reales, "PROBABILIDAD REAL (%)", "Reales", txtPorcentajesReales);
    CrearCoeficientes(*columnas);
    TerminarMarco(marco, *this, logica.marco, [this] {
        if (logica.PuedeCerrar()) QDialog::reject();
    });
    logica.Abrir();
    Pintar();
}

void frmFiltroCR::CrearTabla(QBoxLayout& donde, TablaCR tabla, const std::string& titulo, const std::string& sufijo,
                             Campos& campos) {
    auto* caja = new QWidget;
    auto* columna = new QVBoxLayout(caja);
    columna->setContentsMargins(0, 0, 0, 0);
    columna->setSpacing(Paso);
    auto* rotulo = new QLabel(Q(titulo));
    columna->addWidget(rotulo);
    columna->addWidget(
        CrearRejillaValores(NumeroMaximoBoleto,
                            [&](int n) {
                                const auto i = static_cast<size_t>(n - 1);
                                auto* campo = new QLineEdit;
                                campo->setObjectName(NombreIndexado("txtPorcentajes" + sufijo, n - 1));
                                campo->setAccessibleName(Q("Porcentaje del ") + QString::number(n));
                                campo->setAlignment(Qt::AlignRight);
                                campo->setPalette(ColoresSobrePapel(palette()));
                                campo->setFixedWidth(campo->fontMetrics().horizontalAdvance(Q("000,00")) + 14);
                                InstalarFiltroTeclas(*campo, ModoDecimales);
                                connect(campo, &QLineEdit::textEdited, this, [this, tabla, i](const QString& texto) {
                                    logica.CambiarPorcentaje(tabla, i, Utf8(texto));
                                    Pintar();
                                });
                                campos[i] = campo;
                                return campo;
                            }),
        1);
    CrearOrdenes(*columna, tabla, sufijo);
    donde.addWidget(caja);
}

void frmFiltroCR::CrearOrdenes(QBoxLayout& donde, TablaCR tabla, const std::string& sufijo) {
    auto* fila = new QHBoxLayout;
    donde.addLayout(fila);
    const auto boton = [&](const std::string& nombre, const char* texto, const char* ayuda,
                           void (LogicaFiltroCR::*orden)(TablaCR)) {
        fila->addWidget(
            CrearBoton(nombre + sufijo, texto, ayuda, [this, tabla, orden] { (logica.*orden)(tabla), Pintar(); }));
    };
    boton("imgINIPorcentajes", "Poner a 0", "Inicializa todos los porcentajes", &LogicaFiltroCR::imgINIPorcentajes);
    boton("imgAbrirPorcentajes", "Abrir...", "Abrir Fichero de Porcentajes", &LogicaFiltroCR::imgAbrirPorcentajes);
    boton("imgGuardarPorcentajes", "Guardar...", "Guardar Fichero de Porcentajes",
          &LogicaFiltroCR::imgGuardarPorcentajes);
    fila->addStretch();
}

void frmFiltroCR::CrearCoeficientes(QBoxLayout& donde) {
    auto* caja = new QWidget;
    auto* columna = new QVBoxLayout(caja);
    columna->setContentsMargins(0, 0, 0, 0);
    columna->setSpacing(Paso);
    lstCR = CrearListaCR([this](size_t i) { return logica.TextoItem(i); },
                         [this](size_t i, bool elegido) { logica.ElegirCR(i, elegido), Pintar(); });
    imgCalcular = CrearBoton("imgCalcular", "Calcular", "Comprobar los porcentajes", [this] { Calcular(); });
    columna->addWidget(new QLabel(Q("COEFICIENTES")));
    columna->addWidget(lstCR, 1);
    columna->addWidget(imgCalcular);
    donde.addWidget(caja);
}

// The button loses the focus while the controls are off.
void frmFiltroCR::Calcular() {
    logica.imgCalcular();
    Pintar();
    imgCalcular->setFocus();
}

void frmFiltroCR::Pintar() {
    PintarMarco(marco, logica.marco);
    controles->setEnabled(logica.ControlesHabilitados);
    for (size_t i = 0; i < txtPorcentajesReales.size(); ++i) {
        PintarCampo(*txtPorcentajesApostados[i], logica.txtPorcentajesApostados[i]);
        PintarCampo(*txtPorcentajesReales[i], logica.txtPorcentajesReales[i]);
    }
    PintarListaCR(*lstCR, logica.lstCR);
}
