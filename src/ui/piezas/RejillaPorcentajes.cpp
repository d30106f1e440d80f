#include "RejillaPorcentajes.h"

#include "TextoQt.h"

namespace {

// Paper and print of the ticket, the same under a light and a dark desktop.
constexpr QColor Papel(0xFF, 0xFD, 0xF5), Tinta(0xB8, 0x10, 0x2A), Cifra(0x1C, 0x1C, 0x1C), Apagada(0x6B, 0x62, 0x5E);
constexpr QColor ConApuestas(0xFF, 0xEF, 0x9E);
constexpr int Hueco = 6, AltoCelda = 26;

void Colorear(QLabel& etiqueta, const QColor& fondo, const QColor& texto) {
    QPalette paleta = etiqueta.palette();
    paleta.setColor(QPalette::Window, fondo);
    paleta.setColor(QPalette::WindowText, texto);
    etiqueta.setPalette(paleta);
}

void ColorearCelda(RejillaPorcentajes& r, size_t n) {
    const QColor fondo = r.conApuestas[n] ? ConApuestas : Papel;
    Colorear(*r.numero[n], fondo, Tinta);
    Colorear(*r.lblN[n], fondo, r.conApuestas[n] ? Cifra : Apagada);
}

QLabel* CrearEtiqueta(Qt::Alignment lado, const QString& masAncha, bool negrita) {
    auto* etiqueta = new QLabel;
    QFont letra = etiqueta->font();
    letra.setBold(negrita);
    etiqueta->setFont(letra);
    etiqueta->setAlignment(lado | Qt::AlignVCenter);
    etiqueta->setAutoFillBackground(true);
    etiqueta->setMargin(3);
    etiqueta->setText(masAncha);
    etiqueta->setMinimumSize(etiqueta->sizeHint().expandedTo({0, AltoCelda}));
    etiqueta->clear();
    return etiqueta;
}

RejillaPorcentajes CrearPapel(size_t cuantos) {
    RejillaPorcentajes r;
    r.papel = new QFrame;
    r.papel->setFrameStyle(QFrame::StyledPanel);
    r.papel->setAutoFillBackground(true);
    QPalette paleta = r.papel->palette();
    paleta.setColor(QPalette::Window, Papel);
    r.papel->setPalette(paleta);
    r.rejilla = new QGridLayout(r.papel);
    r.rejilla->setContentsMargins(Hueco, Hueco, Hueco, Hueco);
    r.rejilla->setHorizontalSpacing(0);
    r.rejilla->setVerticalSpacing(3);
    for (const int c : {2, 5, 8, 11}) r.rejilla->setColumnMinimumWidth(c, Hueco);
    r.numero.resize(cuantos);
    r.lblN.resize(cuantos);
    r.conApuestas.resize(cuantos);
    return r;
}

// Cell `i` in its row and in one of the five columns of pairs.
void PonerCelda(RejillaPorcentajes& r, size_t i, const QString& nombre, std::string_view masAncha, int fila,
                int columna) {
    const QString texto = QString::number(i);
    r.numero[i] = CrearEtiqueta(Qt::AlignLeft, Q("49"), false);
    r.numero[i]->setText(texto);
    r.lblN[i] = CrearEtiqueta(Qt::AlignRight, Q(masAncha), true);
    r.lblN[i]->setObjectName(nombre);
    r.lblN[i]->setToolTip(Q("Parte de las apuestas que lleva el ") + texto);
    r.rejilla->addWidget(r.numero[i], fila, 3 * columna);
    r.rejilla->addWidget(r.lblN[i], fila, 3 * columna + 1);
    ColorearCelda(r, i);
}

} // namespace

RejillaPorcentajes CrearRejillaPorcentajes(int maximo, std::string_view masAncha) {
    RejillaPorcentajes r = CrearPapel(static_cast<size_t>(maximo) + 1);
    const bool columnas = maximo == NumeroMaximoBoleto;
    for (int n = 1; n <= maximo; ++n)
        PonerCelda(r, static_cast<size_t>(n), NombreIndexado("lblN", n - 1), masAncha, columnas ? n % 10 : (n - 1) / 5,
                   columnas ? n / 10 : (n - 1) % 5);
    return r;
}

RejillaPorcentajes CrearRejillaPorcentajesDigitos(const Juego& juego, std::string_view masAncha) {
    RejillaPorcentajes r = CrearPapel(static_cast<size_t>(juego.DigitoMaximo) + 1);
    for (int d = juego.DigitoMinimo; d <= juego.DigitoMaximo; ++d) {
        const int lugar = d - juego.DigitoMinimo;
        PonerCelda(r, static_cast<size_t>(d), NombreIndexado("lblR", d), masAncha, lugar / 5, lugar % 5);
    }
    return r;
}

void PintarRejillaPorcentajes(RejillaPorcentajes& r, std::span<const std::string> textos,
                              std::span<const bool> conApuestas) {
    for (size_t n = 0; n < r.lblN.size() && n < textos.size(); ++n) {
        if (r.lblN[n] == nullptr) continue;
        r.lblN[n]->setText(Q(textos[n]));
        if (r.conApuestas[n] == conApuestas[n]) continue;
        r.conApuestas[n] = conApuestas[n];
        ColorearCelda(r, n);
    }
}
