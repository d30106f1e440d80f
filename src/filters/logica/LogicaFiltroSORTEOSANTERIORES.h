// The dialog of SORTEOSANTERIORES: the game's draws, and twenty groups that judge a bet by them.
#pragma once

#include <array>
#include <string>

#include "LogicaAciertos.h"
#include "SelectorBloque.h"
#include "TablaFiltros.h"

/// Only `imgVolver` closes this dialog. A group is stored when it passes its checks, on closing and
/// before another one is shown; its hits are stored at once.
struct LogicaFiltroSORTEOSANTERIORES {
    Sesion& sesion;
    Entorno& entorno;
    LogicaMarco marco{sesion, kSORTEOSANTERIORES};

    static constexpr int PrimerAnio = 1985, UltimoSorteo = 2000;
    static constexpr std::array<std::string_view, 7> Dias{"Todos",  "Lunes",   "Martes", "Miércoles",
                                                          "Jueves", "Viernes", "Sábado"};

    SelectorBloque bloque{.Paginas = RegistroSORTEOSANTERIORES::Grupos};
    std::string lblSorteosCargados{}, lblSorteoDESDE{}, lblTemporadaDESDE{}, lblSorteoHASTA{}, lblTemporadaHASTA{};
    /// The boxes' values: years, draw numbers and `Dias`. A base file may bring others than they offer.
    int cboAnioINI = 0, cboAnioFIN = 0, cboSorteoINI = 0, cboSorteoFIN = 0, cboDia = 0;
    std::string txtSorteoMINIMO{}, txtSorteoMAXIMO{};
    std::string txtAciertos{}; ///< a display, never parsed
    std::string lblSorteosConsultados{};
    bool Cargando = false; ///< all controls are disabled

    void Abrir();
    std::string lblTitTipo() const { return sesion.trabajo.TipoJuego(); }
    std::string lblNumeroGrupo() const;
    int UltimoAnio() const { return entorno.Ahora().Anio; }

    /// Asks the service for the game's draws. On a failure its box has been shown. An answer that is no
    /// XML, or none at all, leaves the loaded draws alone; one with a bad draw leaves none.
    bool cmdCargar();

    /// A choice in one of the five boxes, `caja` being its field.
    void ElegirEnCaja(int LogicaFiltroSORTEOSANTERIORES::*caja, int valor);
    void CambiarMinimo(const std::string& texto);
    void CambiarMaximo(const std::string& texto);
    LogicaAciertos AbrirModificar() { return AbrirAciertos(Grupo().acertarEN, 0); }
    void CerrarModificar(const LogicaAciertos& aciertos);
    void imgINIGrupo();

    /// Each stores the group and moves one on or back; with a fault it tells it and stays.
    void cmdMASBloque();
    void cmdMENOSBloque();
    /// Puts the group in `condiciones` what the controls show, checked or not; what does not fit its field stays as it
    /// is.
    void Volcar(Condiciones& condiciones) const;
    bool PuedeCerrar() { return GuardarGrupo(); }

  private:
    const BloqueSorteos& Grupo() const { return sesion.condiciones.SORTEOSANTERIORES.grupo[bloque.Grupo(0)]; }
    BloqueSorteos& Grupo() { return sesion.condiciones.SORTEOSANTERIORES.grupo[bloque.Grupo(0)]; }
    BloqueSorteos EnPantalla() const;
    void MostrarGrupo();
    void MostrarCargados();
    void Recontar();
    bool Cargar();
    bool FalloDeCarga(const std::string& descripcion);
    void PonerMaximos();
    bool ValidarGrupo();
    bool GuardarGrupo();
    bool FalloGrupo(const std::string& texto);
};
