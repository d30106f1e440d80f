// The dialogs with several grids of numbers and numbered blocks, driven through their controls.
#include <QAbstractButton>
#include <QClipboard>
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QtTest/QTest>

#include "FiltroAbierto.h"
#include "Guion.h"
#include "Pintores.h"
#include "Sesiones.h"
#include "TablaFiltros.h"
#include "Ventanas.h"

namespace {

QAbstractButton* Boton(const QDialog& dialogo, const std::string& nombre) {
    return Hijo<QAbstractButton>(dialogo, nombre);
}

void IrA(const QDialog& dialogo, const std::string& grupo) {
    auto* campo = Hijo<QLineEdit>(dialogo, "txtNumeroGrupo");
    campo->selectAll();
    QTest::keyClicks(campo, Q(grupo));
    QTest::keyClick(campo, Qt::Key_Return);
}

void ElegirAcierto(const QDialog& dialogo, size_t tabla, int acierto) {
    EnModal([&](QDialog& aciertos) { Pulsar(aciertos, "lblAcierto_" + std::to_string(acierto)); });
    Pulsar(dialogo, "cmdModificar_" + std::to_string(tabla));
}

std::string Celda(size_t panel, int numero) {
    const std::string indice = "_" + std::to_string(numero - 1);
    return panel == 0 ? "lblNumero" + indice : "lblNumero_G" + std::to_string(panel + 1) + indice;
}

using Marcados = std::vector<int>;

Marcados Numeros(const MarcasNumeros& marcas) {
    Marcados numeros;
    for (size_t n = 1; n < marcas.size(); ++n)
        if (marcas[n] == 1) numeros.push_back(static_cast<int>(n));
    return numeros;
}

/// The dialogs with grids: how many each has, and the flags of a grid when it opens.
struct ConRejillas {
    int k;
    size_t rejillas;
    std::function<const MarcasNumeros&(const Condiciones&, size_t)> marcas;
};

const MarcasNumeros& Bola(const Condiciones& c, size_t i) {
    return c.POSICIONES.Bola[i];
}

const MarcasNumeros& Grupo(const Condiciones& c, size_t i) {
    return c.GRUPOS.grupo[i].numeros;
}

const MarcasNumeros& GrupoEntreLimites(const Condiciones& c, size_t i) {
    return c.GRUPOSENTRELIMITES.grupo[i].numeros;
}

const ConRejillas ConRejilla[] = {
    {kPOSICIONES, 6, Bola}, {kGRUPOS, 3, Grupo}, {kGRUPOSENTRELIMITES, 3, GrupoEntreLimites}};

} // namespace

TEST(DialogosDeBloques, CadaCeldaLlegaASuMarcaYBorrarSoloASuRejilla) {
    for (const ConRejillas& d : ConRejilla) {
        SCOPED_TRACE(d.k);
        Guion guion;
        const auto dialogo = Abierto(guion, d.k);
        for (size_t i = 0; i < d.rejillas; ++i) {
            EXPECT_FALSE(Activa(guion, d.k));
            const int otro = static_cast<int>(i) + 10;
            for (const int n : {1, otro, 49}) Pulsar(*dialogo, Celda(i, n));
            EXPECT_EQ(Numeros(d.marcas(guion.sesion.condiciones, i)), (Marcados{1, otro, 49}));
            EXPECT_TRUE(Boton(*dialogo, Celda(i, otro))->isChecked());
            EXPECT_TRUE(Activa(guion, d.k));
            Pulsar(*dialogo, Celda(i, 1));
            EXPECT_FALSE(Boton(*dialogo, Celda(i, 1))->isChecked());
            Pulsar(*dialogo, "imgActivar");
        }
        Pulsar(*dialogo, "imgININumeros_1");
        for (size_t i = 0; i < d.rejillas; ++i)
            EXPECT_EQ(Numeros(d.marcas(guion.sesion.condiciones, i)),
                      i == 1 ? Marcados{} : (Marcados{static_cast<int>(i) + 10, 49}));
        EXPECT_TRUE(Activa(guion, d.k));
    }
}

TEST(DialogosDeBloques, EnEurodreamsHayCuarentaNumeros) {
    for (const ConRejillas& d : ConRejilla) {
        Guion guion;
        CambiarJuego(guion.sesion, EURODREAMS);
        const auto dialogo = Abierto(guion, d.k);
        EXPECT_TRUE(Boton(*dialogo, Celda(d.rejillas - 1, 40))->isVisible());
        EXPECT_FALSE(Boton(*dialogo, Celda(d.rejillas - 1, 41))->isVisible());
    }
}

TEST(DialogosDeBloques, ArrastrarMarcaYDesmarcaVarios) {
    for (const ConRejillas& d : ConRejilla) {
        Guion guion;
        const auto dialogo = Abierto(guion, d.k);
        const auto arrastrar = [&] {
            auto* desde = Boton(*dialogo, Celda(2, 11));
            QTest::mousePress(desde, Qt::LeftButton);
            for (const int n : {12, 13}) {
                const QPoint en = desde->mapFromGlobal(
                    Boton(*dialogo, Celda(2, n))->mapToGlobal(Boton(*dialogo, Celda(2, n))->rect().center()));
                QMouseEvent mover(QEvent::MouseMove, en, desde->mapToGlobal(en), Qt::NoButton, Qt::LeftButton,
                                  Qt::NoModifier);
                QApplication::sendEvent(desde, &mover);
            }
            QTest::mouseRelease(desde, Qt::LeftButton);
        };
        arrastrar();
        EXPECT_EQ(Numeros(d.marcas(guion.sesion.condiciones, 2)), (Marcados{11, 12, 13}));
        arrastrar();
        EXPECT_EQ(Numeros(d.marcas(guion.sesion.condiciones, 2)), Marcados{});
    }
}

TEST(DialogosDeBloques, CopiarYPegarVanALaRejillaConElFoco) {
    for (const ConRejillas& d : ConRejilla) {
        Guion guion;
        const auto dialogo = Abierto(guion, d.k);
        ASSERT_TRUE(QTest::qWaitForWindowActive(dialogo.get()));
        QApplication::clipboard()->setText(QStringLiteral("3, 7 12"));
        auto* celda = Boton(*dialogo, Celda(1, 5));
        celda->setFocus();
        QTest::keyClick(celda, Qt::Key_V, Qt::ControlModifier);
        EXPECT_EQ(Numeros(d.marcas(guion.sesion.condiciones, 1)), (Marcados{3, 7, 12}));
        EXPECT_EQ(Numeros(d.marcas(guion.sesion.condiciones, 0)), Marcados{});
        EXPECT_TRUE(Boton(*dialogo, Celda(1, 12))->isChecked());
        QApplication::clipboard()->clear();
        QTest::keyClick(celda, Qt::Key_C, Qt::ControlModifier);
        EXPECT_EQ(Utf8(QApplication::clipboard()->text()), "3, 7, 12");
    }
}

TEST(DialogosDeBloques, PasarDePaginaEIrAUnGrupo) {
    for (const int k : {kGRUPOS, kGRUPOSENTRELIMITES}) {
        SCOPED_TRACE(k);
        Guion guion;
        guion.sesion.condiciones.GRUPOS.grupo[209].numeros[8] = 1;
        guion.sesion.condiciones.GRUPOSENTRELIMITES.grupo[209].numeros[8] = 1;
        const auto dialogo = Abierto(guion, k);
        EXPECT_FALSE(Boton(*dialogo, "cmdMENOSBloque")->isEnabled());
        Pulsar(*dialogo, "cmdMASBloque");
        EXPECT_EQ(Texto(*dialogo, "lblTitGrupo_0"), "GRUPO 4");
        Pulsar(*dialogo, "cmdMENOSBloque");
        EXPECT_EQ(Texto(*dialogo, "lblTitGrupo_2"), "GRUPO 3");
        EXPECT_FALSE(Boton(*dialogo, Celda(2, 8))->isChecked());
        IrA(*dialogo, "210");
        EXPECT_EQ(Texto(*dialogo, "lblTitGrupo_2"), "GRUPO 210");
        EXPECT_TRUE(Boton(*dialogo, Celda(2, 8))->isChecked());
        EXPECT_FALSE(Boton(*dialogo, "cmdMASBloque")->isEnabled());
        EXPECT_EQ(Utf8(Hijo<QLineEdit>(*dialogo, "txtNumeroGrupo")->selectedText()), "210");
        EXPECT_EQ(guion.Cajas, Textos{});
        IrA(*dialogo, "211");
        EXPECT_EQ(guion.Cajas, Textos{"[X] ERROR: EL NUMERO DE GRUPO DEBE ESTAR ENTRE 1 y 70"});
        EXPECT_EQ(Texto(*dialogo, "lblTitGrupo_2"), "GRUPO 210");
        EXPECT_FALSE(Activa(guion, k));
    }
}

TEST(DialogosDeBloques, GRUPOSPideAciertosYPosicionesAntesDeCerrar) {
    Guion guion;
    const auto dialogo = Abierto(guion, kGRUPOS);
    const GrupoNumeros& grupo = guion.sesion.condiciones.GRUPOS.grupo[4];
    Pulsar(*dialogo, "cmdMASBloque");
    Pulsar(*dialogo, Celda(1, 7));
    IrA(*dialogo, "60");
    dialogo->close();
    EXPECT_TRUE(dialogo->isVisible());
    EXPECT_EQ(Texto(*dialogo, "lblTitGrupo_2"), "GRUPO 60");
    IrA(*dialogo, "5");
    ElegirAcierto(*dialogo, 1, 2);
    EXPECT_EQ(Texto(*dialogo, "txtAciertos_1"), "2");
    for (int p = 1; p < 6; ++p) Pulsar(*dialogo, "lblAciertosG2_" + std::to_string(p));
    EXPECT_EQ(grupo.posiciones, (std::array<uint8_t, 6>{1, 0, 0, 0, 0, 0}));
    EXPECT_FALSE(Boton(*dialogo, "lblAciertosG2_5")->isChecked());
    Pulsar(*dialogo, "imgVolver");
    EXPECT_TRUE(dialogo->isVisible());
    Pulsar(*dialogo, "lblAciertosG2_3");
    Pulsar(*dialogo, "imgVolver");
    EXPECT_FALSE(dialogo->isVisible());
    EXPECT_EQ(guion.Cajas, (Textos{"[X] ERROR en GRUPO5 : Debe rellenar al menos un acierto",
                                   "[X] ERROR en GRUPO5 : El acierto máximo es mayor que las posiciones marcadas"}));
    EXPECT_EQ(TextoLista(grupo.aciertos), "2");
}

TEST(DialogosDeBloques, GRUPOSENTRELIMITESGuardaLosLimitesYRechazaLosCruzados) {
    Guion guion;
    auto dialogo = Abierto(guion, kGRUPOSENTRELIMITES);
    auto* minimo = Hijo<QComboBox>(*dialogo, "cboIntervalo1");
    EXPECT_EQ(minimo->count(), 211);
    EXPECT_EQ(Utf8(Hijo<QComboBox>(*dialogo, "cboIntervalo2")->currentText()), "210");
    EXPECT_FALSE(Activa(guion, kGRUPOSENTRELIMITES));
    minimo->setCurrentIndex(3);
    EXPECT_TRUE(Activa(guion, kGRUPOSENTRELIMITES));
    Hijo<QComboBox>(*dialogo, "cboIntervalo2")->setCurrentIndex(2);
    dialogo->close();
    EXPECT_TRUE(dialogo->isVisible());
    EXPECT_EQ(guion.Cajas,
              Textos{"[X] ERROR en LIMITE DE GRUPOS : El número de aciertos máximo es menor que el mínimo"});
    minimo->setCurrentIndex(1);
    Pulsar(*dialogo, Celda(0, 9));
    ElegirAcierto(*dialogo, 0, 1);
    dialogo->close();
    EXPECT_FALSE(dialogo->isVisible());
    dialogo = Abierto(guion, kGRUPOSENTRELIMITES);
    EXPECT_EQ(Utf8(Hijo<QComboBox>(*dialogo, "cboIntervalo1")->currentText()), "1");
    EXPECT_EQ(Utf8(Hijo<QComboBox>(*dialogo, "cboIntervalo2")->currentText()), "2");
    EXPECT_EQ(Texto(*dialogo, "txtAciertos_0"), "1");
    EXPECT_TRUE(Boton(*dialogo, Celda(0, 9))->isChecked());
}

TEST(DialogosDeBloques, GRURELACIONADOSPasaDeGrupoYCompactaAlCerrar) {
    Guion guion;
    auto dialogo = Abierto(guion, kGRUPOSRELACIONADOS);
    IrA(*dialogo, "61");
    EXPECT_EQ(guion.Cajas, Textos{"[X] ERROR: EL NUMERO DE GRUPO DEBE ESTAR ENTRE 1 y 60"});
    IrA(*dialogo, "60");
    EXPECT_EQ(Texto(*dialogo, "lblNumeroGrupo"), "GRUPO 60");
    EXPECT_EQ(Texto(*dialogo, "lblTitGrupo_5"), "SUBGRUPO 360");
    EXPECT_FALSE(Boton(*dialogo, "cmdMASBloque")->isEnabled());
    Pulsar(*dialogo, "cmdMENOSBloque");
    EXPECT_EQ(Texto(*dialogo, "lblTitGrupo_0"), "SUBGRUPO 349");
    Pulsar(*dialogo, Celda(2, 8));
    Pulsar(*dialogo, "cmdMASBloque");
    EXPECT_FALSE(Boton(*dialogo, Celda(2, 8))->isChecked());
    Pulsar(*dialogo, "imgVolver");
    EXPECT_TRUE(dialogo->isVisible());
    EXPECT_EQ(guion.Cajas.back(),
              "[X] ERROR en GRUPO59 : Si activa un subgrupo, debe de haber al menos una condición marcada");
    IrA(*dialogo, "59");
    ElegirAcierto(*dialogo, 4, 3);
    EXPECT_EQ(Texto(*dialogo, "txtAciertos_4"), "3");
    Pulsar(*dialogo, "imgVolver");
    EXPECT_FALSE(dialogo->isVisible());
    const RegistroGRUPOSRELACIONADOS& registro = guion.sesion.condiciones.GRUPOSRELACIONADOS;
    EXPECT_EQ(Numeros(registro.subgrupos[348]), Marcados{8});
    EXPECT_EQ(Numeros(registro.subgrupos[350]), Marcados{});
    EXPECT_EQ(TextoLista(registro.condiciones[352]), "3");
    dialogo = Abierto(guion, kGRUPOSRELACIONADOS);
    EXPECT_EQ(Texto(*dialogo, "lblNumeroGrupo"), "GRUPO 1");
}

TEST(DialogosDeBloques, VALORACIONESSumaGuardaYRechazaElGrupoAMedias) {
    Guion guion;
    guion.Marcar({3, 7, 12, 30, 41, 49});
    auto dialogo = Abierto(guion, kVALORACIONES);
    EXPECT_FALSE(Activa(guion, kVALORACIONES));
    auto* siete = Hijo<QComboBox>(*dialogo, "cboPorcentaje_6");
    EXPECT_EQ(siete->count(), 101);
    EXPECT_EQ(Utf8(siete->itemText(0)), "------");
    const auto* ocho = Hijo<QComboBox>(*dialogo, "cboPorcentaje_7");
    EXPECT_EQ(ocho->count(), 1);
    EXPECT_FALSE(ocho->isEnabled());
    siete->setCurrentIndex(60);
    Hijo<QComboBox>(*dialogo, "cboPorcentaje_48")->setCurrentIndex(100);
    EXPECT_TRUE(Activa(guion, kVALORACIONES));
    EXPECT_EQ(Texto(*dialogo, "lblSumaPorcentajes"), "160");
    EXPECT_EQ(Texto(*dialogo, "lblTitNumeros"), "2 Valoraciones Seleccionadas");
    Pulsar(*dialogo, "cmdMASBloque");
    Pulsar(*dialogo, "imgVolver");
    EXPECT_TRUE(dialogo->isVisible());
    EXPECT_EQ(guion.Cajas, Textos(2, "[X] ERROR GRUPO 1: Hay seleccionadas valoraciones de números y no ha activado "
                                     "ningún intervalo"));
    EXPECT_EQ(Texto(*dialogo, "lblNumeroGrupo"), "GRUPO 1");
    for (const std::string campo : {"txtValoracionMinima_2", "txtValoracionMaxima_2"}) {
        Hijo<QLineEdit>(*dialogo, campo)->selectAll();
        QTest::keyClicks(Hijo<QLineEdit>(*dialogo, campo), QStringLiteral("160"));
    }
    Pulsar(*dialogo, "cmdMASBloque");
    EXPECT_EQ(Texto(*dialogo, "lblNumeroGrupo"), "GRUPO 2");
    EXPECT_EQ(siete->currentIndex(), 0);
    EXPECT_EQ(Texto(*dialogo, "txtValoracionMaxima_2"), "0");
    Pulsar(*dialogo, "imgVolver");
    EXPECT_FALSE(dialogo->isVisible());
    const GrupoValoraciones& grupo = guion.sesion.condiciones.VALORACIONES.grupo[0];
    EXPECT_EQ(grupo.valoraciones[7], 60);
    EXPECT_EQ(grupo.valoraciones[49], 100);
    EXPECT_EQ(grupo.intervalos[2], (Intervalo{160, 160}));
}

TEST(DialogosDeBloques, VALORACIONESEscribeYLeeSuFichero) {
    CarpetaTemporal carpeta;
    Guion guion;
    guion.Marcar({3, 7});
    const auto dialogo = Abierto(guion, kVALORACIONES);
    auto* siete = Hijo<QComboBox>(*dialogo, "cboPorcentaje_6");
    siete->setCurrentIndex(35);
    guion.Ficheros = {carpeta.Ruta("marcas"), carpeta.Ruta("marcas.txt"), carpeta.Ruta("no_hay.txt")};
    Pulsar(*dialogo, "cmdGuardarPorcentajes");
    Pulsar(*dialogo, "imgININumeros");
    EXPECT_EQ(siete->currentIndex(), 0);
    EXPECT_EQ(Texto(*dialogo, "lblSumaPorcentajes"), "0");
    Pulsar(*dialogo, "cmdAbrirPorcentajes");
    EXPECT_EQ(siete->currentIndex(), 35);
    EXPECT_EQ(Texto(*dialogo, "lblSumaPorcentajes"), "35");
    EXPECT_EQ(guion.Cajas, Textos{});
    Pulsar(*dialogo, "cmdAbrirPorcentajes");
    EXPECT_EQ(guion.Cajas, Textos{"[X] ERROR AL CARGAR ALGUNOS O TODOS LOS VALORES DE LOS PORCENTAJES"});
    EXPECT_EQ(siete->currentIndex(), 35);
}

TEST(DialogosDeBloques, VALORACIONESSeActivaAlEnfocarUnaLista) {
    Guion guion;
    guion.Marcar({3});
    const auto dialogo = Abierto(guion, kVALORACIONES);
    ASSERT_TRUE(QTest::qWaitForWindowActive(dialogo.get()));
    EXPECT_FALSE(Activa(guion, kVALORACIONES));
    Hijo<QComboBox>(*dialogo, "cboPorcentaje_2")->setFocus(Qt::TabFocusReason);
    EXPECT_TRUE(Activa(guion, kVALORACIONES));
}

TEST(DialogosDeBloques, CRGuardaPorcentajesYCoeficientes) {
    Guion guion;
    auto dialogo = Abierto(guion, kCOEFICIENTERENTABILIDAD);
    auto* lista = Hijo<QListWidget>(*dialogo, "lstCR");
    EXPECT_EQ(lista->count(), 100);
    EXPECT_EQ(Utf8(lista->item(99)->text()), std::string("9") + guion.entorno.SeparadorDecimal + "9");
    EXPECT_FALSE(Activa(guion, kCOEFICIENTERENTABILIDAD));
    lista->setFocus();
    lista->setCurrentRow(13);
    QTest::keyClick(lista, Qt::Key_Space);
    EXPECT_TRUE(Activa(guion, kCOEFICIENTERENTABILIDAD));
    auto* apostado = Hijo<QLineEdit>(*dialogo, "txtPorcentajesApostados_48");
    auto* real = Hijo<QLineEdit>(*dialogo, "txtPorcentajesReales_0");
    apostado->selectAll();
    QTest::keyClicks(apostado, QStringLiteral("x7"));
    real->clear();
    QTest::keyClicks(real, QStringLiteral("8"));
    QTest::keyClick(real, Qt::Key_Backspace);
    Pulsar(*dialogo, "imgCalcular");
    EXPECT_EQ(guion.Cajas, Textos{"[X] ERROR EN NUMERO 1: EL % ESTA EN BLANCO (% REALES)"});
    EXPECT_TRUE(apostado->isEnabled());
    Pulsar(*dialogo, "imgVolver");
    EXPECT_FALSE(dialogo->isVisible());
    const RegistroCOEFICIENTERENTABILIDAD& registro = guion.sesion.condiciones.COEFICIENTERENTABILIDAD;
    EXPECT_EQ(registro.RangosCR[13], 1);
    EXPECT_EQ(registro.PorcentajesApostados[49], 7);
    EXPECT_EQ(registro.PorcentajesReales[1], 12.25);
    dialogo = Abierto(guion, kCOEFICIENTERENTABILIDAD);
    EXPECT_EQ(Hijo<QListWidget>(*dialogo, "lstCR")->item(13)->checkState(), Qt::Checked);
    EXPECT_EQ(Hijo<QListWidget>(*dialogo, "lstCR")->item(14)->checkState(), Qt::Unchecked);
    EXPECT_EQ(Texto(*dialogo, "txtPorcentajesApostados_48"), "7");
}

TEST(DialogosDeBloques, CRSeEligeConUnClicEnCualquierSitioDeLaFila) {
    Guion guion;
    const auto dialogo = Abierto(guion, kCOEFICIENTERENTABILIDAD);
    auto* lista = Hijo<QListWidget>(*dialogo, "lstCR");
    const auto elegido = [&](int fila) { return lista->item(fila)->checkState() == Qt::Checked; };
    const auto pulsar = [&](int fila, double ancho) {
        const QRect r = lista->visualItemRect(lista->item(fila));
        EXPECT_GE(r.height(), 22);
        QTest::mouseClick(lista->viewport(), Qt::LeftButton, {},
                          {r.left() + static_cast<int>(ancho * r.width()), r.center().y()});
    };
    for (const double ancho : {0.05, 0.3, 0.95}) {
        SCOPED_TRACE(ancho);
        pulsar(4, ancho);
        EXPECT_TRUE(elegido(4));
        EXPECT_FALSE(elegido(3));
        pulsar(4, ancho);
        EXPECT_FALSE(elegido(4));
    }
    const QPoint texto = lista->visualItemRect(lista->item(2)).center();
    QTest::mouseClick(lista->viewport(), Qt::RightButton, {}, texto);
    EXPECT_FALSE(elegido(2));
    QTest::mouseClick(lista->viewport(), Qt::LeftButton, {}, texto);
    QTest::mouseDClick(lista->viewport(), Qt::LeftButton, {}, texto);
    EXPECT_TRUE(elegido(2));
    Pulsar(*dialogo, "imgVolver");
    EXPECT_EQ(guion.sesion.condiciones.COEFICIENTERENTABILIDAD.RangosCR[2], 1);
}

TEST(DialogosDeBloques, CRNoAdmiteOrdenesMientrasCalcula) {
    Guion guion;
    const auto dialogo = Abierto(guion, kCOEFICIENTERENTABILIDAD);
    const auto* boton = Boton(*dialogo, "imgCalcular");
    std::vector<bool> habilitado;
    guion.entorno.CederTurno = [&] {
        PintarAbiertas();
        habilitado = {boton->isEnabled(), Hijo<QListWidget>(*dialogo, "lstCR")->isEnabled(),
                      Hijo<QLineEdit>(*dialogo, "txtPorcentajesReales_0")->isEnabled()};
    };
    Pulsar(*dialogo, "imgCalcular");
    EXPECT_EQ(habilitado, std::vector<bool>(3, false));
    EXPECT_TRUE(boton->isEnabled());
    EXPECT_EQ(guion.Cajas, Textos{});
}

TEST(DialogosDeBloques, CREscribeYLeeCadaTabla) {
    CarpetaTemporal carpeta;
    for (const std::string tabla : {"Apostados", "Reales"}) {
        SCOPED_TRACE(tabla);
        Guion guion;
        const auto dialogo = Abierto(guion, kCOEFICIENTERENTABILIDAD);
        const std::string ultimo = "txtPorcentajes" + tabla + "_48";
        const std::string otro = tabla == "Reales" ? "txtPorcentajesApostados_48" : "txtPorcentajesReales_48";
        const std::string antes = Texto(*dialogo, ultimo), deOtro = Texto(*dialogo, otro);
        guion.Ficheros = {carpeta.Ruta(tabla), carpeta.Ruta(tabla + ".txt"), carpeta.Ruta("no_hay.txt")};
        Pulsar(*dialogo, "imgGuardarPorcentajes" + tabla);
        Pulsar(*dialogo, "imgINIPorcentajes" + tabla);
        EXPECT_EQ(Texto(*dialogo, ultimo), "0");
        EXPECT_EQ(Texto(*dialogo, otro), deOtro);
        EXPECT_TRUE(Activa(guion, kCOEFICIENTERENTABILIDAD));
        Pulsar(*dialogo, "imgAbrirPorcentajes" + tabla);
        EXPECT_EQ(Texto(*dialogo, ultimo), antes);
        EXPECT_EQ(guion.Cajas, Textos{});
        Pulsar(*dialogo, "imgAbrirPorcentajes" + tabla);
        EXPECT_EQ(guion.Cajas, Textos{"[X] ERROR AL ABRIR LOS PORCENTAJES"});
    }
}
