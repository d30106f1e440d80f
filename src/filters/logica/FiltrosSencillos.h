// The eight plainest filters: hit tables, check boxes and examples, without a validation. They differ
// only in data, so that one table, one logic and one window builder make all eight dialogs.
#pragma once

#include <array>
#include <span>
#include <string_view>

#include "Condiciones.h"
#include "TablaFiltros.h"

/// One hit table of a dialog: its caption and the ending of the names of its two controls.
struct FilaAciertosFiltro {
    std::string_view Etiqueta; ///< "01 al 24 : "
    std::string_view Texto;    ///< "txtAciertos0124"
    std::string_view Boton;    ///< "cmdModificar0124"
};

/// A line of an examples box: what is shown, and what it stands for.
struct EjemploFiltro {
    std::string_view Texto, Valor;
};

/// How a number is drawn in the picture of a ticket.
enum class TonoNumero { Normal, Resaltado, Central };

struct FiltroSencillo {
    FilaDe Fila{};
    std::string_view Ventana{}; ///< "frmFiltroDECENAS"
    std::string_view Frase{};   ///< one sentence: what the condition asks of a bet

    std::string_view CabeceraTablas{};
    std::span<const FilaAciertosFiltro> Tablas{};
    int MinimoAcierto = 0; ///< first cell of the chooser
    TablaAciertos& (*Tabla)(Condiciones&, size_t i) = nullptr;

    std::string_view CabeceraCasillas{};
    std::string_view NombreCasillas{}; ///< "chkFigura"
    int PrimeraCasilla = 0;            ///< index of the first box in its control's name
    std::span<const std::string_view> Casillas{};
    std::span<const std::string_view> EjemplosCasillas{}; ///< a bet for each box
    std::span<uint8_t> (*Marcas)(Condiciones&) = nullptr;
    bool GuardaAlPulsar = false; ///< the boxes are stored on the click, otherwise when the dialog closes

    std::string_view CabeceraEjemplos{};
    std::string_view Definicion{};
    std::span<const EjemploFiltro> Ejemplos{};
    std::string_view PieDibujo{};               ///< caption of the picture of the ticket
    TonoNumero (*Dibujo)(int numero) = nullptr; ///< null: no picture
};

extern const std::array<FiltroSencillo, 8> FiltrosSencillos;

/// The filter of row k, null when it is none of the eight.
const FiltroSencillo* FiltroSencilloDeFila(int k);

/// The row label without its padding, as a dialog's title shows it.
std::string_view TituloFila(int k);
