// What part of the bets holds each number or digit, on paper and in the shape of the game's ticket.
#pragma once

#include <QFrame>
#include <QGridLayout>
#include <QLabel>

#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "Juegos.h"

struct RejillaPorcentajes {
    QFrame* papel = nullptr;
    QGridLayout* rejilla = nullptr;
    std::vector<QLabel*> numero, lblN; ///< by number or by digit; null where the game has none
    std::vector<bool> conApuestas;     ///< as painted
};

/// 49 numbers stand in five columns of tens, 40 in rows of five. Label n is called lblN_(n - 1) and has
/// room for `masAncha`.
RejillaPorcentajes CrearRejillaPorcentajes(int maximo, std::string_view masAncha = "100%");

/// The digits of a game in rows of five; label d is called lblR_d.
RejillaPorcentajes CrearRejillaPorcentajesDigitos(const Juego& juego, std::string_view masAncha);

/// Shows the texts, by number or by digit. Those that some bet holds stand on colour.
void PintarRejillaPorcentajes(RejillaPorcentajes& rejilla, std::span<const std::string> textos,
                              std::span<const bool> conApuestas);
