// Pictures of every window, with something to see in each.
//
//     capturas CARPETA [MANUAL]
//
// CARPETA gets each window in light, in dark and at twice the density, those that change with the game in
// each game, and hoja.png with all of them side by side; MANUAL the pictures of the manual.
#include <QAbstractButton>
#include <QDir>
#include <QPainter>

#include <algorithm>
#include <cstdio>
#include <map>

#include "Accesible.h"
#include "CalcularSistema.h"
#include "DialogosFiltro.h"
#include "Estilo.h"
#include "Sesiones.h"
#include "TablaFiltros.h"
#include "Temas.h"
#include "Ventanas.h"
#include "dialogos.h"

namespace {

constexpr QSize Casilla(480, 330); // of the sheet
constexpr int AltoRotulo = 20, Modos = 3, VentanasPorFila = 2;

// The rows' dialogs with the values of their examples, the others over what suits them.
std::vector<VentanaProbada> VentanasConDatos() {
    std::vector<VentanaProbada> ventanas;
    for (int k = 0; k < NFilas; ++k)
        ventanas.push_back({"", [k](Guion& g) -> std::unique_ptr<QWidget> {
                                AbrirEjemplo(g, k);
                                if (k == FilaReduccion) g.sesion.trabajo.Reduccion.TipoReduccion = 2;
                                return CrearDialogoFiltro(k, g.sesion, g.entorno, nullptr);
                            }});
    for (const VentanaProbada& probada : TodasLasVentanas())
        if (!probada.nombre.starts_with("frmFiltro") && probada.nombre != "frmReduccion") ventanas.push_back(probada);
    return ventanas;
}

// A check is made in the window itself, over a system that has prizes.
std::unique_ptr<QWidget> Abrir(const VentanaProbada& probada, Guion& g) {
    const bool escrutar = probada.nombre == "frmEscrutar";
    if (escrutar || probada.nombre == "frmPrincipal") AbrirDoceNumeros(g);
    if (escrutar) g.sesion.referencia = {{3, 12, 18, 33, 36, 48}, 7};
    auto ventana = probada.crear(g);
    ventana->show();
    if (escrutar) Hijo<QAbstractButton>(*ventana, "imgEscrutar")->click();
    EsperarCuentas(*ventana);
    QApplication::processEvents();
    return ventana;
}

QImage Foto(QWidget& ventana, qreal escala) {
    QImage foto(ventana.size() * escala, QImage::Format_RGB32);
    foto.setDevicePixelRatio(escala);
    ventana.render(&foto);
    return foto;
}

// With the colours that it has most of, in half the bytes: those of the letters' edges are near one.
QImage ConMenosColores(const QImage& imagen) {
    std::map<QRgb, int> veces;
    for (int y = 0; y < imagen.height(); ++y)
        for (int x = 0; x < imagen.width(); ++x) ++veces[imagen.pixel(x, y)];
    std::vector<std::pair<int, QRgb>> orden;
    for (const auto& [color, n] : veces) orden.emplace_back(-n, color);
    std::sort(orden.begin(), orden.end());
    QList<QRgb> paleta;
    for (size_t i = 0; i < std::min<size_t>(orden.size(), 256); ++i) paleta << orden[i].second;
    return imagen.convertToFormat(QImage::Format_Indexed8, paleta, Qt::ThresholdDither | Qt::AvoidDither);
}

// Of every window, three pictures beside each other, in cells of one size.
class Hoja {
  public:
    explicit Hoja(size_t ventanas)
        : imagen_(Casilla.width() * Modos * VentanasPorFila,
                  Casilla.height() * static_cast<int>((ventanas + VentanasPorFila - 1) / VentanasPorFila),
                  QImage::Format_RGB32) {
        imagen_.fill(QColor(0x80, 0x80, 0x80));
    }

    void Poner(size_t ventana, int modo, const QImage& foto, const QString& nombre) {
        const int columna = static_cast<int>(ventana % VentanasPorFila) * Modos + modo;
        const QRect casilla(
            QPoint(columna * Casilla.width(), static_cast<int>(ventana / VentanasPorFila) * Casilla.height()), Casilla);
        const QRect hueco = casilla.adjusted(4, AltoRotulo, -4, -4);
        const QImage cabe = foto.scaled(hueco.size(), Qt::KeepAspectRatio, Qt::SmoothTransformation);
        QPainter pintor(&imagen_);
        pintor.drawImage(QRect(hueco.topLeft(), cabe.size()), cabe);
        pintor.setPen(Qt::white);
        pintor.drawText(casilla.adjusted(6, 0, 0, 0), Qt::AlignTop | Qt::AlignLeft, nombre);
    }

    const QImage& Imagen() const { return imagen_; }

  private:
    QImage imagen_;
};

bool Guardar(const QImage& foto, const QString& ruta, int calidad = -1) {
    if (foto.save(ruta, "PNG", calidad)) return true;
    std::fprintf(stderr, "No se puede escribir %s\n", qPrintable(ruta));
    return false;
}

bool RetratarTodas(const QString& carpeta) {
    const auto ventanas = VentanasConDatos();
    const struct {
        const char* nombre;
        bool oscuro;
        qreal escala;
    } modos[Modos] = {{"claro", false, 1}, {"oscuro", true, 1}, {"claro_200", false, 2}};
    Hoja hoja(ventanas.size());
    bool bien = true;
    for (int m = 0; m < Modos; ++m) {
        const ConPaleta paleta(modos[m].oscuro ? PaletaOscura() : QApplication::palette());
        for (size_t i = 0; i < ventanas.size(); ++i) {
            Guion g;
            const auto ventana = Abrir(ventanas[i], g);
            const QString nombre = ventana->objectName() + Q("_") + Q(modos[m].nombre);
            const QImage foto = Foto(*ventana, modos[m].escala);
            bien &= Guardar(foto, carpeta + Q("/") + nombre + Q(".png"));
            hoja.Poner(i, m, foto, nombre);
        }
    }
    return Guardar(hoja.Imagen(), carpeta + Q("/hoja.png")) && bien;
}

bool RetratarJuegos(const QString& carpeta) {
    bool bien = true;
    for (const DialogoProbado& probado : Dialogos())
        for (const int juego : {BONOLOTO, EURODREAMS}) {
            if (!probado.cambiaConJuego) continue;
            Guion g;
            CambiarJuego(g.sesion, juego);
            const auto ventana = probado.crear(g);
            ventana->show();
            EsperarCuentas(*ventana);
            bien &= Guardar(Foto(*ventana, 1), carpeta + Q("/") + ventana->objectName() + Q("_") +
                                                   Q(Juegos[static_cast<size_t>(juego)].Nombre) + Q(".png"));
        }
    return bien;
}

bool RetratarManual(const QString& carpeta) {
    constexpr int menosBytes = 0; // the smallest file
    bool bien = true;
    for (const VentanaProbada& probada : VentanasConDatos()) {
        Guion g;
        const auto ventana = Abrir(probada, g);
        bien &= Guardar(ConMenosColores(Foto(*ventana, 1)), carpeta + Q("/") + ventana->objectName() + Q(".png"),
                        menosBytes);
    }
    return bien;
}

} // namespace

int main(int argc, char** argv) {
    qputenv("QT_QPA_PLATFORM", "offscreen");
    QApplication aplicacion(argc, argv);
    QApplication::setStyle(new Estilo);
    InstalarAccesibilidad();
    const QStringList argumentos = QApplication::arguments().mid(1);
    if (argumentos.isEmpty() || argumentos.size() > 2) {
        std::fputs("Uso: capturas CARPETA [MANUAL]\n", stderr);
        return 2;
    }
    for (const QString& carpeta : argumentos) QDir().mkpath(carpeta);
    bool bien = RetratarTodas(argumentos[0]) && RetratarJuegos(argumentos[0]);
    if (argumentos.size() == 2) bien = RetratarManual(argumentos[1]) && bien;
    return bien ? 0 : 1;
}
