// The picture of the base in a condition's dialog: how the bets spread over what the condition tests, what
// the settings on the screen let through, and how many that makes. Counted aside while the user goes on.
#pragma once

#include <QComboBox>
#include <QLabel>
#include <QWidget>

#include <functional>
#include <memory>

#include "GraficoBarras.h"
#include "Reparto.h"
#include "Sesion.h"
#include "TrabajoAparte.h"

struct PeticionReparto {
    int k; ///< row of the condition
    Sesion& sesion;
    Entorno& entorno;
    /// Puts what stands on the screen, and is not stored yet, in the conditions given.
    std::function<void(Condiciones&)> Volcar = [](Condiciones&) {};
    bool Apaisado = false; ///< lines and list in one row, below the chart
    /// A click on the bar of a value of a section, where that is a choice of the condition's.
    std::function<void(size_t apartado, int32_t valor)> AlPulsar{};
};

class PanelReparto final : public QWidget {
  public:
    explicit PanelReparto(PeticionReparto peticion);
    ~PanelReparto() override;

    /// Counts anew if the settings have changed.
    void Actualizar();
    QSize sizeHint() const override { return minimumSize(); }
    /// Whether what is shown is about to change.
    bool EnMarcha() const { return trabajo_.EnMarcha(); }

  private:
    struct Base;

    void Mostrar(const Reparto& reparto, int32_t juntas);
    void MostrarApartado();
    void Pulsar(size_t barra);

    PeticionReparto peticion_;
    std::shared_ptr<Base> base_; ///< used by the other thread alone, one task at a time
    std::unique_ptr<Condiciones> contadas_;
    Reparto reparto_;
    size_t porBarra_ = 1; ///< neighbouring values that share a bar
    QComboBox* cboApartado = nullptr;
    GraficoBarras* grafico = nullptr;
    QLabel *lblPasan = nullptr, *lblPasanJuntas = nullptr;
    TrabajoAparte trabajo_;
};
