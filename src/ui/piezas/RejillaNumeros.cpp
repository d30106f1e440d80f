#include "RejillaNumeros.h"

#include <QAccessible>
#include <QHBoxLayout>
#include <QLabel>
#include <QVariant>

#include <vector>

#include "TextoQt.h"
#include "tema.h"

namespace {

constexpr int LadoCelda = 30, LadoSerie = 24;

// A grid that only shows: tips go on, presses do nothing.
class SinRaton final : public QObject {
  public:
    using QObject::QObject;
    bool eventFilter(QObject*, QEvent* evento) override {
        return evento->type() == QEvent::MouseButtonPress || evento->type() == QEvent::MouseButtonRelease ||
               evento->type() == QEvent::MouseButtonDblClick;
    }
};

QToolButton* CrearSerie(QWidget* papel, std::string_view nombre, int indice, const QString& consejo,
                        const std::function<void(int)>& orden) {
    auto* boton = new QToolButton(papel);
    boton->setObjectName(NombreIndexado(nombre, indice));
    boton->setProperty("serie", true);
    boton->setToolTip(consejo);
    boton->setAccessibleName(consejo);
    QObject::connect(boton, &QToolButton::clicked, papel, [orden, indice] { orden(indice); });
    return boton;
}

void CrearSeries(RejillaNumeros& r, const OrdenesRejilla& ordenes) {
    for (int i = 0; i < 10; ++i)
        r.fila[static_cast<size_t>(i)] = CrearSerie(
            r.papel, "imgINIFila", i,
            Q("Marcar o desmarcar los números que terminan en ") + QString::number((i + 1) % 10), ordenes.fila);
    for (int i = 0; i < 5; ++i)
        r.columna[static_cast<size_t>(i)] =
            CrearSerie(r.papel, "imgINIColumna", i,
                       Q("Marcar o desmarcar los números del ") + QString::number(i == 0 ? 1 : 10 * i) + Q(" al ") +
                           QString::number(10 * i + 9),
                       ordenes.columna);
}

// Beside their rows and above their columns, as arrows.
void ColocarSeriesColumnas(RejillaNumeros& r) {
    for (size_t i = 0; i < r.fila.size(); ++i) {
        r.fila[i]->setText(Q("▸"));
        r.fila[i]->setMinimumSize(LadoSerie, LadoCelda);
        r.fila[i]->setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Expanding);
        r.rejilla->addWidget(r.fila[i], static_cast<int>(i + 1) % 10 + 1, 0);
    }
    for (size_t i = 0; i < r.columna.size(); ++i) {
        r.columna[i]->setText(Q("▾"));
        r.columna[i]->setMinimumSize(LadoCelda, LadoSerie);
        r.columna[i]->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
        r.rejilla->addWidget(r.columna[i], 0, static_cast<int>(i) + 1);
    }
}

QHBoxLayout* Tira(const QString& titulo) {
    auto* tira = new QHBoxLayout;
    tira->setSpacing(3);
    tira->addWidget(new QLabel(titulo), 1);
    return tira;
}

// On rows of five a series is neither a row nor a column: two strips of their own below.
void ColocarSeriesFilas(RejillaNumeros& r) {
    r.series = new QWidget(r.papel);
    auto* caja = new QVBoxLayout(r.series);
    caja->setContentsMargins(0, 6, 0, 0);
    caja->setSpacing(4);
    auto* terminaciones = Tira(Q("Acaban en"));
    for (size_t i = 0; i < r.fila.size(); ++i) {
        r.fila[i]->setText(QString::number((i + 1) % 10));
        r.fila[i]->setMinimumSize(20, LadoSerie);
        terminaciones->addWidget(r.fila[i]);
    }
    auto* decenas = Tira(Q("Decenas"));
    for (size_t i = 0; i < r.columna.size(); ++i) {
        r.columna[i]->setText(QString::number(i == 0 ? 1 : 10 * i));
        r.columna[i]->setMinimumSize(43, LadoSerie);
        decenas->addWidget(r.columna[i]);
    }
    caja->addLayout(terminaciones);
    caja->addLayout(decenas);
    r.rejilla->addWidget(r.series, 8, 0, 2, 5);
}

// The Tab key follows the eye: what stands over the numbers or at their left, the numbers, what is below.
void OrdenarTabulador(const RejillaNumeros& r, bool columnas) {
    std::vector<QWidget*> orden;
    const auto poner = [&orden](auto desde, auto hasta) { orden.insert(orden.end(), desde, hasta); };
    if (columnas) {
        poner(r.columna.begin(), r.columna.end());
        orden.push_back(r.fila[9]); // of the numbers that end in 0, the first row
        poner(r.fila.begin(), r.fila.end() - 1);
    }
    poner(r.numero.begin() + 1, r.numero.end());
    if (!columnas) {
        poner(r.fila.begin(), r.fila.end());
        poner(r.columna.begin(), r.columna.end());
    }
    for (size_t i = 1; i < orden.size(); ++i) QWidget::setTabOrder(orden[i - 1], orden[i]);
}

void Colocar(RejillaNumeros& r, int maximo) {
    const bool columnas = maximo == NumeroMaximoBoleto;
    const bool conSeries = r.fila[0] != nullptr;
    while (QLayoutItem* item = r.rejilla->takeAt(0)) delete item;
    if (conSeries) {
        for (auto* boton : r.fila) boton->setParent(r.papel);
        for (auto* boton : r.columna) boton->setParent(r.papel);
        delete r.series;
        r.series = nullptr;
        columnas ? ColocarSeriesColumnas(r) : ColocarSeriesFilas(r);
        for (auto* boton : r.fila) boton->show();
        for (auto* boton : r.columna) boton->show();
        OrdenarTabulador(r, columnas);
    }
    const int margen = columnas && conSeries ? 1 : 0;
    for (int c = 0; c <= 5; ++c) r.rejilla->setColumnStretch(c, c >= margen && c < margen + 5 ? 1 : 0);
    for (int n = 1; n <= NumeroMaximoBoleto; ++n) {
        QToolButton* celda = r.numero[static_cast<size_t>(n)];
        celda->setVisible(n <= maximo);
        if (n > maximo) continue;
        const int fila = columnas ? n % 10 : (n - 1) / 5, columna = columnas ? n / 10 : (n - 1) % 5;
        r.rejilla->addWidget(celda, fila + margen, columna + margen);
        if (r.gestor != nullptr) r.gestor->Poner(celda, fila, columna);
    }
    r.maximo = maximo;
}

} // namespace

QToolButton* CrearCelda(QWidget* papel, const QString& nombre, const QString& texto, const QString& accesible) {
    auto* celda = new QToolButton(papel);
    celda->setObjectName(nombre);
    celda->setText(texto);
    celda->setAccessibleName(accesible);
    celda->setCheckable(true);
    celda->setMinimumSize(LadoCelda, LadoCelda);
    celda->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
    // Its name says its state.
    QObject::connect(celda, &QToolButton::toggled, celda, [celda] {
        QAccessibleEvent cambio(celda, QAccessible::NameChanged);
        QAccessible::updateAccessibility(&cambio);
    });
    return celda;
}

RejillaNumeros CrearRejillaNumeros(QWidget* padre, std::string_view nombre, const OrdenesRejilla& ordenes) {
    RejillaNumeros r;
    r.papel = new QFrame(padre);
    r.papel->setObjectName(Q("papel"));
    r.papel->setStyleSheet(EstiloBoleto());
    r.rejilla = new QGridLayout(r.papel);
    r.rejilla->setContentsMargins(8, 8, 8, 8);
    r.rejilla->setSpacing(3);
    r.papel->setAccessibleName(Q("Boleto"));
    const bool soloParaVer = !ordenes.numero;
    if (!soloParaVer) r.gestor = new GestorCeldas(r.papel);
    auto* sinRaton = new SinRaton(r.papel);
    for (int n = 1; n <= NumeroMaximoBoleto; ++n) {
        QToolButton* celda =
            CrearCelda(r.papel, NombreIndexado(nombre, n - 1), QString::number(n), Q("Número ") + QString::number(n));
        if (soloParaVer) {
            celda->setFocusPolicy(Qt::NoFocus);
            celda->installEventFilter(sinRaton);
        } else {
            QObject::connect(celda, &QToolButton::clicked, r.papel, [orden = ordenes.numero, n] { orden(n); });
        }
        r.numero[static_cast<size_t>(n)] = celda;
    }
    if (ordenes.fila && ordenes.columna) CrearSeries(r, ordenes);
    return r;
}

void PintarRejillaNumeros(RejillaNumeros& r, const std::array<bool, NumeroMaximoBoleto + 1>& marcas, int maximo,
                          bool habilitada) {
    if (r.maximo != maximo) Colocar(r, maximo);
    for (size_t n = 1; n < marcas.size(); ++n) r.numero[n]->setChecked(marcas[n]);
    r.papel->setEnabled(habilitada);
}
