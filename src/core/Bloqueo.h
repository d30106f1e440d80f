// The lock that a long job puts on the main window.
#pragma once

#include "EstadoTrabajo.h"

/// Locks the window against commands while it lives, so that no way out of a job leaves it locked.
class Bloqueo {
  public:
    explicit Bloqueo(EstadoTrabajo& trabajo) : trabajo_(trabajo) { trabajo_.FormularioBloqueado = true; }
    ~Bloqueo() { trabajo_.FormularioBloqueado = false; }
    Bloqueo(const Bloqueo&) = delete;
    Bloqueo& operator=(const Bloqueo&) = delete;

  private:
    EstadoTrabajo& trabajo_;
};
