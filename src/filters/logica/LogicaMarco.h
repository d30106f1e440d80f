// What the dialogs of all nineteen filters have in common: the switch and the number fields.
#pragma once

#include <cstdint>
#include <string>

#include "Sesion.h"

/// The switch of the dialog of row k. The row holds the state; here is only the way to it.
struct LogicaMarco {
    Sesion& sesion;
    int k;

    bool Activo() const;
    /// Turns the row to "Sí". Called after every change of a parameter, also one that changes nothing.
    void ActivarFiltro();
    /// `imgActivar`: toggles the row, whatever the parameters are.
    void PulsarActivar();
    /// The state in words: "Condición activada" or "Condición desactivada", and so for the reduction.
    std::string lblActivar() const;
};

/// What was typed or pasted in a number field, without the keys that the field does not take.
std::string TextoDeCampo(const std::string& texto);

/// Puts that in the field and turns the filter on.
void CambiarCampo(LogicaMarco& marco, std::string& campo, const std::string& texto);

/// Whether nothing but blanks stands in the field.
bool EnBlanco(const std::string& campo);

/// The field's value. What is no number, or too long a one, counts as the highest of 32 bits, so that
/// a test of an upper bound refuses it.
int32_t ValorCampo(const std::string& campo);

/// The highest value that a bound of 16 bits takes.
inline constexpr int32_t MaximoIntervalo = INT16_MAX;

/// The interval in two fields.
void MostrarIntervalo(const Intervalo& intervalo, std::string& minimo, std::string& maximo);

/// The interval that two fields show. Without effect while one of them holds no number of 16 bits.
void LeerIntervalo(const std::string& minimo, const std::string& maximo, Intervalo& intervalo);
