#include "GraficoBarras.h"

#include <QApplication>
#include <QBuffer>
#include <QClipboard>
#include <QMouseEvent>

#include "FicheroAtomico.h"
#include "Ficheros.h"
#include "MarcoFiltro.h"
#include "TextoQt.h"

namespace {

constexpr QSize TamanioRetrato(960, 540);
constexpr qreal EscalaRetrato = 2;

QByteArray BytesPng(const QImage& imagen) {
    QByteArray bytes;
    QBuffer destino(&bytes);
    return destino.open(QIODevice::WriteOnly) && imagen.save(&destino, "PNG") ? bytes : QByteArray();
}

QPushButton* BotonDe(QAction& accion, const char* nombre, const char* ayuda) {
    QPushButton* boton = CrearBoton(nombre, Utf8(accion.text()), ayuda, [&accion] { accion.trigger(); });
    boton->setEnabled(accion.isEnabled());
    QObject::connect(&accion, &QAction::changed, boton, [&accion, boton] { boton->setEnabled(accion.isEnabled()); });
    return boton;
}

} // namespace

GraficoBarras::GraficoBarras(const QString& nombre, const QString& accesible, Entorno& entorno) : entorno_(entorno) {
    setObjectName(nombre);
    setAccessibleName(accesible);
    setFocusPolicy(Qt::StrongFocus);
    setMouseTracking(true);
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
    CrearAcciones();
}

void GraficoBarras::CrearAcciones() {
    accionCopiar = new QAction(Q("Copiar gráfico"), this);
    accionCopiar->setShortcut(QKeySequence::Copy);
    accionCopiar->setShortcutContext(Qt::WidgetShortcut);
    accionGuardar = new QAction(Q("Guardar gráfico..."), this);
    connect(accionCopiar, &QAction::triggered, this, [this] { Copiar(); });
    connect(accionGuardar, &QAction::triggered, this, [this] { Guardar(); });
    for (QAction* accion : {accionCopiar, accionGuardar}) {
        accion->setEnabled(false);
        addAction(accion);
    }
    setContextMenuPolicy(Qt::ActionsContextMenu);
}

void GraficoBarras::Poner(Barras datos) {
    if (datos == datos_) return;
    datos_ = std::move(datos);
    const bool hay = !datos_.barras.empty();
    accionCopiar->setEnabled(hay);
    accionGuardar->setEnabled(hay);
    Destacar(DibujoBarras::Ninguna);
    update();
}

void GraficoBarras::AlPulsar(std::function<void(size_t)> pulsar) {
    pulsar_ = std::move(pulsar);
}

DibujoBarras GraficoBarras::Dibujo() const {
    return {datos_, QRectF(rect()), font(), entorno_.SeparadorMiles};
}

void GraficoBarras::paintEvent(QPaintEvent*) {
    QPainter pintor(this);
    const ColoresBarras colores = ColoresDePantalla(palette());
    if (datos_.barras.empty()) {
        pintor.fillRect(rect(), colores.fondo);
        pintor.setPen(colores.texto);
        pintor.drawText(rect(), Qt::AlignCenter, Q("Sin datos"));
    } else {
        Dibujo().Pintar(pintor, colores, destacada_);
    }
    pintor.setPen(hasFocus() ? colores.fuerte : colores.raya);
    pintor.drawRect(rect().adjusted(0, 0, -1, -1));
}

void GraficoBarras::Destacar(size_t i) {
    if (i == destacada_) return;
    destacada_ = i;
    setAccessibleDescription(i < datos_.barras.size() ? Dibujo().Lectura(i) : QString());
    update();
}

void GraficoBarras::Pulsar(size_t i) {
    if (i < datos_.barras.size() && pulsar_) pulsar_(i);
}

void GraficoBarras::mouseMoveEvent(QMouseEvent* evento) {
    Destacar(Dibujo().BarraEn(evento->position()));
}

void GraficoBarras::mousePressEvent(QMouseEvent* evento) {
    if (evento->button() == Qt::LeftButton) Pulsar(Dibujo().BarraEn(evento->position()));
}

void GraficoBarras::leaveEvent(QEvent*) {
    Destacar(DibujoBarras::Ninguna);
}

void GraficoBarras::keyPressEvent(QKeyEvent* evento) {
    const size_t ultima = datos_.barras.size() - 1;
    const bool ninguna = destacada_ == DibujoBarras::Ninguna;
    if (datos_.barras.empty()) return QWidget::keyPressEvent(evento);
    switch (evento->key()) {
    case Qt::Key_Left:
        return Destacar(ninguna ? ultima : destacada_ - (destacada_ > 0 ? 1 : 0));
    case Qt::Key_Right:
        return Destacar(ninguna ? 0 : destacada_ + (destacada_ < ultima ? 1 : 0));
    case Qt::Key_Home:
        return Destacar(0);
    case Qt::Key_End:
        return Destacar(ultima);
    case Qt::Key_Return:
    case Qt::Key_Enter:
        if (pulsar_ && !ninguna) return Pulsar(destacada_);
        [[fallthrough]];
    default:
        QWidget::keyPressEvent(evento);
    }
}

QImage GraficoBarras::Retrato() const {
    QImage imagen(TamanioRetrato * EscalaRetrato, QImage::Format_RGB32);
    imagen.setDevicePixelRatio(EscalaRetrato);
    QPainter pintor(&imagen);
    DibujoBarras(datos_, QRectF(QPointF(), QSizeF(TamanioRetrato)), QApplication::font(), entorno_.SeparadorMiles)
        .Pintar(pintor, ColoresDePapel());
    return imagen;
}

void GraficoBarras::Copiar() const {
    QApplication::clipboard()->setImage(Retrato());
}

void GraficoBarras::Guardar() {
    const std::string ruta = entorno_.PedirGuardar(
        {.Titulo = "Guardar gráfico", .Filtros = {{"Imágenes PNG (*.png)", "*.png"}}, .Nombre = fichero_});
    if (ruta.empty()) return;
    const QByteArray bytes = BytesPng(Retrato());
    FicheroAtomico fichero;
    if (bytes.isEmpty())
        FalloAlGuardar(entorno_, "no se puede formar la imagen");
    else if (!fichero.Abrir(RutaConExtension(ruta, ".png")) ||
             !fichero.Escribir({bytes.constData(), static_cast<size_t>(bytes.size())}) || !fichero.Confirmar())
        FalloAlGuardar(entorno_, fichero.Fallo());
}

QHBoxLayout* CrearBotonesGrafico(GraficoBarras& grafico) {
    auto* fila = new QHBoxLayout;
    fila->addStretch();
    fila->addWidget(BotonDe(*grafico.accionCopiar, "cmdCopiarGrafico", "Copiar el gráfico al portapapeles"));
    fila->addWidget(BotonDe(*grafico.accionGuardar, "cmdGuardarGrafico", "Guardar el gráfico como imagen PNG"));
    return fila;
}
