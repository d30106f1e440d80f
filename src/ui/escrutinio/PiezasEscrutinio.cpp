#include "PiezasEscrutinio.h"

#include "BarraProgreso.h"
#include "MarcoFiltro.h"
#include "TextoQt.h"

void CrearPieEscrutinio(QBoxLayout& caja, std::initializer_list<QPushButton*> ordenes, QPushButton* imgVolver) {
    auto* pie = new QHBoxLayout;
    pie->setContentsMargins(0, Paso, 0, 0);
    for (QPushButton* orden : ordenes) pie->addWidget(orden);
    (*ordenes.begin())->setDefault(true);
    pie->addStretch();
    pie->addWidget(imgVolver);
    caja.addLayout(pie);
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

PanelMarcha CrearPanelMarcha(QBoxLayout& donde, std::string_view ayudaStop, std::function<void()> alParar) {
    PanelMarcha panel;
    panel.lblEstado = new QLabel;
    panel.lblEstado->setObjectName(Q("lblEstado"));
    panel.lblEstado->setMinimumWidth(
        panel.lblEstado->fontMetrics().horizontalAdvance(Q("Escrutando Fichero 1000 (13983816 Apu.)")) + 4);
    panel.lblProgressBar = CrearBarraProgreso("Avance del escrutinio");
    panel.lblProgressBar->setTextVisible(false);
    panel.cmdStop = CrearBoton("cmdStop", "Detener", ayudaStop, std::move(alParar));
    auto* fila = new QHBoxLayout;
    fila->setSpacing(Paso);
    fila->addWidget(panel.lblEstado);
    fila->addWidget(panel.lblProgressBar, 1);
    fila->addWidget(panel.cmdStop);
    donde.addLayout(fila);
    return panel;
}

void PintarPanelMarcha(const PanelMarcha& panel, const std::string& estado, bool corre, double fraccion) {
    panel.lblEstado->setText(Q(estado));
    PintarBarraProgreso(*panel.lblProgressBar, {.Visible = corre, .Fraccion = fraccion});
    panel.cmdStop->setEnabled(corre);
}
