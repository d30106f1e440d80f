// The commands of the main window and their effects on the working state.
#pragma once

#include "Entorno.h"
#include "HistoriaCambios.h"
#include "Ordenes.h"
#include "Sesion.h"

struct LogicaPrincipal {
    Sesion& sesion;
    Entorno& entorno;
    HistoriaCambios historia{};

    /// Runs a command that works on the state. Those that only open a window do nothing here.
    void Hacer(Orden orden);

    /// Whether the command's window may open; without bets those that need some show their box.
    bool PuedeAbrir(Orden orden);

    /// Whether the window may close: refused while a job runs, asked when the work is not saved.
    bool PuedeCerrar();

    /// The three lists and the check box, as chosen by the user.
    void CambiarJuego(int juego);
    void CambiarTipoReintegro(int indice);
    void CambiarReintegros(bool marcado);
    /// True when the chooser of a random base is to be opened.
    bool CambiarTipoCombinacion(int indice);

    /// A file dropped on the window: opens a base file, imports the bets of any other.
    void Soltar(const std::string& ruta);

    /// Clicks on the ticket; without effect while it is disabled.
    void PulsarNumero(int numero);
    void PulsarReintegro(int digito);
    void PulsarFila(int r);
    void PulsarColumna(int c);
    void MarcarDesmarcarTODOS();

    /// Marks the numbers of a text besides those marked; what is none is told and left out.
    void Pegar(const std::string& texto);
    /// The marked numbers of the game: "3, 7, 12".
    std::string Copiar() const;

    /// A step of what the user has set, back or forward; without effect while a job runs.
    void Deshacer();
    void Rehacer();

    /// The right button on a row of the list: the saved flag stays.
    void AlternarFila(int k);

    // What is shown beside the fields of the state.
    bool Bloqueada() const { return sesion.trabajo.FormularioBloqueado || sesion.trabajo.EstadoCalculando; }
    bool BoletoHabilitado() const;
    bool HayMarcas() const;
    std::string cmdCuadroApuDirecto() const;
    std::string lblTipoCombinacion() const;

    /// A counter as shown; the conditioned one gives way to the progress text.
    std::string lblApuestasIniciales() const;
    std::string lblApuestasCondicionadas() const;
    std::string lblApuestasReducidas() const;

  private:
    bool PuedeDescartar();
    void Nuevo();
    void CalculoPrueba();
    void AyudaOnline();
};
