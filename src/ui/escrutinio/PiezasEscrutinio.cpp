#include "PiezasEscrutinio.h"

#include "BarraProgreso.h"
#include "MarcoFiltro.h"
#include "TextoQt.h"

QWidget* CrearPieEscrutinio(QBoxLayout& caja, std::initializer_list<QPushButton*> ordenes, const PanelMarcha& marcha,
                            QPushButton* imgVolver) {
    auto* grupo = new QWidget;
    auto* botones = new QHBoxLayout(grupo);
    botones->setContentsMargins(0, 0, 0, 0);
    for (QPushButton* orden : ordenes) botones->addWidget(orden);
    (*ordenes.begin())->setDefault(true);
    auto* pie = new QHBoxLayout;
    pie->setContentsMargins(0, Paso, 0, 0);
    pie->setSpacing(Paso);
    pie->addWidget(grupo);
    pie->addStretch();
    if (marcha.cmdStop != nullptr) {
        pie->addWidget(marcha.lblEstado);
        pie->addWidget(marcha.lblProgressBar, 1);
        pie->addWidget(marcha.cmdStop);
    }
    pie->addWidget(imgVolver);
    caja.addLayout(pie);
    return grupo;
}

QLabel* CrearCifra(std::string_view nombre, std::string_view accesible, std::string_view masAncho) {
    auto* cifra = new QLabel;
    QFont letra = cifra->font();
    letra.setBold(true);
    cifra->setFont(letra);
    cifra->setObjectName(Q(nombre));
    cifra->setAccessibleName(Q(accesible));
    cifra->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
    cifra->setMinimumWidth(cifra->fontMetrics().horizontalAdvance(Q(masAncho)) + 4);
    return cifra;
}

PanelMarcha CrearPanelMarcha(std::string_view ayudaStop, std::function<void()> alParar) {
    PanelMarcha panel;
    panel.lblEstado = new QLabel;
    panel.lblEstado->setObjectName(Q("lblEscrutando"));
    panel.lblEstado->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
    panel.lblEstado->setMinimumWidth(
        panel.lblEstado->fontMetrics().horizontalAdvance(Q("Escrutando Fichero 1000 (13983816 Apu.)")) + 4);
    panel.lblProgressBar = CrearBarraProgreso("Avance del escrutinio");
    panel.lblProgressBar->setTextVisible(false);
    panel.cmdStop = CrearBoton("cmdStop", "Detener", ayudaStop, std::move(alParar));
    return panel;
}

void PintarPanelMarcha(const PanelMarcha& panel, const std::string& estado, bool corre, double fraccion) {
    panel.lblEstado->setText(Q(estado));
    PintarBarraProgreso(*panel.lblProgressBar, {.Visible = corre, .Fraccion = fraccion});
    panel.cmdStop->setEnabled(corre);
}
