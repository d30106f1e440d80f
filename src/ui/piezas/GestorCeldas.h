// How a grid of cells is worked by mouse and keyboard.
#pragma once

#include <QAbstractButton>
#include <QHash>
#include <QObject>
#include <QPoint>
#include <QPointer>

/// Watches checkable buttons laid out in rows and columns: a press clicks at once and dragging on gives
/// every cell on the way the state of the first; the arrows move the focus. One cell alone, the last
/// that had the focus, is a stop of the Tab key.
class GestorCeldas final : public QObject {
  public:
    explicit GestorCeldas(QObject* padre) : QObject(padre) {}

    /// Takes the cell in, or moves it to another place.
    void Poner(QAbstractButton* celda, int fila, int columna);

    bool eventFilter(QObject* objeto, QEvent* evento) override;

  private:
    void Arrastrar(const QPoint& punto);
    bool Mover(QAbstractButton* desde, int tecla);
    void HacerParada(QAbstractButton* celda);

    QHash<QAbstractButton*, QPoint> lugar_;
    QPointer<QAbstractButton> parada_;
    bool arrastrando_ = false;
    bool marca_ = false; ///< what dragging gives
};
