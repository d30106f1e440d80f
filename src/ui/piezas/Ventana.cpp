#include "Ventana.h"

#include "TextoQt.h"

namespace {

void PonerCabecera(QVBoxLayout& caja, std::string_view titulo, std::string_view frase) {
    auto* cabecera = new QLabel(Q(titulo));
    QFont letra = cabecera->font();
    letra.setPointSizeF(letra.pointSizeF() * 1.4);
    letra.setBold(true);
    cabecera->setFont(letra);
    auto* explicacion = new QLabel(Q(frase));
    explicacion->setWordWrap(true);
    caja.addWidget(cabecera);
    caja.addWidget(explicacion);
    caja.addSpacing(Paso);
}

} // namespace

QVBoxLayout* EmpezarVentana(QDialog& dialogo, std::string_view nombre, std::string_view titulo,
                            std::string_view cabecera, std::string_view frase) {
    dialogo.setObjectName(Q(nombre));
    dialogo.setWindowTitle(Q(titulo));
    auto* caja = new QVBoxLayout(&dialogo);
    caja->setContentsMargins(2 * Paso, 2 * Paso, 2 * Paso, 2 * Paso);
    caja->setSpacing(Paso);
    PonerCabecera(*caja, cabecera, frase);
    return caja;
}

QVBoxLayout* CrearCuerpo(QVBoxLayout& caja, QWidget*& cuerpo) {
    cuerpo = new QWidget;
    auto* dentro = new QVBoxLayout(cuerpo);
    dentro->setContentsMargins(0, 0, 0, 0);
    dentro->setSpacing(Paso);
    caja.addWidget(cuerpo, 1);
    return dentro;
}

void AjustarTamanio(QDialog& dialogo) {
    QLayout& capa = *dialogo.layout();
    const QSize previsto = capa.totalSizeHint();
    const int alto = capa.hasHeightForWidth() ? capa.totalHeightForWidth(previsto.width()) : previsto.height();
    dialogo.setMinimumSize(previsto.width(), alto);
    dialogo.resize(previsto.width(), alto);
}

QGridLayout* CrearCaja(QBoxLayout& donde, std::string_view titulo) {
    auto* caja = new QGroupBox(Q(titulo));
    auto* rejilla = new QGridLayout(caja);
    rejilla->setSpacing(Paso);
    rejilla->setContentsMargins(Paso * 3 / 2, Paso, Paso * 3 / 2, Paso * 3 / 2);
    donde.addWidget(caja);
    return rejilla;
}

QPushButton* CrearBoton(std::string_view nombre, std::string_view texto, std::string_view ayuda,
                        std::function<void()> alPulsar) {
    auto* boton = new QPushButton(Q(texto));
    boton->setObjectName(Q(nombre));
    boton->setToolTip(Q(ayuda));
    boton->setAutoDefault(false);
    QObject::connect(boton, &QPushButton::clicked, boton, [alPulsar = std::move(alPulsar)] { alPulsar(); });
    return boton;
}
