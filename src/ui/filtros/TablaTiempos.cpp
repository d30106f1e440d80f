#include "TablaTiempos.h"

#include <QEvent>
#include <QGridLayout>
#include <QLabel>

#include "MarcoFiltro.h"
#include "TextoQt.h"
#include "TiemposSorteos.h"

namespace {

void PonerFila(QGridLayout& rejilla, int fila, const TiempoSorteos& tiempo) {
    int columna = 0;
    for (const auto campo : {&TiempoSorteos::Numeros, &TiempoSorteos::Apuestas, &TiempoSorteos::Filtro,
                             &TiempoSorteos::NSorteos, &TiempoSorteos::Tiempo, &TiempoSorteos::Resultado}) {
        auto* celda = new QLabel(Q(tiempo.*campo));
        const bool texto = campo == &TiempoSorteos::Filtro;
        celda->setAlignment((texto ? Qt::AlignLeft : Qt::AlignRight) | Qt::AlignVCenter);
        QFont letra = celda->font();
        letra.setBold(fila == 0);
        celda->setFont(letra);
        rejilla.addWidget(celda, fila, columna++);
    }
}

QFrame* CrearTabla(QPushButton& boton) {
    auto* tabla = new QFrame(&boton, Qt::ToolTip);
    tabla->setObjectName(Q("picImagenTabla"));
    tabla->setFrameShape(QFrame::StyledPanel);
    tabla->setAutoFillBackground(true);
    auto* rejilla = new QGridLayout(tabla);
    rejilla->setContentsMargins(2 * Paso, Paso, 2 * Paso, Paso);
    rejilla->setHorizontalSpacing(3 * Paso);
    rejilla->setVerticalSpacing(Paso / 2);
    PonerFila(*rejilla, 0, CabeceraTiempos);
    for (size_t i = 0; i < TiemposSorteos.size(); ++i) PonerFila(*rejilla, static_cast<int>(i) + 1, TiemposSorteos[i]);
    return tabla;
}

// Under the button, its right edge under the button's, so that it stays on the screen.
void Mostrar(QFrame& tabla, const QPushButton& boton) {
    tabla.adjustSize();
    tabla.move(boton.mapToGlobal(QPoint(boton.width() - tabla.width(), boton.height() + Paso / 2)));
    tabla.show();
}

class Vigia final : public QObject {
  public:
    Vigia(QPushButton& boton, QFrame& tabla) : QObject(&boton), boton_(boton), tabla_(tabla) {}

    bool eventFilter(QObject* objeto, QEvent* evento) override {
        const auto tipo = evento->type();
        if (tipo == QEvent::Enter) Mostrar(tabla_, boton_);
        if (tipo == QEvent::Leave || tipo == QEvent::FocusOut || tipo == QEvent::Hide) tabla_.hide();
        return QObject::eventFilter(objeto, evento);
    }

  private:
    QPushButton& boton_;
    QFrame& tabla_;
};

} // namespace

QFrame* PonerTablaTiempos(QPushButton& boton) {
    QFrame* tabla = CrearTabla(boton);
    boton.installEventFilter(new Vigia(boton, *tabla));
    QObject::connect(&boton, &QPushButton::clicked, tabla, [&boton, tabla] { Mostrar(*tabla, boton); });
    return tabla;
}
