#include "BarraBloque.h"

#include <QKeyEvent>

#include "FiltroTeclas.h"
#include "MarcoFiltro.h"
#include "TextoQt.h"

namespace {

// Takes Enter before the key filter of the field swallows it.
class FiltroIntro final : public QObject {
  public:
    FiltroIntro(QLineEdit& campo, std::function<void(const std::string&)> ir)
        : QObject(&campo), campo_(campo), ir_(std::move(ir)) {}

    bool eventFilter(QObject* objeto, QEvent* evento) override {
        if (evento->type() != QEvent::KeyPress) return QObject::eventFilter(objeto, evento);
        const int tecla = static_cast<QKeyEvent*>(evento)->key();
        if (tecla != Qt::Key_Return && tecla != Qt::Key_Enter) return false;
        ir_(Utf8(campo_.text()));
        campo_.selectAll();
        return true;
    }

  private:
    QLineEdit& campo_;
    std::function<void(const std::string&)> ir_;
};

} // namespace

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
        barra.txtNumeroGrupo->installEventFilter(new FiltroIntro(*barra.txtNumeroGrupo, std::move(ordenes.ir)));
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
