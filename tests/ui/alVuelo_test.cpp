// The counts that follow the settings: the picture in the dialogs and the line of the main window.
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QTreeWidget>
#include <QtTest/QTest>

#include "DialogosFiltro.h"
#include "Guion.h"
#include "PanelReparto.h"
#include "TablaFiltros.h"
#include "TextosAlVuelo.h"
#include "Ventanas.h"
#include "frmPrincipal.h"
#include "modGeneral.h"

namespace {

// Bets of 1 to n whose sum lies between the limits, counted by choosing numbers one by one.
int64_t ConSuma(int n, int desde, int hasta) {
    std::vector<std::vector<int64_t>> formas(7, std::vector<int64_t>(300));
    formas[0][0] = 1;
    for (int numero = 1; numero <= n; ++numero)
        for (size_t k = 6; k > 0; --k)
            for (size_t s = 299; s >= static_cast<size_t>(numero); --s)
                formas[k][s] += formas[k - 1][s - static_cast<size_t>(numero)];
    int64_t suma = 0;
    for (int s = std::max(desde, 0); s <= std::min(hasta, 299); ++s) suma += formas[6][static_cast<size_t>(s)];
    return suma;
}

struct Dialogo : Guion {
    std::unique_ptr<QDialog> ventana;

    void Abrir(int k) {
        ventana = CrearDialogoFiltro(k, sesion, entorno, nullptr);
        ventana->show();
        Esperar();
    }
    void Esperar() const {
        const auto* panel = static_cast<PanelReparto*>(Hijo<QWidget>(*ventana, "panelReparto"));
        ASSERT_TRUE(QTest::qWaitFor([&] { return !panel->EnMarcha(); }, 20000));
    }
    std::string Linea(const std::string& nombre) const { return Utf8(Hijo<QLabel>(*ventana, nombre)->text()); }
    const Barras& Grafico() const { return Hijo<GraficoBarras>(*ventana, "graficoReparto")->Datos(); }
    void PulsarBarra(size_t i) const {
        auto* grafico = Hijo<GraficoBarras>(*ventana, "graficoReparto");
        QTest::mouseClick(grafico, Qt::LeftButton, {}, grafico->Dibujo().Rectangulo(i).center().toPoint());
        Esperar();
    }
};

int64_t SumaDe(const Barras& barras, int64_t Barra::*campo) {
    int64_t suma = 0;
    for (const Barra& barra : barras.barras) suma += barra.*campo;
    return suma;
}

} // namespace

// The maximum grows digit by digit and value by value, faster than a count takes, and nothing is stored.
TEST(AlVueloEnDialogos, LaLineaSigueAlIntervaloDeSUMAS) {
    constexpr int Numeros = 30;
    Dialogo d;
    d.MarcarHasta(Numeros);
    d.Abrir(kSUMAS);
    const int64_t todas = ConSuma(Numeros, 0, 299);
    EXPECT_EQ(d.Linea("lblPasan"), TextoPasan(static_cast<int32_t>(todas), static_cast<int32_t>(todas), d.entorno));
    auto* maxima = Hijo<QLineEdit>(*d.ventana, "txtSumaMaxima_0");
    for (const int minima : {40, 90, 140}) {
        Hijo<QLineEdit>(*d.ventana, "txtSumaMinima_0")->setFocus();
        Hijo<QLineEdit>(*d.ventana, "txtSumaMinima_0")->selectAll();
        QTest::keyClicks(Hijo<QLineEdit>(*d.ventana, "txtSumaMinima_0"), QString::number(minima));
        for (int hasta = minima; hasta <= minima + 20; ++hasta) {
            maxima->selectAll();
            QTest::keyClicks(maxima, QString::number(hasta));
            if (hasta % 5 != 0) continue;
            d.Esperar();
            const auto pasan = static_cast<int32_t>(ConSuma(Numeros, minima, hasta));
            EXPECT_EQ(d.Linea("lblPasan"), TextoPasan(pasan, static_cast<int32_t>(todas), d.entorno));
            EXPECT_EQ(SumaDe(d.Grafico(), &Barra::parte), pasan);
            EXPECT_EQ(SumaDe(d.Grafico(), &Barra::valor), todas);
        }
    }
    EXPECT_FALSE(d.sesion.condiciones.SUMAS.intervalos[0].EnUso());
}

TEST(AlVueloEnDialogos, UnaBarraSeEligeYSeDejaPulsandola) {
    Dialogo d;
    d.MarcarHasta(15);
    d.sesion.condiciones.lstFiltros[kSUMAS].Activo = true;
    d.sesion.condiciones.SUMAS.intervalos[0] = {21, 40};
    d.Abrir(kDECENAS);
    const std::string nada = d.Linea("lblPasan");
    d.PulsarBarra(2);
    EXPECT_EQ(d.sesion.condiciones.DECENAS.Decena[0], (TablaAciertos{0, 0, 1, 0, 0, 0, 0}));
    EXPECT_TRUE(d.sesion.condiciones.lstFiltros[kDECENAS].Activo);
    EXPECT_EQ(d.Linea("lblPasan"), "Pasan 540 de 5.005 (10,79 %)"); // C(9,2) C(6,4)
    EXPECT_EQ(d.Linea("lblPasanJuntas"), "Con las otras activas: 0 (0,00 %)");
    d.PulsarBarra(2);
    EXPECT_EQ(d.Linea("lblPasan"), nada);
    auto* apartado = Hijo<QComboBox>(*d.ventana, "cboApartado");
    apartado->setCurrentIndex(apartado->count() - 1);
    emit apartado->activated(apartado->currentIndex());
    d.PulsarBarra(3);
    EXPECT_TRUE(Hijo<QAbstractButton>(*d.ventana, "chkFigura_4")->isChecked());
}

TEST(AlVueloEnDialogos, SinBaseLoDiceEnSuSitio) {
    Dialogo d;
    d.Marcar({1, 2, 3});
    d.Abrir(kPARESIMPARES);
    EXPECT_EQ(d.Linea("lblPasan"), "Aún no hay apuestas: la base no llega a 6 números");
    EXPECT_EQ(d.Cajas, Textos{});
}

TEST(AlVueloEnPrincipal, LaLineaSigueALasMarcasYALasCondiciones) {
    Guion g;
    frmPrincipal ventana(g.sesion, g.entorno);
    ventana.show();
    auto* linea = Hijo<QLabel>(ventana, "lblAlVuelo");
    auto* lista = Hijo<QTreeWidget>(ventana, "lstFiltros");
    const auto llega = [&](const char* texto) {
        return QTest::qWaitFor([&] { return linea->text() == Q(texto); }, 20000);
    };
    const auto pulsar = [&](const char* nombre) {
        QTest::mouseClick(Hijo<QAbstractButton>(ventana, nombre), Qt::LeftButton);
    };
    EXPECT_EQ(Utf8(linea->text()), "Al vuelo: la base no llega a 6 números");
    for (int n = 0; n < 12; ++n) pulsar(("lblNumero_" + std::to_string(n)).c_str());
    EXPECT_TRUE(llega("Al vuelo: 924 (100,00 %)"));
    g.sesion.condiciones.PARESIMPARES.ParesActivos[3] = 1;
    g.sesion.condiciones.SUMAS.intervalos[0] = {21, 21};
    lista->setCurrentItem(lista->topLevelItem(kPARESIMPARES));
    QTest::keyClick(lista, Qt::Key_Space);
    EXPECT_TRUE(llega("Al vuelo: 400 (43,29 %)"));
    EXPECT_TRUE(QTest::qWaitFor(
        [&] { return lista->topLevelItem(kSUMAS)->toolTip(1).startsWith(Q("Sola elimina 923 apuestas\n")); }));
    EXPECT_TRUE(lista->topLevelItem(kPARESIMPARES)
                    ->toolTip(1)
                    .startsWith(Q("Sola elimina 524 apuestas, que ninguna otra condición elimina\n")));
    // A change while the last one is still being waited for: only the state in the end counts.
    lista->setCurrentItem(lista->topLevelItem(kSUMAS));
    QTest::keyClick(lista, Qt::Key_Space);
    pulsar("lblNumero_20");
    EXPECT_TRUE(llega("Al vuelo: 1 (0,06 %)"));
    EXPECT_EQ(Utf8(Hijo<QLabel>(ventana, "lblApuestasCondicionadas")->text()), "1.716");
    g.sesion.condiciones.SUMAS.intervalos[0] = {22, 22};
    pulsar("lblNumero_20");
    EXPECT_TRUE(llega("Al vuelo: 0 (ninguna cumple todas)"));
    EXPECT_EQ(g.Cajas, Textos{});
}
