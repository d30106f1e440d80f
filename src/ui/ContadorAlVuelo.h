// Keeps the count on the fly of the main window up to date: looks for what has changed, waits until the
// user rests, counts aside, and starts anew when something changes meanwhile.
#pragma once

#include <QTimer>

#include <functional>
#include <memory>

#include "AlVuelo.h"
#include "TrabajoAparte.h"

class ContadorAlVuelo {
  public:
    static constexpr int Espera = 150; ///< ms after the last change

    /// `alContar` is called when a count is there to be shown. `sesion` outlives the object.
    ContadorAlVuelo(const Sesion& sesion, std::function<void()> alContar);
    ~ContadorAlVuelo();

    /// Whatever may have changed the state is followed by this. Cheap when nothing has.
    void Mirar();

    /// The last count; null while there has been none of a base with bets.
    const CuentaAlVuelo* Cuenta() const { return cuenta_.get(); }
    /// Whether it is that of the state as it is now.
    bool AlDia() const { return alDia_; }
    bool SinMemoria() const { return sinMemoria_; }

  private:
    struct Mirada;

    void Contar();

    const Sesion& sesion_;
    std::function<void()> alContar_;
    std::unique_ptr<Mirada> mirada_; ///< what the count was made of, or is going to be
    std::shared_ptr<const CuentaAlVuelo> cuenta_;
    bool sinMemoria_ = false, alDia_ = true;
    QTimer reloj_;
    TrabajoAparte trabajo_;
};
