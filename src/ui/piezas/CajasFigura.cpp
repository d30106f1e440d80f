#include "CajasFigura.h"

#include <QFontDatabase>
#include <QLabel>

#include "MarcoFiltro.h"
#include "TextoQt.h"

QLabel* CrearTextoFijo(std::string_view texto) {
    auto* etiqueta = new QLabel(Q(texto));
    QFont letra = QFontDatabase::systemFont(QFontDatabase::FixedFont);
    letra.setPointSizeF(etiqueta->font().pointSizeF());
    etiqueta->setFont(letra);
    return etiqueta;
}

CajasFigura CrearCajasFigura(QGridLayout& rejilla, std::string_view nombre, int primera,
                             std::span<const std::string_view> figuras, std::span<const std::string_view> ejemplos,
                             std::function<void(size_t i, bool marcada)> alPulsar) {
    CajasFigura piezas;
    for (size_t i = 0; i < figuras.size(); ++i) {
        const int fila = static_cast<int>(i);
        auto* caja = new QCheckBox(Q(figuras[i]));
        caja->setObjectName(NombreIndexado(nombre, primera + fila));
        caja->setToolTip(QStringLiteral("Permitir ") + Q(figuras[i]));
        QObject::connect(caja, &QCheckBox::clicked, caja, [alPulsar, i](bool marcada) { alPulsar(i, marcada); });
        rejilla.addWidget(caja, fila, 0);
        auto* ejemplo = CrearTextoFijo(ejemplos[i]);
        ejemplo->setToolTip(QStringLiteral("Apuesta de ejemplo"));
        rejilla.addWidget(ejemplo, fila, 1, Qt::AlignRight);
        piezas.cajas.push_back(caja);
    }
    rejilla.setColumnStretch(0, 1);
    rejilla.setHorizontalSpacing(3 * Paso);
    return piezas;
}

void PintarCajasFigura(const CajasFigura& piezas, std::span<const bool> marcadas) {
    for (size_t i = 0; i < piezas.cajas.size(); ++i) piezas.cajas[i]->setChecked(marcadas[i]);
}
