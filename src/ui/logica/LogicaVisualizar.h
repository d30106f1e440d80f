// The viewer of a bet file, frmVisualizar: its bets as a stack of tickets.
#pragma once

#include <array>
#include <string>
#include <vector>

#include "Entorno.h"
#include "EstadoTrabajo.h"

/// One bet as it is filled in on a ticket; the digit is -1 where it does not show.
struct ApuestaDeBoleto {
    std::array<uint8_t, 6> numeros{};
    int digito = -1;
};

struct LogicaVisualizar {
    LogicaVisualizar(EstadoTrabajo& estado, Entorno& mundo);

    /// Most rows of a ticket, of any game.
    static constexpr int FilasMaximas = 8;
    /// Most tickets that are printed at a time: 500 pages.
    static constexpr int32_t BoletosPorImpresion = 1000;

    // What the window shows.
    std::string txtFicheroASCII; ///< full path of the file
    std::string lblApuestas = "0";
    bool chkReintegros;
    std::string txtIrboleto;
    std::string txtBoletoDESDE = "1", txtBoletoHASTA = "1"; ///< tickets to print
    /// Row r from 0, column c from 1 to 6 at r x 6 + c - 1; empty where the ticket has no bet.
    std::array<std::string, size_t{6} * FilasMaximas> lblColumna;
    std::array<std::string, FilasMaximas> lblReintegro;
    bool Navegable = false; ///< there is a file, so the commands are enabled

    Tabla ApuestasVisor;
    int32_t BoletoActual = 0;

    int32_t ApuestasPorBoleto() const { return trabajo.JuegoActual().ApuestasPorBoleto; }
    int32_t Boletos() const;
    /// Bets of ticket t, from 1.
    int32_t FilasDeBoleto(int32_t t) const;
    std::string lblNumeroBoleto() const;
    std::string Titulo() const;
    /// Heads the column of the digits.
    std::string LetraDigito() const { return trabajo.NumeroMaximo() == NumeroMaximoBoleto ? "R" : "S"; }
    /// The bets of the ticket as a table for a spreadsheet; empty without a file.
    std::string TextoTabla() const;
    bool PuedeRetroceder() const { return Navegable && BoletoActual > 1; }
    bool PuedeAvanzar() const { return Navegable && BoletoActual < Boletos(); }

    void cmdDesdeFichero();
    /// Reads the file; what was shown before is gone either way. False when nothing could be read.
    bool Cargar(const std::string& ruta);
    void imgPrimero();
    void imgRetroceder();
    void imgAvanzar();
    void imgUltimo();
    /// Enter in `txtIrboleto`.
    bool IrABoleto();
    void CambiarReintegros(bool activo);

    /// The bets of ticket t, from 1, with their digits while `chkReintegros` is set.
    std::vector<ApuestaDeBoleto> ApuestasDeBoleto(int32_t t) const;
    /// The tickets asked for in the two fields; false after a box when they are none.
    bool BoletosParaImprimir(int32_t& desde, int32_t& hasta);
    /// Asks for the file of an export; the answer ends in ".pdf". Empty when cancelled.
    std::string PedirRutaPdf();

    EstadoTrabajo& trabajo;
    Entorno& entorno;

  private:
    void Mostrar(int32_t boleto);
};
