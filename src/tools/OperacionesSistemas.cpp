#include "OperacionesSistemas.h"

#include <algorithm>
#include <cstring>
#include <vector>

#include "TablasCSN.h"

namespace {

constexpr int Filas = 7; // as the bet file is written, the digit's row included

// Bets, or sequence numbers, between two turns.
constexpr int64_t Tanda = 16384;
constexpr int32_t TandaCSN = 1 << 20;

// Calls `hacer(csn)` for each bet in its order.
template <class Hacer>
bool PorCadaCSN(const Tabla& sistema, const Turno& turno, Hacer hacer) {
    std::vector<int32_t> csn(Tanda);
    for (int64_t desde = 0; desde < sistema.Apuestas(); desde += Tanda) {
        const int64_t n = std::min(Tanda, sistema.Apuestas() - desde);
        CombinacionesaCSN(sistema, desde + 1, n, csn.data());
        for (int64_t i = 0; i < n; ++i) hacer(csn[static_cast<size_t>(i)]);
        if (!turno()) return false;
    }
    return true;
}

bool Insertar(const Tabla& sistema, ConjuntoCSN& conjunto, const Turno& turno) {
    return PorCadaCSN(sistema, turno, [&](int32_t csn) { conjunto.Insertar(csn); });
}

bool Volcar(const ConjuntoCSN& conjunto, Tabla& resultado, const Turno& turno) {
    resultado.DimensionarSinLimpiar(Filas, conjunto.Cuantas());
    int64_t hechas = 0;
    for (int32_t desde = 1; desde <= ApuestasMaximas && hechas < resultado.Apuestas(); desde += TandaCSN) {
        const int32_t hasta = std::min(desde + TandaCSN - 1, ApuestasMaximas);
        hechas += CombinacionesDeConjunto(conjunto, desde, hasta, resultado, hechas + 1);
        if (!turno()) return false;
    }
    return true;
}

// How often each sequence number occurs: a byte for each, and the numbers that filled it once again each
// time that they did, of which there can be few.
struct Veces {
    std::vector<uint8_t> resto = std::vector<uint8_t>(static_cast<size_t>(ApuestasMaximas) + 1);
    std::vector<int32_t> llenos; ///< each stands for 256 times

    void Contar(int32_t csn) {
        if (++resto[static_cast<size_t>(csn)] == 0) llenos.push_back(csn);
    }
};

// Sequence numbers on their way to the result.
class Salida {
  public:
    Salida(Tabla& resultado, const Turno& turno) : resultado_(resultado), turno_(turno) { tanda_.reserve(Tanda); }

    bool Poner(int32_t csn, int64_t veces) {
        for (; veces > 0; --veces) {
            tanda_.push_back(csn);
            if (static_cast<int64_t>(tanda_.size()) == Tanda && !Vaciar()) return false;
        }
        return true;
    }
    bool Vaciar() {
        const auto n = static_cast<int64_t>(tanda_.size());
        CSNaCombinaciones(tanda_.data(), n, resultado_, hechas_ + 1);
        hechas_ += n;
        tanda_.clear();
        return turno_();
    }

  private:
    Tabla& resultado_;
    const Turno& turno_;
    std::vector<int32_t> tanda_;
    int64_t hechas_ = 0;
};

bool Volcar(Veces& veces, bool descendente, Tabla& resultado, const Turno& turno) {
    std::sort(veces.llenos.begin(), veces.llenos.end());
    Salida salida(resultado, turno);
    for (int32_t i = 1; i <= ApuestasMaximas; ++i) {
        const int32_t csn = descendente ? ApuestasMaximas + 1 - i : i;
        int64_t cuantas = veces.resto[static_cast<size_t>(csn)];
        if (!veces.llenos.empty()) {
            const auto [desde, hasta] = std::equal_range(veces.llenos.begin(), veces.llenos.end(), csn);
            cuantas += 256 * (hasta - desde);
        }
        if (!salida.Poner(csn, cuantas)) return false;
    }
    return salida.Vaciar();
}

} // namespace

bool SumarDirecto(const Tabla& s1, const Tabla& s2, Tabla& resultado, const Turno& turno) {
    resultado.DimensionarSinLimpiar(Filas, s1.Apuestas() + s2.Apuestas());
    for (int r = 1; r <= 6; ++r) {
        if (s1.Apuestas() > 0) std::memcpy(resultado.Fila(r), s1.Fila(r), static_cast<size_t>(s1.Apuestas()));
        if (s2.Apuestas() > 0)
            std::memcpy(resultado.Fila(r) + s1.Apuestas(), s2.Fila(r), static_cast<size_t>(s2.Apuestas()));
        if (!turno()) return false;
    }
    return true;
}

bool SumarSinRepetidas(const Tabla& s1, const Tabla& s2, Tabla& resultado, const Turno& turno) {
    ConjuntoCSN suma;
    return Insertar(s1, suma, turno) && Insertar(s2, suma, turno) && Volcar(suma, resultado, turno);
}

bool Intersecar(const Tabla& s1, const Tabla& s2, Tabla& resultado, const Turno& turno) {
    ConjuntoCSN primero, una, dos, tres; // in system 1; at least so often in system 2
    const auto contar = [&](int32_t csn) {
        if (!una.Insertar(csn) && !dos.Insertar(csn)) tres.Insertar(csn);
    };
    if (!Insertar(s1, primero, turno) || !PorCadaCSN(s2, turno, contar)) return false;
    for (size_t p = 0; p < ConjuntoCSN::NPalabras; ++p) {
        const uint64_t soloUna = una.Palabra(p) & ~dos.Palabra(p), soloDos = dos.Palabra(p) & ~tres.Palabra(p);
        primero.Palabra(p) = (primero.Palabra(p) & soloUna) | (~primero.Palabra(p) & soloDos);
    }
    return Volcar(primero, resultado, turno);
}

bool Restar(const Tabla& s1, const Tabla& s2, Tabla& resultado, const Turno& turno) {
    ConjuntoCSN resta;
    return Insertar(s1, resta, turno) && PorCadaCSN(s2, turno, [&](int32_t csn) { resta.Quitar(csn); }) &&
           Volcar(resta, resultado, turno);
}

bool OrdenarSistema(const Tabla& sistema, bool descendente, Tabla& resultado, const Turno& turno) {
    Veces veces;
    if (!PorCadaCSN(sistema, turno, [&](int32_t csn) { veces.Contar(csn); })) return false;
    resultado.DimensionarSinLimpiar(Filas, sistema.Apuestas());
    return Volcar(veces, descendente, resultado, turno);
}
