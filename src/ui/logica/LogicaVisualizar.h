// The viewer of a bet file, frmVisualizar: its bets as a stack of tickets.
#pragma once

#include <array>
#include <string>

#include "Entorno.h"
#include "EstadoTrabajo.h"

struct LogicaVisualizar {
    LogicaVisualizar(EstadoTrabajo& estado, Entorno& mundo);

    /// Most rows of a ticket, of any game.
    static constexpr int FilasMaximas = 8;

    // What the window shows.
    std::string txtFicheroASCII; ///< full path of the file
    std::string lblApuestas = "0";
    bool chkReintegros;
    std::string txtIrboleto;
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

    EstadoTrabajo& trabajo;
    Entorno& entorno;

  private:
    void Mostrar(int32_t boleto);
};
