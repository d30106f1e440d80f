// A chart of vertical bars: the value of a bar under the mouse or chosen with the arrows, a click on a
// bar, and the picture to the clipboard or to a file.
//
//     auto* grafico = new GraficoBarras(Q("grafico"), Q("Gráfico de la estadística"), entorno);
//     grafico->AlPulsar([this](size_t i) { logica.PulsarBarra(i), Pintar(); });
//     grafico->Poner({.titulo = Q("Números"), .una = Q("vez"), .varias = Q("veces"),
//                     .barras = {{Q("01"), 412}, {Q("02"), 0, false}}});
#pragma once

#include <QAction>
#include <QHBoxLayout>
#include <QWidget>

#include <functional>
#include <string>

#include "DibujoBarras.h"
#include "Entorno.h"

class GraficoBarras final : public QWidget {
  public:
    /// `accesible` is read out for it; `entorno` outlives the widget.
    GraficoBarras(const QString& nombre, const QString& accesible, Entorno& entorno);

    void Poner(Barras datos);
    /// The name proposed for the file of the picture.
    void ProponerFichero(std::string nombre) { fichero_ = std::move(nombre); }
    /// What a click on a bar does, or Enter on the one chosen with the arrows, given its index.
    void AlPulsar(std::function<void(size_t)> pulsar);

    const Barras& Datos() const { return datos_; }
    size_t Destacada() const { return destacada_; }
    /// How the chart stands on the screen now.
    DibujoBarras Dibujo() const;

    /// The picture that is copied and saved: dark on white, of a fixed size.
    QImage Retrato() const;
    void Copiar() const;
    /// Asks for the file; a failure shows its box.
    void Guardar();

    QAction *accionCopiar = nullptr, *accionGuardar = nullptr; ///< of the context menu; off without bars

    QSize sizeHint() const override { return {520, 320}; }
    QSize minimumSizeHint() const override { return {240, 160}; }

  protected:
    void paintEvent(QPaintEvent* evento) override;
    void mouseMoveEvent(QMouseEvent* evento) override;
    void mousePressEvent(QMouseEvent* evento) override;
    void leaveEvent(QEvent* evento) override;
    void keyPressEvent(QKeyEvent* evento) override;

  private:
    void CrearAcciones();
    void Destacar(size_t i);
    void Pulsar(size_t i);

    Entorno& entorno_;
    Barras datos_;
    std::string fichero_ = "grafico.png";
    size_t destacada_ = DibujoBarras::Ninguna;
    std::function<void(size_t)> pulsar_;
};

/// Two buttons that copy and save, for the foot of a chart.
QHBoxLayout* CrearBotonesGrafico(GraficoBarras& grafico);
