#include "VistaFiltros.h"

#include <QFontDatabase>
#include <QHeaderView>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>
#include <QStyledItemDelegate>

#include <algorithm>

#include "CopiarTabla.h"
#include "TablaFiltros.h"
#include "TextoQt.h"
#include "modGeneral.h"
#include "tema.h"

namespace {

enum Columna { Act, Condicion, NAct, Eliminan };

constexpr std::string_view ComoSeUsa = "Doble clic o Intro: abrir. Botón derecho o espacio: activar o desactivar";
constexpr std::string_view NoExiste = "Esta condición depende del boleto de 49 números: no existe en EURODREAMS";
constexpr int AltoFilaMinimo = 22, AltoFilaMaximo = 30;

// The twenty rows share the height there is, so that none is cut off and none is lost in space.
void RepartirAlto(QTreeWidget& lista) {
    const int alto = std::clamp(lista.viewport()->height() / NFilas, AltoFilaMinimo, AltoFilaMaximo);
    if (lista.topLevelItem(0)->sizeHint(Act).height() == alto) return;
    for (int k = 0; k < NFilas; ++k) lista.topLevelItem(k)->setSizeHint(Act, QSize(0, alto));
}

// Keys and the right button, which a list does not tell apart from a plain selection.
class Ordenes final : public QObject {
  public:
    Ordenes(QTreeWidget* lista, std::function<void(int)> alternar, std::function<void(int)> abrir)
        : QObject(lista), lista_(lista), interior_(lista->viewport()), alternar_(std::move(alternar)),
          abrir_(std::move(abrir)) {
        lista->installEventFilter(this);
        interior_->installEventFilter(this);
    }

    // The viewport still tells its events while the list around it is being destroyed, so nothing is
    // asked of the list before the kind of event is known.
    bool eventFilter(QObject* objeto, QEvent* evento) override {
        const bool interior = objeto == interior_;
        switch (evento->type()) {
        case QEvent::KeyPress:
            return !interior && Tecla(static_cast<QKeyEvent*>(evento)->key());
        case QEvent::Resize:
            if (interior) RepartirAlto(*lista_);
            return false;
        case QEvent::MouseButtonDblClick:
            return interior && lista_->isEnabled() && Raton(evento, Qt::LeftButton, abrir_);
        case QEvent::MouseButtonRelease:
            return interior && lista_->isEnabled() && Raton(evento, Qt::RightButton, alternar_);
        default:
            return false;
        }
    }

  private:
    bool Tecla(int tecla) {
        const int k = lista_->indexOfTopLevelItem(lista_->currentItem());
        const bool abre = tecla == Qt::Key_Return || tecla == Qt::Key_Enter;
        if (k < 0 || (!abre && tecla != Qt::Key_Space)) return false;
        (abre ? abrir_ : alternar_)(k);
        return true;
    }

    bool Raton(QEvent* evento, Qt::MouseButton boton, const std::function<void(int)>& orden) {
        const auto* raton = static_cast<QMouseEvent*>(evento);
        QTreeWidgetItem* const item = lista_->itemAt(raton->position().toPoint());
        if (raton->button() != boton || item == nullptr) return false;
        lista_->setCurrentItem(item);
        orden(lista_->indexOfTopLevelItem(item));
        return true;
    }

    QTreeWidget* lista_;
    QWidget* interior_;
    std::function<void(int)> alternar_, abrir_;
};

// Keeps the figures of the last column off the edge.
class Sangria final : public QStyledItemDelegate {
  public:
    using QStyledItemDelegate::QStyledItemDelegate;
    void initStyleOption(QStyleOptionViewItem* opcion, const QModelIndex& indice) const override {
        QStyledItemDelegate::initStyleOption(opcion, indice);
        if (indice.column() == Eliminan) opcion->text += QLatin1Char(' ');
    }
};

// A filled dot for an active row, an empty one for the others.
QIcon Punto(const QPalette& paleta, bool activo) {
    QIcon icono;
    for (const auto& [modo, lado] :
         {std::pair{QIcon::Normal, 16}, {QIcon::Normal, 32}, {QIcon::Selected, 16}, {QIcon::Selected, 32}}) {
        QPixmap imagen(lado, lado);
        imagen.fill(Qt::transparent);
        QPainter pintor(&imagen);
        pintor.setRenderHint(QPainter::Antialiasing);
        const QColor verde = EsOscura(paleta) ? QColor(0x4f, 0xc9, 0x6b) : QColor(0x14, 0x7a, 0x33);
        const QColor gris = Mezclar(paleta.color(QPalette::Text), paleta.color(QPalette::Base), 0.5);
        const QColor color = modo == QIcon::Selected ? paleta.color(QPalette::HighlightedText) : activo ? verde : gris;
        pintor.setPen(QPen(color, lado / 11.0));
        if (activo) pintor.setBrush(color);
        pintor.drawEllipse(QRectF(lado * 0.22, lado * 0.22, lado * 0.56, lado * 0.56));
        pintor.end();
        icono.addPixmap(imagen, modo);
    }
    return icono;
}

void PonerTexto(QTreeWidgetItem& item, int columna, const QString& texto) {
    if (item.text(columna) != texto) item.setText(columna, texto);
}

void PintarColores(QTreeWidget* lista, QTreeWidgetItem& item, const FilaFiltro& fila) {
    const QPalette paleta = lista->palette();
    const bool falta = fila.Color == ColorFila::NoDisponible;
    const QColor base = paleta.color(QPalette::Base), texto = paleta.color(QPalette::Text);
    const QColor fondo = falta                             ? Mezclar(texto, base, 0.16)
                         : fila.Color == ColorFila::Oscura ? Mezclar(texto, base, 0.05)
                                                           : base;
    const QColor letra = falta ? Mezclar(texto, fondo, 0.66) : texto;
    QFont fuente = lista->font();
    fuente.setBold(fila.Activo);
    for (int c = Act; c <= Eliminan; ++c) {
        item.setBackground(c, fondo);
        item.setForeground(c, letra);
        item.setFont(c, fuente);
        item.setToolTip(c, falta ? Q(NoExiste) : Q(ComoSeUsa));
    }
    item.setIcon(Act, Punto(paleta, fila.Activo));
}

// What decides the looks of a row; painting it again costs enough to be spared.
int Aspecto(const QTreeWidget& lista, const FilaFiltro& fila) {
    return 1 + static_cast<int>(fila.Color) + (fila.Activo ? 8 : 0) + (EsOscura(lista.palette()) ? 16 : 0);
}

} // namespace

QTreeWidget* CrearVistaFiltros(QWidget* padre, std::function<void(int)> alternar, std::function<void(int)> abrir) {
    auto* lista = new QTreeWidget(padre);
    lista->setObjectName(Q("lstFiltros"));
    lista->setAccessibleName(Q("Condiciones"));
    QFont fija = QFontDatabase::systemFont(QFontDatabase::FixedFont);
    fija.setPointSizeF(padre->font().pointSizeF() * 1.1);
    lista->setFont(fija);
    lista->setItemDelegate(new Sangria(lista));
    lista->setRootIsDecorated(false);
    lista->setUniformRowHeights(true);
    lista->setAllColumnsShowFocus(true);
    lista->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    lista->setColumnCount(4);
    for (int c = Act; c <= Eliminan; ++c)
        lista->headerItem()->setText(c, Q(Recortar(CabecerasLista[static_cast<size_t>(c)])));
    for (int k = 0; k < NFilas; ++k) {
        auto* item = new QTreeWidgetItem(lista);
        item->setText(Condicion, Q(Recortar(NombreFila(k))));
        item->setTextAlignment(Eliminan, Qt::AlignRight | Qt::AlignVCenter);
    }
    lista->headerItem()->setText(Eliminan, lista->headerItem()->text(Eliminan) + QLatin1Char(' '));
    lista->headerItem()->setTextAlignment(Eliminan, Qt::AlignRight | Qt::AlignVCenter);
    QHeaderView* cabecera = lista->header();
    cabecera->setSectionsMovable(false);
    cabecera->setStretchLastSection(false);
    cabecera->setSectionResizeMode(QHeaderView::Fixed);
    cabecera->setSectionResizeMode(Condicion, QHeaderView::Stretch);
    const int letra = lista->fontMetrics().horizontalAdvance(QLatin1Char('0'));
    cabecera->resizeSection(Act, 6 * letra + 34);
    cabecera->resizeSection(NAct, 18 * letra);
    cabecera->resizeSection(Eliminan, 20 * letra);
    // Room for the header and the twenty rows, so that none is cut off.
    lista->setMinimumHeight(cabecera->sizeHint().height() + NFilas * AltoFilaMinimo + 2 * lista->frameWidth());
    HabilitarCopia(*lista);
    lista->setContextMenuPolicy(Qt::NoContextMenu); // the right button has an order of its own
    new Ordenes(lista, std::move(alternar), std::move(abrir));
    lista->setCurrentItem(lista->topLevelItem(0));
    return lista;
}

void PintarVistaFiltros(QTreeWidget* lista, const Sesion& sesion, char separadorMiles, bool habilitada) {
    for (int k = 0; k < NFilas; ++k) {
        const FilaFiltro& fila = sesion.condiciones.lstFiltros[static_cast<size_t>(k)];
        QTreeWidgetItem& item = *lista->topLevelItem(k);
        PonerTexto(item, Act, fila.Activo ? Q("Sí") : Q("No"));
        PonerTexto(item, NAct, Q(fila.NumeroActivos));
        PonerTexto(item, Eliminan, fila.Eliminadas ? Q(FormatoMiles(*fila.Eliminadas, separadorMiles)) : Q("-"));
        const int aspecto = Aspecto(*lista, fila);
        if (item.data(Act, Qt::UserRole).toInt() == aspecto) continue;
        item.setData(Act, Qt::UserRole, aspecto);
        PintarColores(lista, item, fila);
    }
    lista->setEnabled(habilitada);
}

void PonerCostes(QTreeWidget* lista, const std::array<QString, NFiltros>& costes) {
    for (int k = 0; k < NFiltros; ++k) {
        QTreeWidgetItem& item = *lista->topLevelItem(k);
        const QString& coste = costes[static_cast<size_t>(k)];
        const QString consejo = (coste.isEmpty() ? QString() : coste + Q("\n")) + Q(ComoSeUsa);
        if (item.toolTip(Condicion) == Q(NoExiste)) continue;
        for (int c = Act; c <= Eliminan; ++c) item.setToolTip(c, consejo);
    }
}

void ColorearVistaFiltros(QTreeWidget* lista, const QPalette& paleta) {
    QPalette colores = paleta;
    colores.setColor(QPalette::Highlight, Resalte(paleta));
    lista->setPalette(colores);
}
