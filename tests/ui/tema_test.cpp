#include "tema.h"

#include <QPalette>

#include <gtest/gtest.h>

#include "Ordenes.h"

TEST(tema, ElContrasteEsElDeLasLuminancias) {
    EXPECT_NEAR(Contraste(Qt::black, Qt::white), 21, 1e-9);
    EXPECT_NEAR(Contraste(Qt::white, Qt::white), 1, 1e-9);
    EXPECT_NEAR(Contraste(QColor(0x77, 0x77, 0x77), Qt::white), 4.48, 0.01);
}

TEST(tema, ElResalteSeLeeConCualquierPaleta) {
    for (const QColor fondo : {QColor(0x30, 0x8c, 0xc6), QColor(0xff, 0xee, 0x00), QColor(0x10, 0x20, 0x80)})
        for (const QColor texto : {QColor(Qt::white), QColor(Qt::black)}) {
            QPalette paleta;
            paleta.setColor(QPalette::Highlight, fondo);
            paleta.setColor(QPalette::HighlightedText, texto);
            EXPECT_GE(Contraste(Resalte(paleta), texto), 4.5) << fondo.name().toStdString();
        }
}

TEST(tema, CadaOrdenDeLaBarraTieneSuIconoEnElColorDelTexto) {
    QPalette paleta;
    paleta.setColor(QPalette::Active, QPalette::ButtonText, QColor(0x12, 0x34, 0x56));
    for (const EntradaBarra& entrada : lblMenu) {
        const QImage imagen = IconoLinea(entrada.Icono, paleta).pixmap(24, 24).toImage();
        int trazo = 0;
        for (int y = 0; y < imagen.height(); ++y)
            for (int x = 0; x < imagen.width(); ++x)
                if (const QColor punto = imagen.pixelColor(x, y); punto.alpha() > 200) {
                    ++trazo;
                    EXPECT_NEAR(punto.red(), 0x12, 2) << entrada.Icono;
                    EXPECT_NEAR(punto.blue(), 0x56, 2) << entrada.Icono;
                }
        EXPECT_GT(trazo, 10) << entrada.Icono;
    }
}
