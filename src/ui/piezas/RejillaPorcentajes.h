// What part of the bets holds each number, on paper and in the shape of the game's ticket.
#pragma once

#include <QFrame>
#include <QGridLayout>
#include <QLabel>

#include <array>
#include <string>

#include "Juegos.h"

struct RejillaPorcentajes {
    QFrame* papel = nullptr;
    QGridLayout* rejilla = nullptr;
    std::array<QLabel*, NumeroMaximoBoleto + 1> numero{}, lblN{}; ///< from 1, called lblN_0 on
    std::array<bool, NumeroMaximoBoleto + 1> conApuestas{};       ///< as painted
};

/// 49 numbers stand in five columns of tens, 40 in rows of five.
RejillaPorcentajes CrearRejillaPorcentajes(int maximo);

/// Shows the texts, by number. Numbers that some bet holds stand on colour.
void PintarRejillaPorcentajes(RejillaPorcentajes& rejilla,
                              const std::array<std::string, NumeroMaximoBoleto + 1>& textos,
                              const std::array<bool, NumeroMaximoBoleto + 1>& conApuestas);
