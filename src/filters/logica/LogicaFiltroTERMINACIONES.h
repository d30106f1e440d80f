// The dialog of TERMINACIONES: a hit table for each last digit, the sum of the last digits, figures.
#pragma once

#include <array>
#include <span>
#include <string>

#include "Entorno.h"
#include "Figuras.h"
#include "LogicaAciertos.h"
#include "TablaFiltros.h"

/// The figures of the ten boxes, and a bet of each.
inline constexpr std::span<const std::string_view> FigurasDeTERMINACIONES =
    std::span<const std::string_view>(NombresFiguras).subspan(PrimeraFiguraTERMINACIONES);
inline constexpr std::array<std::string_view, 10> EjemplosTERMINACIONES{
    "01 02 11 21 31 41", "01 02 11 12 21 31", "01 02 03 11 21 31", "01 02 11 12 21 22", "01 02 03 11 12 21",
    "01 02 03 04 11 21", "01 02 03 11 12 13", "01 02 03 04 11 12", "01 02 03 04 05 11", "01 02 03 04 05 06"};

struct LogicaFiltroTERMINACIONES {
    Sesion& sesion;
    Entorno& entorno;
    LogicaMarco marco{sesion, kTERMINACIONES};

    std::array<std::string, 10> txtAciertos{}; ///< by last digit; a display, never parsed
    std::string txtSumaTerminacionesMinimo{}, txtSumaTerminacionesMaximo{};
    std::array<bool, 10> chkFigura{};

    void Abrir();
    /// "Modificar" of digit d: the chooser, and what to do when it has closed. Stored at once.
    LogicaAciertos AbrirModificar(size_t d);
    void CerrarModificar(size_t d, const LogicaAciertos& aciertos);
    void CambiarMinimo(const std::string& texto);
    void CambiarMaximo(const std::string& texto);
    void PulsarFigura(size_t i, bool marcada);
    /// A click on the bar of `valor`: a hit of the digit `apartado`, or a figure in the last section.
    void PulsarBarra(size_t apartado, int32_t valor);
    /// Puts in `condiciones` what the controls show, checked or not; what does not fit its field stays as it is.
    void Volcar(Condiciones& condiciones) const;
    /// Stores the sum and the figures if the sum is good; otherwise tells the first fault and stores
    /// neither.
    bool PuedeCerrar();

  private:
    bool Validar();
};
