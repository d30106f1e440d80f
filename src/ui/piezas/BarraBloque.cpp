#include "BarraBloque.h"

#include "FiltroTeclas.h"
#include "MarcoFiltro.h"
#include "TextoQt.h"

BarraBloque CrearBarraBloque(QBoxLayout& donde, const SelectorBloque& bloque, std::string_view etiqueta,
                             OrdenesBloque ordenes) {
    BarraBloque barra;
    auto* fila = new QHBoxLayout;
    fila->setSpacing(Paso);
    donde.addLayout(fila);
    barra.cmdMENOSBloque =
        CrearBoton("cmdMENOSBloque", "◂ Anterior", "Ir al bloque anterior", std::move(ordenes.menos));
    barra.lblNumeroGrupo = new QLabel;
    barra.lblNumeroGrupo->setObjectName(Q("lblNumeroGrupo"));
    barra.lblNumeroGrupo->setAlignment(Qt::AlignCenter);
    QFont letra = barra.lblNumeroGrupo->font();
    letra.setBold(true);
    barra.lblNumeroGrupo->setFont(letra);
    const QFontMetrics medida(letra);
    barra.lblNumeroGrupo->setMinimumWidth(medida.horizontalAdvance(Q("GRUPOS 000 A 000")));
    barra.cmdMASBloque = CrearBoton("cmdMASBloque", "Siguiente ▸", "Ir al bloque siguiente", std::move(ordenes.mas));
    fila->addWidget(barra.cmdMENOSBloque);
    fila->addWidget(barra.lblNumeroGrupo);
    fila->addWidget(barra.cmdMASBloque);
    fila->addStretch();
    if (ordenes.ir) {
        const QString texto = Q(etiqueta) + Q(bloque.TextoMaximo());
        barra.txtNumeroGrupo = CrearCampoNumero(
            Q("txtNumeroGrupo"), Q("Número de grupo; Intro va a él"), [](auto&) {}, [] {});
        InstalarIntro(*barra.txtNumeroGrupo, std::move(ordenes.ir));
        fila->addWidget(new QLabel(texto));
        fila->addWidget(barra.txtNumeroGrupo);
    }
    return barra;
}

void PintarBarraBloque(const BarraBloque& barra, const SelectorBloque& bloque, const std::string& titulo) {
    barra.lblNumeroGrupo->setText(Q(titulo));
    barra.cmdMENOSBloque->setEnabled(bloque.cmdMENOSBloque());
    barra.cmdMASBloque->setEnabled(bloque.cmdMASBloque());
}
