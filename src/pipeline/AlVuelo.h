// Counts of what the conditions let through, made apart from the working state while it is being set.
#pragma once

#include <array>
#include <memory>
#include <optional>

#include "Entorno.h"
#include "Sesion.h"

/// A session of its own with the base and the conditions of `sesion`, and the imported bets where they are
/// the base. It shares nothing with it, so that another thread may count over it. Throws std::bad_alloc.
std::unique_ptr<Sesion> ApartarBase(const Sesion& sesion);

/// Expands the base that was set apart into its table, all alive: 7 bytes a bet. Nothing to do when the table
/// is there, and none for a base below six numbers. Throws std::bad_alloc.
void ExpandirBase(Sesion& aparte, Entorno& entorno);

/// What a row eliminates of the whole base.
struct CosteCondicion {
    int32_t Sola = 0;              ///< when it is the only one
    std::optional<int32_t> Propia; ///< what no other active row eliminates; empty for a row that is not active
};

struct CuentaAlVuelo {
    int32_t Total = 0, Pasan = 0;
    std::array<std::optional<CosteCondicion>, NFiltros> Costes; ///< empty where not counted
};

/// Runs each active condition that the game has over the expanded base by itself. Takes one more byte a
/// bet. An exception of `CederTurno` ends it; the base can be counted over again. Throws std::bad_alloc.
CuentaAlVuelo ContarAlVuelo(Sesion& aparte, Entorno& entorno);

/// Adds the rows that are not active to the costs.
void CostearInactivas(Sesion& aparte, Entorno& entorno, CuentaAlVuelo& cuenta);

/// Marks dead in `eliminada`, one byte for each bet of the expanded base, what the active conditions but
/// `k` eliminate, and nothing else. The bytes up to the next multiple of 64 behind it are 1.
void EliminarConOtras(Sesion& aparte, Entorno& entorno, int k, Tabla& eliminada);

/// How many of the bets that live in `eliminada` condition `k` lets through as it is set now. Leaves all
/// bets of the table alive.
int32_t PasanTambien(Sesion& aparte, Entorno& entorno, int k, const Tabla& eliminada);
