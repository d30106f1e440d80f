// The process window: runs a reduction in cycles, shows it, lets the user stop, repeat and accept it.
#pragma once

#include <array>
#include <chrono>
#include <string>
#include <vector>

#include "Entorno.h"
#include "Rnd.h"
#include "Sesion.h"

/// Ends of the search for a smaller system, 0 for none, and the seed of its chances.
struct FinesMejora {
    double Segundos = 0;
    int64_t Pasos = 0;
    uint64_t Semilla = 1;
    int32_t Apuestas = 0; ///< so few are enough
};

struct LogicaVentanaProceso {
    LogicaVentanaProceso(Sesion& s, Entorno& e) : sesion(s), entorno(e) {}

    Sesion& sesion;
    Entorno& entorno;

    // What is shown. Fractions go from 0 to 1.
    std::string lblApuestasInicialesVP, lblApuestasCondicionadasVP, lblApuestasVP;
    std::string lblDirecto, lblCiclos = "0", fraPorcentajes;
    std::string lblCota, lblHuecos; ///< empty until they are known
    double lblProgressBar = 0;
    std::array<std::string, NumeroMaximoBoleto + 1> lblN;          ///< by number; empty above `NumeroMaximo`
    std::array<bool, NumeroMaximoBoleto + 1> lblNConApuestas{};    ///< coloured: some bet holds the number
    bool imgDetener = false, imgCalcular = true, imgVolver = true; ///< what is enabled
    bool imgCalculoDefinitivo = true, imgVerPorcentajes = true, imgGarantias = true;
    bool imgMejorar = true, imgHuecos = true;
    bool Corriendo = false;
    bool Cerrada = false; ///< the window is asked to close

    // One system found: the cycle that found it, from 1, and its bets.
    struct Hallazgo {
        double Ciclo;
        int32_t Apuestas;
    };
    std::vector<Hallazgo> Hallazgos; ///< of the last run, ever smaller
    double Segundos = 0;             ///< that the run has taken
    double CiclosPorSegundo() const { return Segundos > 0 ? CicloActual / Segundos : 0; }

    // Ends of a run without a user at the window; 0 for none. The second counts once a system stands.
    double TopeCiclos = 0, TopeSegundos = 0;

    // The search for a smaller system.
    FinesMejora finesMejora;
    bool Mejorando = false; ///< it is what runs
    int32_t Cota = 0;       ///< no system with the guarantee is smaller; 0 while unknown
    int64_t PasosMejora = 0;
    double SegundosMejora = 0;

    // The fields of one run.
    bool detener = true;
    int16_t RadioBits = 0;
    int16_t Porcentaje = 100;
    int32_t NApuestas = 1;
    bool PorNumero = false, Ciclos = false, Azar = false;
    double CicloActual = 0;
    int32_t NApuestasReduccion = 0; ///< N, the bets of the conditioned system
    int32_t MejorApuestas = 1;      ///< N + 1 before any system

    /// The window comes to the front: the run, the exact count, and the close if the save was asked for.
    void Activar();

    /// The same run again, from `imgCalcular`.
    void Calcular();

    /// `imgDetener`: asks the run to stop.
    void Detener();

    /// Accepts the system and asks for its save.
    void CalculoDefinitivo();

    void Volver();

    /// `imgMejorar`: looks for a smaller system with the same guarantee until it is stopped. Each one found
    /// stands as the reduced system. False after a box.
    bool Mejorar();

    /// `imgHuecos`: counts the conditioned bets that the system does not cover at the level of the reduction,
    /// and shows the first of them in a report.
    void VerHuecos();

    /// The frame's own close button: always refused, because only the two buttons lead out.
    bool PuedeCerrar() const { return Cerrada; }

    /// `imgGarantias`: whether the window of guarantees is to open over this one; a box tells why not.
    bool VerGarantias();

    /// The grid as a table for a spreadsheet; empty before a run.
    std::string TextoTabla() const;

    /// Writes the grid to the analysis report and shows it.
    void VerPorcentajes();

    // For the routes.

    /// Shows the progress and yields. False when the run is to stop.
    bool Turno(double fraccion);

    /// Visiting order of the bets, from 1; null while it is still the table's own.
    const int32_t* OrdenApuestas() const { return orden_.empty() ? nullptr : orden_.data(); }

    /// Counts an ended cycle and shows it.
    void ContarCiclo();

    /// Shuffles the visiting order for the next cycle: the same way in every run unless `Azar`.
    void BarajarOrden();

    /// Takes the system that cycle `ciclo` found, smaller than the best: bets of the conditioned system,
    /// from 0, in order. `ascendentes`: numbers that stand out of order within a bet are put in order.
    void TomarMejor(const std::vector<int32_t>& elegidas, double ciclo, bool ascendentes);

    /// Takes a better system than the one that stands: masks of its bets, bit p - 1 for position p.
    void TomarMejorado(const std::vector<uint64_t>& sistema);

    /// Whether the mode by number of bets has what it asked for, or no system can be smaller.
    bool BastaElMejor() const;

    /// The fewest covered bets that are `porcentaje` of the system.
    int32_t CubiertasParaElegir(int porcentaje) const;

  private:
    void PorcentajesAntes();
    void PorcentajesDespues();
    void MostrarReducidas(int32_t apuestas);
    void Ajustar();
    void Correr();
    void Protegido(const std::function<void()>& trabajo);
    void Reducir();
    void ReconstruirTablas();
    void TomarAjustes();
    void ElegirRuta();
    void Porcentajes(const std::array<int64_t, 256>& porNumero, int64_t apuestas);
    void Habilitar(bool corriendo);

    std::vector<int32_t> orden_;
    std::chrono::steady_clock::time_point comienzo_;
    uint32_t turnos_ = 0;
};
