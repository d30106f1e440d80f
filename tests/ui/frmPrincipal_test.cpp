#include "frmPrincipal.h"

#include "Guion.h"
#include "Ventanas.h"

TEST(frmPrincipal, AbreConSuTitulo) {
    Guion guion;
    frmPrincipal ventana(guion.sesion, guion.entorno);
    ventana.show();
    EXPECT_EQ(Utf8(ventana.windowTitle()), "TOMBOLERA 11.1[*]");
}
