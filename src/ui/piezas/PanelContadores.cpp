#include "PanelContadores.h"

#include "TextoQt.h"

namespace {

// Full width of the wait bar, in its own units.
constexpr int AnchoBarra = 4725;

// The figures are the largest text of the window.
constexpr double FactorCifra = 2.6;

QFont Letra(const QFont& base, double factor, bool negrita) {
    QFont letra = base;
    letra.setPointSizeF(base.pointSizeF() * factor);
    letra.setBold(negrita);
    return letra;
}

} // namespace

QLabel* CrearContador(QWidget* panel, QHBoxLayout* fila, const QString& nombre, const QString& titulo) {
    auto* caja = new QVBoxLayout;
    caja->setSpacing(0);
    auto* etiqueta = new QLabel(titulo, panel);
    etiqueta->setFont(Letra(panel->font(), 0.9, false));
    auto* cifra = new QLabel(panel);
    cifra->setObjectName(nombre);
    cifra->setAccessibleDescription(Q("Apuestas ") + titulo.toLower());
    cifra->setTextInteractionFlags(Qt::TextSelectableByMouse);
    // The widest figure fits from the start, so that nothing moves when it comes.
    cifra->setFont(Letra(panel->font(), FactorCifra, true));
    const QFontMetrics medida = cifra->fontMetrics();
    cifra->setMinimumWidth(medida.horizontalAdvance(Q("13.983.816")) + 8);
    cifra->setFixedHeight(medida.height() + 2);
    caja->addWidget(etiqueta);
    caja->addWidget(cifra);
    fila->addLayout(caja, 1);
    return cifra;
}

void PonerFlecha(QWidget* panel, QHBoxLayout* fila) {
    auto* flecha = new QLabel(Q("→"), panel);
    flecha->setFont(Letra(panel->font(), 1.9, false));
    flecha->setAlignment(Qt::AlignLeft | Qt::AlignBottom);
    flecha->setForegroundRole(QPalette::PlaceholderText);
    fila->addWidget(flecha);
}

PanelContadores CrearPanelContadores(QWidget* padre) {
    PanelContadores p;
    p.panel = new QWidget(padre);
    auto* caja = new QVBoxLayout(p.panel);
    caja->setContentsMargins(4, 0, 4, 4);
    caja->setSpacing(4);
    auto* fila = new QHBoxLayout;
    fila->setSpacing(16);
    p.lblApuestasIniciales = CrearContador(p.panel, fila, Q("lblApuestasIniciales"), Q("INICIALES"));
    PonerFlecha(p.panel, fila);
    p.lblApuestasCondicionadas = CrearContador(p.panel, fila, Q("lblApuestasCondicionadas"), Q("CONDICIONADAS"));
    PonerFlecha(p.panel, fila);
    p.lblApuestasReducidas = CrearContador(p.panel, fila, Q("lblApuestasReducidas"), Q("REDUCIDAS"));
    p.lblTipoCombinacion = new QLabel(p.panel);
    p.lblTipoCombinacion->setObjectName(Q("lblTipoCombinacion"));
    p.lblTipoCombinacion->setFont(Letra(p.panel->font(), 1.3, false));
    p.lblTipoCombinacion->setAlignment(Qt::AlignRight | Qt::AlignBottom);
    p.lblTipoCombinacion->setMinimumWidth(p.lblTipoCombinacion->fontMetrics().horizontalAdvance(Q("49 Números")) + 4);
    p.lblAlVuelo = new QLabel(p.panel);
    p.lblAlVuelo->setObjectName(Q("lblAlVuelo"));
    p.lblAlVuelo->setToolTip(Q("Apuestas que dejarían pasar ahora las condiciones activas"));
    p.lblAlVuelo->setTextInteractionFlags(Qt::TextSelectableByMouse);
    p.lblAlVuelo->setAlignment(Qt::AlignRight | Qt::AlignBottom);
    p.lblAlVuelo->setMinimumWidth(
        p.lblAlVuelo->fontMetrics().horizontalAdvance(Q("Al vuelo: la base no llega a 6 números")) + 4);
    auto* esquina = new QVBoxLayout;
    esquina->setSpacing(0);
    esquina->addWidget(p.lblAlVuelo, 1);
    esquina->addWidget(p.lblTipoCombinacion);
    fila->addLayout(esquina);
    p.actividad = new QProgressBar(p.panel);
    p.actividad->setObjectName(Q("actividad"));
    p.actividad->setAccessibleName(Q("Cálculo en marcha"));
    p.actividad->setTextVisible(false);
    p.actividad->setFixedHeight(5);
    p.actividad->setRange(0, 0);
    QSizePolicy reservado = p.actividad->sizePolicy();
    reservado.setRetainSizeWhenHidden(true);
    p.actividad->setSizePolicy(reservado);
    caja->addLayout(fila);
    caja->addWidget(p.actividad);
    return p;
}

void PintarPanelContadores(const PanelContadores& p, const QString& iniciales, const QString& condicionadas,
                           const QString& reducidas, const QString& base, bool progreso, bool calculando) {
    p.lblApuestasIniciales->setText(iniciales);
    p.lblApuestasCondicionadas->setText(condicionadas);
    p.lblApuestasReducidas->setText(reducidas);
    p.lblTipoCombinacion->setText(base);
    const QFont cifra = Letra(p.panel->font(), FactorCifra, true);
    for (QLabel* contador : {p.lblApuestasIniciales, p.lblApuestasCondicionadas, p.lblApuestasReducidas})
        contador->setFont(progreso && contador == p.lblApuestasCondicionadas ? Letra(p.panel->font(), 1.3, false)
                                                                             : cifra);
    p.actividad->setVisible(calculando);
}

void PintarAlVuelo(const PanelContadores& p, const QString& texto, bool alDia) {
    p.lblAlVuelo->setText(texto);
    p.lblAlVuelo->setForegroundRole(alDia ? QPalette::WindowText : QPalette::PlaceholderText);
}

PanelEspera CrearPanelEspera(QWidget* padre, std::string_view texto) {
    PanelEspera p;
    p.picVentanaEspera = new QFrame(padre);
    p.picVentanaEspera->setObjectName(Q("picVentanaEspera"));
    p.picVentanaEspera->setFrameStyle(QFrame::StyledPanel | QFrame::Raised);
    p.picVentanaEspera->setAutoFillBackground(true);
    auto* caja = new QVBoxLayout(p.picVentanaEspera);
    caja->setContentsMargins(24, 20, 24, 20);
    caja->setSpacing(12);
    auto* rotulo = new QLabel(Q(texto), p.picVentanaEspera);
    rotulo->setFont(Letra(padre->font(), 1.2, true));
    p.lblProgressBar = new QProgressBar(p.picVentanaEspera);
    p.lblProgressBar->setObjectName(Q("lblProgressBar"));
    p.lblProgressBar->setAccessibleName(rotulo->text());
    p.lblProgressBar->setRange(0, AnchoBarra);
    p.lblProgressBar->setMinimumWidth(320);
    caja->addWidget(rotulo);
    caja->addWidget(p.lblProgressBar);
    p.picVentanaEspera->hide();
    return p;
}

void PintarPanelEspera(const PanelEspera& p, const Espera& espera) {
    p.picVentanaEspera->setVisible(espera.Visible);
    if (!espera.Visible) return;
    p.lblProgressBar->setValue(qRound(qBound(0.0, espera.Fraccion, 1.0) * AnchoBarra));
    p.picVentanaEspera->adjustSize();
    p.picVentanaEspera->move(p.picVentanaEspera->parentWidget()->rect().center() - p.picVentanaEspera->rect().center());
    p.picVentanaEspera->raise();
}
