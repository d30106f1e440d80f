// The dialog of guarantees and percentages: what the final system assures, measured over every draw.
#pragma once

#include <array>
#include <functional>
#include <string>

#include "Entorno.h"
#include "ResultadosGarantias.h"
#include "Sesion.h"

/// Positions of `optTipoGarantias`.
enum : int { SobreElTotal = 0, SobreLoImportado = 1, SobreLoCondicionado = 2 };

/// Positions of `cboTipoGarantias`; the others are the number of hits.
enum : int { TodasLasGarantias = 0, SeisAciertos = 6 };

struct LogicaGarantias {
    LogicaGarantias(Sesion& s, Entorno& e) : sesion(s), entorno(e) { Abrir(); }

    Sesion& sesion;
    Entorno& entorno;

    // What is shown.
    int optTipoGarantias = SobreElTotal;
    int cboTipoGarantias = SeisAciertos;
    std::array<std::string, 3> lblTitulo; ///< the three measures, with their candidates
    std::array<bool, 3> optHabilitado{};
    std::string lblTituloApuestas;
    ResultadosGarantias resultados;
    std::string txtMiniGarantias;
    bool picVisorMiniGarantias = false; ///< the extended guarantees are on display
    bool picVentanaGarantias = false;   ///< the wait panel
    std::string lblEspera;              ///< its text
    double lblProgressBar = 0;          ///< 0 to 1
    bool Corriendo = false;
    bool detener = false;

    /// Fields from the state.
    void Abrir();

    /// Another measure, or other hits: the results go.
    void CambiarTipo(int indice);
    void CambiarAciertos(int indice);

    /// `imgCalcularGarantias`: the measure, or the six of "Todas" with their reports. Yields at every 300
    /// candidates and 1300 bets. False when a box ended it; want of memory leaves the results of before.
    bool Calcular();

    /// `imgGarantiasExtendidas`, and the way back from their panel.
    bool GarantiasExtendidas();
    void CerrarMiniGarantias() { picVisorMiniGarantias = false; }

    /// `cmdStop`: asks the run to stop.
    void Detener();

    /// Writes the report of what the table shows, in place of an earlier one; with `abrir` at 1 shows it, or
    /// under "Todas" the six. A failure shows its box and gives false.
    bool InformeGarantias(int abrir);

    bool PuedeCerrar() const { return !Corriendo; }

    /// Whether anything but the stop, or the way back from the panel, is to be used.
    bool Libre() const { return !Corriendo && !picVisorMiniGarantias; }

    bool cboTipoGarantiasVisible() const { return optTipoGarantias == SobreElTotal; }

    /// By class, whether its row shows: a draw of k numbers cannot reach more than k hits.
    std::array<bool, 7> Visibles() const;

    static std::string TextoAciertos(int indice);

  private:
    void LimpiarGarantias() { resultados = {}; }
    void Medir(int k);
    bool MedirTodas();
    bool Correr(const std::string& espera, const std::function<bool()>& tarea);
    bool Avanzar(double fraccion);
    void AnotarParada();
    bool EscribirInforme(std::string& ruta, std::string& fallo) const;

    int64_t Candidatas() const;
    int64_t Apuestas() const;
};
