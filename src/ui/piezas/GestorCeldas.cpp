#include "GestorCeldas.h"

#include <QApplication>
#include <QKeyEvent>
#include <QMouseEvent>

void GestorCeldas::Poner(QAbstractButton* celda, int fila, int columna) {
    if (!lugar_.contains(celda)) celda->installEventFilter(this);
    lugar_[celda] = {columna, fila};
    celda->setFocusPolicy(Qt::ClickFocus);
    if (parada_ == nullptr) HacerParada(celda);
}

void GestorCeldas::HacerParada(QAbstractButton* celda) {
    if (parada_ != nullptr) parada_->setFocusPolicy(Qt::ClickFocus);
    parada_ = celda;
    celda->setFocusPolicy(Qt::StrongFocus);
}

bool GestorCeldas::eventFilter(QObject* objeto, QEvent* evento) {
    auto* const celda = static_cast<QAbstractButton*>(objeto);
    switch (evento->type()) {
    case QEvent::MouseButtonPress:
    case QEvent::MouseButtonDblClick: {
        if (static_cast<QMouseEvent*>(evento)->button() != Qt::LeftButton || !celda->isEnabled()) return false;
        celda->setFocus(Qt::MouseFocusReason);
        arrastrando_ = true;
        marca_ = !celda->isChecked();
        celda->click();
        return true;
    }
    case QEvent::MouseMove:
        if (!arrastrando_) return false;
        Arrastrar(static_cast<QMouseEvent*>(evento)->globalPosition().toPoint());
        return true;
    case QEvent::MouseButtonRelease:
        return std::exchange(arrastrando_, false);
    case QEvent::FocusIn:
        HacerParada(celda);
        return false;
    case QEvent::Hide:
        // A hidden stop would leave the grid out of the Tab order.
        if (celda == parada_ && !lugar_.isEmpty())
            for (auto i = lugar_.cbegin(); i != lugar_.cend(); ++i)
                if (!i.key()->isHidden() && i.key() != celda) {
                    HacerParada(i.key());
                    break;
                }
        return false;
    case QEvent::KeyPress:
        return Mover(celda, static_cast<QKeyEvent*>(evento)->key());
    default:
        return false;
    }
}

void GestorCeldas::Arrastrar(const QPoint& punto) {
    auto* const celda = qobject_cast<QAbstractButton*>(QApplication::widgetAt(punto));
    if (celda != nullptr && lugar_.contains(celda) && celda->isEnabled() && celda->isChecked() != marca_)
        celda->click();
}

bool GestorCeldas::Mover(QAbstractButton* desde, int tecla) {
    const QPoint paso = tecla == Qt::Key_Left    ? QPoint(-1, 0)
                        : tecla == Qt::Key_Right ? QPoint(1, 0)
                        : tecla == Qt::Key_Up    ? QPoint(0, -1)
                        : tecla == Qt::Key_Down  ? QPoint(0, 1)
                                                 : QPoint();
    if (paso.isNull()) return false;
    const QPoint destino = lugar_.value(desde) + paso;
    for (auto i = lugar_.cbegin(); i != lugar_.cend(); ++i)
        if (i.value() == destino && i.key()->isVisible()) i.key()->setFocus(Qt::OtherFocusReason);
    return true;
}
