#include "GraficoBarras.h"

#include <QApplication>
#include <QClipboard>
#include <QtTest/QTest>

#include <algorithm>
#include <filesystem>

#include "Guion.h"
#include "Ventanas.h"
#include "tema.h"

namespace {

Barras DeValores(const std::vector<int64_t>& valores, const std::string& etiqueta = "") {
    Barras datos{.titulo = Q("Números"), .una = Q("vez"), .varias = Q("veces"), .barras = {}};
    for (const int64_t valor : valores)
        datos.barras.push_back({Q(etiqueta + std::to_string(datos.barras.size() + 1)), valor});
    return datos;
}

struct Grafico : Guion {
    GraficoBarras grafico{Q("grafico"), Q("Gráfico"), entorno};

    explicit Grafico(const std::vector<int64_t>& valores = {30, 0, 1, 2500}, QSize tamanio = {520, 320}) {
        grafico.resize(tamanio);
        grafico.Poner(DeValores(valores));
        grafico.show();
    }
    QPoint Centro(size_t i) const {
        const DibujoBarras dibujo = grafico.Dibujo();
        return {qRound(dibujo.Rectangulo(i).center().x()), grafico.height() / 2};
    }
};

QPalette Paleta(const QColor& fondo, const QColor& texto, const QColor& resalte) {
    QPalette paleta;
    paleta.setColor(QPalette::Base, fondo);
    paleta.setColor(QPalette::Text, texto);
    paleta.setColor(QPalette::Highlight, resalte);
    return paleta;
}

const QPalette Paletas[] = {
    Paleta(Qt::white, Qt::black, QColor(0x30, 0x8C, 0xC6)),
    Paleta(QColor(0x1E, 0x1E, 0x20), QColor(0xEE, 0xEE, 0xEE), QColor(0x35, 0x84, 0xE4)),
    Paleta(Qt::white, Qt::black, QColor(0xFF, 0xF0, 0x90)),
    Paleta(Qt::black, Qt::white, QColor(0x20, 0x20, 0x60)),
};

// The first figure of a number of the form 1, 2 or 5 times a power of ten; 0 for another.
int64_t Redondo(int64_t n) {
    while (n > 9 && n % 10 == 0) n /= 10;
    return n == 1 || n == 2 || n == 5 ? n : 0;
}

} // namespace

TEST(GraficoBarras, LasBarrasNacenEnCeroYGuardanLaProporcion) {
    const std::vector<int64_t> casos[] = {{1}, {0, 0}, {30, 0, 1, 2500}, {7, 7, 7}, {13983816, 1}, {int64_t{1} << 49}};
    for (const auto& valores : casos)
        for (const QSize tamanio : {QSize(240, 160), QSize(520, 320), QSize(1600, 900)}) {
            SCOPED_TRACE(valores.front());
            const Grafico g(valores, tamanio);
            const DibujoBarras dibujo = g.grafico.Dibujo();
            const auto marcas = dibujo.Marcas();
            const int64_t mayor = *std::max_element(valores.begin(), valores.end());
            ASSERT_GE(marcas.size(), 2u);
            EXPECT_LE(marcas.size(), 10u);
            EXPECT_EQ(marcas.front(), 0);
            EXPECT_GE(marcas.back(), mayor);
            EXPECT_LT(marcas[marcas.size() - 2], std::max<int64_t>(mayor, 1));
            EXPECT_NE(Redondo(marcas[1]), 0) << marcas[1];
            const double base = dibujo.Rectangulo(0).bottom();
            for (size_t i = 0; i < valores.size(); ++i) {
                const QRectF barra = dibujo.Rectangulo(i);
                EXPECT_NEAR(barra.bottom(), base, 1e-9);
                EXPECT_NEAR(barra.height() * static_cast<double>(mayor),
                            dibujo.Rectangulo(static_cast<size_t>(std::find(valores.begin(), valores.end(), mayor) -
                                                                  valores.begin()))
                                    .height() *
                                static_cast<double>(valores[i]),
                            1e-6 * static_cast<double>(std::max<int64_t>(mayor, 1)));
                EXPECT_TRUE(QRectF(g.grafico.rect()).contains(barra) || barra.isEmpty());
            }
        }
}

TEST(GraficoBarras, LasEtiquetasSeAclaranYNuncaSePisan) {
    for (const size_t n : {1, 7, 49, 294, 2000})
        for (const int ancho : {240, 520, 1600}) {
            SCOPED_TRACE(std::to_string(n) + " en " + std::to_string(ancho));
            Grafico g(std::vector<int64_t>(n, 5), {ancho, 300});
            g.grafico.Poner(DeValores(std::vector<int64_t>(n, 5), "021-03"));
            const auto etiquetas = g.grafico.Dibujo().Etiquetas();
            ASSERT_EQ(etiquetas.size(), n);
            EXPECT_FALSE(etiquetas[0].isEmpty());
            double libre = 0;
            size_t puestas = 0;
            for (const QRectF& etiqueta : etiquetas) {
                if (etiqueta.isEmpty()) continue;
                ++puestas;
                EXPECT_GE(etiqueta.left(), libre);
                EXPECT_TRUE(QRectF(g.grafico.rect()).contains(etiqueta));
                libre = etiqueta.right();
            }
            if (n == 7 && ancho > 500) {
                EXPECT_EQ(puestas, n);
            }
            if (n >= 49 && ancho < 300) {
                EXPECT_LT(puestas, 7u);
            }
        }
}

TEST(GraficoBarras, ElRatonYLasFlechasDicenElValor) {
    Grafico g;
    const auto lectura = [&] { return Utf8(g.grafico.accessibleDescription()); };
    QTest::mouseMove(&g.grafico, g.Centro(3));
    EXPECT_EQ(g.grafico.Destacada(), 3u);
    EXPECT_EQ(lectura(), "4: 2.500 veces");
    QTest::mouseMove(&g.grafico, g.Centro(2));
    EXPECT_EQ(lectura(), "3: 1 vez");
    QTest::mouseMove(&g.grafico, {2, 2});
    EXPECT_EQ(g.grafico.Destacada(), DibujoBarras::Ninguna);
    const struct {
        Qt::Key tecla;
        size_t destacada;
    } teclas[] = {{Qt::Key_Left, 3}, {Qt::Key_Right, 3}, {Qt::Key_Left, 2}, {Qt::Key_Home, 0},
                  {Qt::Key_Left, 0}, {Qt::Key_Right, 1}, {Qt::Key_End, 3}};
    for (const auto& [tecla, destacada] : teclas) {
        QTest::keyClick(&g.grafico, tecla);
        EXPECT_EQ(g.grafico.Destacada(), destacada);
    }
    g.grafico.Poner(DeValores({}));
    QTest::keyClick(&g.grafico, Qt::Key_End);
    EXPECT_EQ(g.grafico.Destacada(), DibujoBarras::Ninguna);
    QTest::mouseMove(&g.grafico, {260, 160});
    EXPECT_EQ(lectura(), "");
}

TEST(GraficoBarras, UnClicYIntroDanElIndiceDeLaBarra) {
    Grafico g;
    QTest::mouseClick(&g.grafico, Qt::LeftButton, {}, g.Centro(1)); // nobody listens yet
    std::vector<size_t> pulsadas;
    g.grafico.AlPulsar([&](size_t i) { pulsadas.push_back(i); });
    QTest::keyClick(&g.grafico, Qt::Key_Return);
    for (const size_t i : {1, 3, 0}) QTest::mouseClick(&g.grafico, Qt::LeftButton, {}, g.Centro(i));
    QTest::mouseClick(&g.grafico, Qt::RightButton, {}, g.Centro(2));
    QTest::mouseClick(&g.grafico, Qt::LeftButton, {}, {1, 1});
    QTest::keyClick(&g.grafico, Qt::Key_End);
    QTest::keyClick(&g.grafico, Qt::Key_Return);
    EXPECT_EQ(pulsadas, (std::vector<size_t>{1, 3, 0, 3}));
}

TEST(GraficoBarras, FuertesYTenuesSeDistinguenEnGrisYDelFondo) {
    for (const QPalette& paleta : Paletas) {
        Grafico g({10, 10});
        Barras datos = DeValores({10, 10});
        datos.barras[1].fuerte = false;
        g.grafico.setPalette(paleta);
        g.grafico.Poner(datos);
        const QImage imagen = g.grafico.grab().toImage();
        const auto color = [&](size_t i) { return imagen.pixelColor(g.Centro(i) * imagen.devicePixelRatio()); };
        const QColor fondo = paleta.color(QPalette::Base);
        EXPECT_GE(Contraste(color(0), fondo), 3) << Utf8(fondo.name());
        EXPECT_GE(std::abs(qGray(color(0).rgb()) - qGray(color(1).rgb())), 50);
        EXPECT_GE(Contraste(ColoresDePantalla(paleta).fuerte, fondo), 3);
        EXPECT_NE(color(1), fondo);
    }
}

TEST(GraficoBarras, CopiarYGuardarDanLaMismaImagenConCualquierPaleta) {
    CarpetaTemporal carpeta;
    Grafico g;
    const QImage retrato = g.grafico.Retrato();
    EXPECT_EQ(retrato.size(), QSize(1920, 1080));
    EXPECT_EQ(retrato.pixelColor(3, 3), QColor(Qt::white));
    g.grafico.setPalette(Paletas[1]);
    g.grafico.accionCopiar->trigger();
    EXPECT_EQ(QApplication::clipboard()->image().convertToFormat(QImage::Format_RGB32).constBits()[0], 0xFF);
    EXPECT_EQ(QApplication::clipboard()->image().size(), retrato.size());
    g.grafico.ProponerFichero("sumas.png");
    g.Ficheros = {carpeta.Ruta("sumas")};
    g.grafico.accionGuardar->trigger();
    EXPECT_EQ(g.Cajas, Textos{});
    EXPECT_EQ(g.Peticiones.back().Nombre, "sumas.png");
    const QImage guardada(Q(carpeta.Ruta("sumas.png")));
    EXPECT_EQ(guardada.convertToFormat(QImage::Format_RGB32), QImage(retrato));
}

TEST(GraficoBarras, UnaGrabacionFallidaLoDiceYDejaElFicheroAnterior) {
    CarpetaTemporal carpeta;
    Grafico g;
    g.grafico.Guardar();
    EXPECT_EQ(g.Cajas, Textos{});
    g.Ficheros = {carpeta.Ruta("no_hay/sumas.png")};
    g.grafico.Guardar();
    ASSERT_EQ(g.Cajas.size(), 1u);
    EXPECT_EQ(g.Cajas[0].rfind("[X] ERROR AL GUARDAR EL FICHERO, FICHERO NO GUARDADO (", 0), 0u) << g.Cajas[0];
    std::filesystem::create_directory(carpeta.Ruta("carpeta.png"));
    g.Ficheros = {carpeta.Ruta("carpeta.png")};
    g.grafico.Guardar();
    EXPECT_EQ(g.Cajas.size(), 2u);
    EXPECT_TRUE(std::filesystem::is_directory(carpeta.Ruta("carpeta.png")));
}

TEST(GraficoBarras, SinBarrasNoHayQueCopiarNiGuardar) {
    Grafico g;
    QWidget pie;
    pie.setLayout(CrearBotonesGrafico(g.grafico));
    auto* copiar = Hijo<QAbstractButton>(pie, "cmdCopiarGrafico");
    EXPECT_TRUE(copiar->isEnabled());
    g.grafico.Poner({});
    for (const char* nombre : {"cmdCopiarGrafico", "cmdGuardarGrafico"})
        EXPECT_FALSE(Hijo<QAbstractButton>(pie, nombre)->isEnabled());
    EXPECT_FALSE(g.grafico.accionGuardar->isEnabled());
    g.grafico.Poner(DeValores({1}));
    EXPECT_TRUE(copiar->isEnabled());
}
