#include "MarcoFiltro.h"

#include <QPainter>

#include "FiltrosSencillos.h"
#include "PanelReparto.h"
#include "TextoQt.h"

namespace {

// The pill and the gap between it and the button's text.
constexpr QSize TamanioPastilla(32, 18), TamanioInterruptor(38, 18);

constexpr int AnchoReparto = 360;

// A pill with its knob to the right when on. Green with a white knob, or an outline in the text's
// colour: the state shows in place and shape, not in colour alone.
QIcon IconoInterruptor(bool activo, const QPalette& paleta, qreal escala) {
    QPixmap dibujo(TamanioInterruptor * escala);
    dibujo.setDevicePixelRatio(escala);
    dibujo.fill(Qt::transparent);
    QPainter pintor(&dibujo);
    pintor.setRenderHint(QPainter::Antialiasing);
    const QRectF pastilla(1, 1, TamanioPastilla.width() - 2, TamanioPastilla.height() - 2);
    const QColor verde(0x1B, 0x7F, 0x3B), texto = paleta.color(QPalette::ButtonText);
    pintor.setPen(QPen(activo ? verde : texto, 1.5));
    pintor.setBrush(activo ? QBrush(verde) : QBrush(Qt::NoBrush));
    pintor.drawRoundedRect(pastilla, pastilla.height() / 2, pastilla.height() / 2);
    const qreal radio = pastilla.height() / 2 - 3.5, centro = radio + 4.5;
    pintor.setPen(Qt::NoPen);
    pintor.setBrush(activo ? QColor(Qt::white) : texto);
    pintor.drawEllipse(QPointF(activo ? TamanioPastilla.width() - centro : centro, pastilla.center().y()), radio,
                       radio);
    return QIcon(dibujo);
}

} // namespace

MarcoFiltro CrearMarcoFiltro(QDialog& dialogo, std::string_view nombre, std::string_view frase,
                             const LogicaMarco& marco) {
    QVBoxLayout* caja = EmpezarVentana(dialogo, nombre, TituloFila(marco.k), TituloFila(marco.k), frase);
    MarcoFiltro piezas;
    piezas.contenido = new QVBoxLayout;
    piezas.contenido->setSpacing(Paso);
    piezas.centro = new QHBoxLayout;
    piezas.centro->setSpacing(2 * Paso);
    piezas.centro->addLayout(piezas.contenido);
    caja->addLayout(piezas.centro, 1);
    return piezas;
}

void PonerReparto(MarcoFiltro& piezas, QBoxLayout& donde, PeticionReparto peticion, int alto) {
    piezas.reparto = new PanelReparto(std::move(peticion));
    piezas.reparto->setMinimumSize(AnchoReparto, alto);
    donde.addWidget(piezas.reparto, 1);
}

void TerminarMarco(MarcoFiltro& piezas, QDialog& dialogo, LogicaMarco& marco, std::function<void()> alVolver) {
    piezas.contenido->addStretch();
    auto* pie = new QHBoxLayout;
    pie->setContentsMargins(0, Paso, 0, 0);
    piezas.imgActivar = CrearBoton("imgActivar", "Condición desactivada", "Activar/Desactivar condición", [] {});
    piezas.imgActivar->setIconSize(TamanioInterruptor);
    if (!alVolver) alVolver = [&dialogo] { dialogo.close(); };
    piezas.imgVolver = CrearBoton("imgVolver", "Cerrar", "Cerrar condición", std::move(alVolver));
    pie->addWidget(piezas.imgActivar);
    pie->addStretch();
    pie->addWidget(piezas.imgVolver);
    static_cast<QVBoxLayout*>(dialogo.layout())->addLayout(pie);

    piezas.imgActivar->setMinimumWidth(piezas.imgActivar->sizeHint().width());
    QObject::connect(piezas.imgActivar, &QPushButton::clicked, &dialogo, [piezas, &marco] {
        marco.PulsarActivar();
        PintarMarco(piezas, marco);
    });
    PintarMarco(piezas, marco);
    AjustarTamanio(dialogo);
}

void PintarMarco(const MarcoFiltro& piezas, const LogicaMarco& marco) {
    if (piezas.reparto != nullptr) piezas.reparto->Actualizar();
    QPushButton& boton = *piezas.imgActivar;
    boton.setText(Q(marco.lblActivar()));
    boton.setIcon(IconoInterruptor(marco.Activo(), boton.palette(), boton.devicePixelRatioF()));
}
