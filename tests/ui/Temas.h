// A dark desktop, and the contrast of what is painted.
#pragma once

#include <QApplication>
#include <QPalette>

#include <string>
#include <vector>

QPalette PaletaOscura();

/// The application's palette while it lives.
struct ConPaleta {
    explicit ConPaleta(const QPalette& paleta) { QApplication::setPalette(paleta); }
    ~ConPaleta() { QApplication::setPalette(anterior); }
    ConPaleta(const ConPaleta&) = delete;
    ConPaleta& operator=(const ConPaleta&) = delete;
    QPalette anterior = QApplication::palette();
};

/// The texts of a window's enabled controls that stand out from their background by less than 4.5 to 1 in
/// its picture, each with its control and its contrast.
std::vector<std::string> TextosApagados(QWidget& ventana);
