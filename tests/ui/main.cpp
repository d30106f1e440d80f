#include <QApplication>

#include <gtest/gtest.h>

#include "Accesible.h"
#include "Estilo.h"

int main(int argc, char** argv) {
    qputenv("QT_QPA_PLATFORM", "offscreen");
    testing::InitGoogleTest(&argc, argv);
    QApplication aplicacion(argc, argv);
    QApplication::setStyle(new Estilo);
    InstalarAccesibilidad();
    return RUN_ALL_TESTS();
}
