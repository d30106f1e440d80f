// Local search for a cheap cover.
#pragma once

#include "Recubrimiento.h"
#include "Rnd.h"

/// From a cover it takes a column out, and then exchanges columns until everything is covered again.
/// Rows that stay uncovered grow in weight, so that the search does not settle in a dead end. With less
/// to cover than all, or with a fixed cost, the weights stay and the covered weight itself is raised.
///
///     BusquedaLocal busqueda(problema, 1);
///     busqueda.PartirDe(columnas);
///     while (quiera) busqueda.Paso();
///     usar(busqueda.Mejor());
///
/// Memory: 24 bytes a row and 29 a column. A step allocates nothing.
class BusquedaLocal {
  public:
    BusquedaLocal(const Recubrimiento& problema, uint64_t semilla);

    /// Starts from these columns; what is missing for a cover is added greedily, what is not needed left
    /// out.
    void PartirDe(const std::vector<int32_t>& columnas);

    /// Turns to the other question: the most weight that columns of at most this cost can cover, from
    /// these columns on. `Mejor` is then the best of these.
    void FijarCoste(int32_t coste, const std::vector<int32_t>& columnas);

    /// One exchange.
    void Paso();

    const std::vector<int32_t>& Mejor() const { return mejor_; }
    int32_t MejorCoste() const { return mejorCoste_; }
    int64_t MejorCubierto() const { return mejorCubierto_; }

    /// Work done so far, in visits of a column's score.
    int64_t Trabajo() const { return trabajo_; }

  private:
    void Vaciar();
    void Poner(int32_t columna);
    void Quitar(int32_t columna);
    void Descubrir(int32_t fila, int32_t columna);
    void Cubrir(int32_t fila, int32_t columna);
    void Sumar(int32_t fila, int32_t peso);
    void Completar();
    void Podar();
    void Anotar();
    void Estrechar();
    bool Gana(int32_t a, int32_t b) const;
    int32_t PeorDeLasPuestas() const;
    int32_t MejorPara(int32_t fila) const;
    void Llenar();
    void PesarDescubiertas();
    void Suavizar();
    bool Cumplido() const { return cubierto_ >= p_.exigido; }

    const Recubrimiento& p_;
    Azar azar_;
    bool pesar_, fijo_ = false;            // the weights grow; the cost is fixed
    int32_t tope_ = 0;                     // cost that a cover must not reach; with a fixed cost, one more than it
    std::vector<int32_t> puntos_;          // by column: weight it would cover anew, or minus what it alone covers
    std::vector<int32_t> peso_;            // by row
    std::vector<int32_t> veces_, suma_;    // by row: columns that cover it, and the sum of their numbers
    std::vector<int32_t> puestas_, lugar_; // columns taken; by column its place there, -1
    std::vector<int32_t> descubiertas_, lugarFila_;
    std::vector<int64_t> entrada_; // by column: the step in which it last came or went
    int32_t coste_ = 0, quitada_ = -1;
    int64_t cubierto_ = 0, paso_ = 0, trabajo_ = 0;
    std::vector<int32_t> mejor_;
    int32_t mejorCoste_ = 0;
    int64_t mejorCubierto_ = -1;
};
