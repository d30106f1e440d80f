// Own systems, frmSistemasPropios: a system of bets carried over to other numbers.
#pragma once

#include <array>
#include <string>
#include <vector>

#include "Entorno.h"
#include "EstadoTrabajo.h"

struct LogicaSistemasPropios {
    LogicaSistemasPropios(EstadoTrabajo& estado, Entorno& mundo) : trabajo(estado), entorno(mundo) {}

    // What the window shows; arrays by number.
    std::string txtFicheroASCII;                               ///< full path of the loaded file
    std::array<bool, NumeroMaximoBoleto + 1> lblNumero{};      ///< origin, filled by loading
    std::array<bool, NumeroMaximoBoleto + 1> lblNumeroFINAL{}; ///< destination marks
    /// Origin number that each destination takes the place of, 0 where its list shows "---".
    std::array<int, NumeroMaximoBoleto + 1> cboOrden{};
    bool chkElegirOrden = false;
    int cboNumeros = 6; ///< how many "Azar" marks
    std::string txtApuCargadas = "0";
    std::string lblApuCargadas; ///< running count while reading
    Espera lblProgressBar;

    std::array<int32_t, NumeroMaximoBoleto + 1> AparicionesNumero{};
    Tabla ApuestasOrigen;

    std::string lblTitNumerosORIGEN() const;
    std::string lblTitNumerosDESTINO() const;
    /// Share of the bets that hold the number, "12,34 %"; empty for one that none holds.
    std::string Porcentaje(int numero) const;
    /// A line for each origin number, "07-12,34%".
    std::string txtPorcentajesNumeros() const;
    /// The same as a table for a spreadsheet; empty without a system.
    std::string TextoTabla() const;
    /// The numbers marked as destination, and those of the origin, ascending.
    std::vector<int> Destinos() const;
    std::vector<int> Origenes() const;

    void cmdDesdeFichero();
    /// Reads a system; what was loaded before is gone either way. False when nothing could be read.
    bool Cargar(const std::string& ruta);
    void PulsarDestino(int numero);
    void cmdAlazar();
    /// An origin that another list shows is refused with its box and leaves this list at "---".
    bool ElegirOrigen(int destino, int origen);
    /// Writes the system carried over. False when a box or the chooser ended it.
    bool imgCalculoDefinitivo();

    EstadoTrabajo& trabajo;
    Entorno& entorno;

  private:
    /// Whether every destination has its origin.
    bool chequearCOMBOS() const;
    bool LeerMapa(std::array<uint8_t, NumeroMaximoBoleto + 1>& MapaNumeros) const;
    Tabla Trasladar(const std::array<uint8_t, NumeroMaximoBoleto + 1>& MapaNumeros);
};
