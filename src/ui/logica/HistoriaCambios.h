// Undo and redo of what the user sets: marks, digits, conditions and reduction.
//
//     historia.Recordar(sesion);       after whatever may have changed something
//     historia.Deshacer(sesion);       back to what was recorded before
#pragma once

#include <deque>
#include <vector>

#include "Sesion.h"

class HistoriaCambios {
  public:
    /// The oldest steps are forgotten beyond this; a step takes about 50 KB.
    static constexpr size_t PasosMaximos = 100;

    /// Records a step if something has changed since the last one. Steps belong to one piece of work: a new
    /// one, another game or an import forgets them. After a save only what was saved counts as saved.
    void Recordar(const Sesion& sesion);

    /// What was opened or begun anew has no steps before it.
    void Olvidar();

    bool PuedeDeshacer() const { return !hechos_.empty(); }
    bool PuedeRehacer() const { return !deshechos_.empty(); }

    /// Each goes one step, and is recorded; without effect where there is none. The flag of saved work goes
    /// with it. Changed marks bring the counters with them, as a click does.
    void Deshacer(Sesion& sesion);
    void Rehacer(Sesion& sesion);

  private:
    // What changes in the same piece of work, and what tells one piece from another.
    struct Paso {
        explicit Paso(const Sesion& sesion);
        void Poner(Sesion& sesion) const;
        bool MismoTrabajo(const Paso& otro) const;
        bool Igual(const Paso& otro) const;

        int juego;
        uint32_t importacion;
        bool guardada;
        std::array<bool, NumeroMaximoBoleto + 1> numeros;
        std::array<bool, 10> digitos;
        int modo, tipoReintegro;
        std::array<bool, NFilas> activas{};
        Parametros parametros;
        AjustesReduccion reduccion;
    };

    void Ir(Sesion& sesion, std::deque<Paso>& desde, std::deque<Paso>& hacia);

    std::deque<Paso> hechos_, deshechos_;
    std::vector<Paso> actual_; ///< none or one: as the state was recorded last
};
