#include "TablaPorcentajesCR.h"

#include <QLabel>

#include "FiltroTeclas.h"
#include "MarcoFiltro.h"
#include "RejillaValores.h"
#include "TextoQt.h"

namespace {

constexpr int ModoDecimales = 4;

QLineEdit* CrearCampo(int n, const std::string& sufijo, std::function<void(const std::string&)> alCambiar) {
    auto* campo = new QLineEdit;
    campo->setObjectName(NombreIndexado("txtPorcentajes" + sufijo, n - 1));
    campo->setAccessibleName(Q("Porcentaje del ") + QString::number(n));
    campo->setAlignment(Qt::AlignRight);
    campo->setPalette(ColoresSobrePapel(campo->palette()));
    campo->setFixedWidth(campo->fontMetrics().horizontalAdvance(Q("000,00")) + 14);
    InstalarFiltroTeclas(*campo, ModoDecimales);
    QObject::connect(campo, &QLineEdit::textEdited, campo,
                     [alCambiar = std::move(alCambiar)](const QString& texto) { alCambiar(Utf8(texto)); });
    return campo;
}

} // namespace

CamposPorcentajes CrearTablaPorcentajes(QBoxLayout& donde, PeticionTablaPorcentajes peticion) {
    auto* caja = new QWidget;
    auto* columna = new QVBoxLayout(caja);
    columna->setContentsMargins(0, 0, 0, 0);
    columna->setSpacing(Paso);
    const bool reales = peticion.tabla == TablaCR::Reales;
    const std::string sufijo = reales ? "Reales" : "Apostados";
    columna->addWidget(new QLabel(Q(reales ? "PROBABILIDAD REAL (%)" : "PROBABILIDAD APOSTADA (%)")));
    CamposPorcentajes campos{};
    const auto crear = [&](int n) {
        const auto i = static_cast<size_t>(n - 1);
        campos[i] = CrearCampo(n, sufijo,
                               [alCambiar = peticion.alCambiar, i](const std::string& texto) { alCambiar(i, texto); });
        return campos[i];
    };
    columna->addWidget(CrearRejillaValores(NumeroMaximoBoleto, crear), 1);
    auto* fila = new QHBoxLayout;
    fila->addWidget(CrearBoton("imgINIPorcentajes" + sufijo, "Poner a 0", "Inicializa todos los porcentajes",
                               std::move(peticion.alInicializar)));
    fila->addWidget(CrearBoton("imgAbrirPorcentajes" + sufijo, "Abrir...", "Abrir Fichero de Porcentajes",
                               std::move(peticion.alAbrir)));
    fila->addWidget(CrearBoton("imgGuardarPorcentajes" + sufijo, "Guardar...", "Guardar Fichero de Porcentajes",
                               std::move(peticion.alGuardar)));
    fila->addStretch();
    columna->addLayout(fila);
    donde.addWidget(caja);
    return campos;
}

void PintarTablaPorcentajes(const CamposPorcentajes& campos, const TextosPorcentajes& textos) {
    for (size_t i = 0; i < campos.size(); ++i) PintarCampo(*campos[i], textos[i]);
}
