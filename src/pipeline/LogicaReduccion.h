// The dialog of the reduction's settings.
#pragma once

#include <string>

#include "Entorno.h"
#include "Sesion.h"

struct LogicaReduccion {
    LogicaReduccion(Sesion& s, Entorno& e) : sesion(s), entorno(e) {}

    Sesion& sesion;
    Entorno& entorno;

    // What is shown.
    int cboTipoReduccion = 0;
    int cboPorcentaje = 0; ///< entry i stands for 100 - i percent
    int optTipo = 1;       ///< 0 by number of bets, 1 by percentage
    std::string txtNColumnas;
    bool chkApuestasExactas = false, chkActivarCiclos = false, chkAleatorio = false;
    bool txtNColumnasHabilitado = false, cboPorcentajeHabilitado = true, chkApuestasExactasHabilitado = false;

    /// Settings to fields.
    void Abrir();

    // The controls. All but the text turn the row on.
    void CambiarTipoReduccion(int indice);
    void CambiarPorcentaje(int indice);
    void PulsarTipo(int opcion);
    void CambiarNColumnas(const std::string& texto) { txtNColumnas = texto; }
    void CambiarApuestasExactas(bool marcado);
    void CambiarActivarCiclos(bool marcado);
    void CambiarAleatorio(bool marcado);

    /// Switches the row on or off.
    void PulsarActivar();
    bool Activo() const;

    /// Stores the fields in the settings and rebuilds the row: on when there is a kind of reduction. A
    /// number of bets that does not fit its field is refused with a box; an empty one counts as 1.
    bool PuedeCerrar();

    /// Texts of the two lists.
    static std::string TextoTipoReduccion(int indice);
    static std::string TextoPorcentaje(int indice);

  private:
    void Habilitar();
    void ActivarFila();
};
