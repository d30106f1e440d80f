// Kernels that count bets by value.
#include "NucleosReparto.h"

#include <algorithm>

#include "Objetivos.h"
#undef HWY_TARGET_INCLUDE
#define HWY_TARGET_INCLUDE "NucleosReparto.cpp"
#include <hwy/foreach_target.h>

#include "SumaPalabras-inl.h"

HWY_BEFORE_NAMESPACE();
namespace {
namespace HWY_NAMESPACE {
#if HWY_TARGET == HWY_SCALAR

void Aciertos(const Tramo& tramo, const uint8_t* valores, CuentaAciertos& cuenta) {
    NucleoContarAciertosEscalar(tramo, valores, cuenta);
}
void Figuras(const Tramo& tramo, const uint8_t* valores, CuentaFiguras& cuenta) {
    NucleoContarFigurasEscalar(tramo, valores, cuenta);
}
void Pares(const Tramo& tramo, const uint8_t* valores, CuentaAciertos& baja, CuentaAciertos& alta) {
    NucleoContarParesEscalar(tramo, valores, baja, alta);
}
void Bytes2(const Tramo& tramo, const uint8_t* baja, const uint8_t* alta, CuentaPalabras& cuenta) {
    NucleoContarBytesEscalar(tramo, baja, alta, cuenta);
}
void DePalabras(const Tramo& tramo, const uint16_t* valores, CuentaPalabras& cuenta) {
    NucleoContarPalabrasEscalar(tramo, valores, cuenta);
}
void DeSumas(const Tramo& tramo, const PalabrasPorPosicion& valores, int16_t minimo, CuentaPalabras& cuenta) {
    NucleoContarSumasEscalar(tramo, valores, minimo, cuenta);
}
CuentaValor SumarEstados(const uint8_t* estados, size_t n, uint16_t* pasan, uint16_t* rechazadas) {
    return NucleoSumarEstadosEscalar(estados, n, pasan, rechazadas);
}

#else

// Each lane counts the bets of one value in a byte, in its low half those that pass and in its high half the
// rejected ones; halves hold 15 vectors. Values from `Raros` on are counted where whoever counts knows that there
// are any, and those below `Primero` not at all.
template <size_t Valores, size_t Primero = 0, size_t Raros = Valores>
class RecuentoPequenos {
  public:
    static constexpr int64_t Vectores = 15;

    HWY_INLINE RecuentoPequenos() {
        for (V& cuenta : cuentas_) cuenta = hn::Zero(d);
        for (auto* sumas : {pasan_, rechazadas_})
            for (size_t v = 0; v < Valores; ++v) sumas[v] = hn::Zero(d64);
    }
    /// `peso` is 1 for a bet that passes, 16 for a rejected one and 0 for a dead one.
    HWY_INLINE void Contar(V valor, V peso) {
        for (size_t v = Primero; v < Raros; ++v) ContarLosDe(v, valor, peso);
    }
    HWY_INLINE void ContarRaros(V valor, V peso) {
        for (size_t v = Raros; v < Valores; ++v) ContarLosDe(v, valor, peso);
        hayRaros_ = true;
    }
    HWY_INLINE void Vaciar() {
        for (size_t v = Primero; v < (hayRaros_ ? Valores : Raros); ++v) {
            pasan_[v] = hn::Add(pasan_[v], hn::SumsOf8(hn::And(cuentas_[v], hn::Set(d, 15))));
            rechazadas_[v] = hn::Add(rechazadas_[v], hn::SumsOf8(hn::ShiftRight<4>(cuentas_[v])));
            cuentas_[v] = hn::Zero(d);
        }
        hayRaros_ = false;
    }
    HWY_INLINE void Sumar(std::array<CuentaValor, Valores>& cuenta) const {
        for (size_t v = 0; v < Valores; ++v) {
            const int32_t pasan = Suma(pasan_[v]);
            cuenta[v].Sumar({pasan + Suma(rechazadas_[v]), pasan});
        }
    }

  private:
    static constexpr hn::Repartition<uint64_t, Bytes> d64{};
    using V64 = hn::Vec<decltype(d64)>;

    HWY_INLINE void ContarLosDe(size_t v, V valor, V peso) {
        const auto iguales = hn::Eq(valor, hn::Set(d, static_cast<uint8_t>(v)));
        cuentas_[v] = hn::IfThenElse(iguales, hn::Add(cuentas_[v], peso), cuentas_[v]);
    }
    static HWY_INLINE int32_t Suma(V64 v) { return static_cast<int32_t>(hn::GetLane(hn::SumOfLanes(d64, v))); }

    V cuentas_[Valores];
    V64 pasan_[Valores], rechazadas_[Valores]; // sums of eight lanes
    bool hayRaros_ = false;
};

alignas(16) constexpr PorCuenta PesoDeEstado{1, 16, 0}; // by EstadoApuesta

// `contar(i, peso)` for each vector of the stretch and `vaciar()` behind every `vectores` of them.
template <class Contar, class Vaciar>
HWY_INLINE void PorTandas(const Tramo& tramo, int64_t vectores, Contar contar, Vaciar vaciar) {
    const Busqueda16 peso(PesoDeEstado);
    const auto ancho = static_cast<int64_t>(hn::Lanes(d));
    for (int64_t desde = 0; desde < tramo.n; desde += vectores * ancho) {
        const int64_t hasta = std::min(desde + vectores * ancho, tramo.n);
        for (int64_t i = desde; i < hasta; i += ancho) contar(i, peso(hn::Load(d, tramo.eliminada + i)));
        vaciar();
    }
}

template <size_t Valores>
void Pequenos(const Tramo& tramo, const uint8_t* valores, std::array<CuentaValor, Valores>& cuenta) {
    RecuentoPequenos<Valores> recuento;
    PorTandas(
        tramo, recuento.Vectores, [&](int64_t i, V peso) HWY_ATTR { recuento.Contar(hn::Load(d, valores + i), peso); },
        [&]() HWY_ATTR { recuento.Vaciar(); });
    recuento.Sumar(cuenta);
}

void Aciertos(const Tramo& tramo, const uint8_t* valores, CuentaAciertos& cuenta) {
    Pequenos(tramo, valores, cuenta);
}

void Figuras(const Tramo& tramo, const uint8_t* valores, CuentaFiguras& cuenta) {
    Pequenos(tramo, valores, cuenta);
}

// Four of one class and more are rare.
void Pares(const Tramo& tramo, const uint8_t* valores, CuentaAciertos& baja, CuentaAciertos& alta) {
    RecuentoPequenos<7, 1, 4> recuento[2];
    PorTandas(
        tramo, recuento->Vectores,
        [&](int64_t i, V peso) HWY_ATTR {
            const V v = hn::Load(d, valores + i), bajos = hn::And(v, hn::Set(d, 15)), altos = hn::ShiftRight<4>(v);
            recuento[0].Contar(bajos, peso);
            recuento[1].Contar(altos, peso);
            if (hn::AllTrue(d, hn::Eq(hn::And(v, hn::Set(d, 0x44)), hn::Zero(d)))) return; // all below four
            recuento[0].ContarRaros(bajos, peso);
            recuento[1].ContarRaros(altos, peso);
        },
        [&]() HWY_ATTR {
            for (auto& r : recuento) r.Vaciar();
        });
    recuento[0].Sumar(baja);
    recuento[1].Sumar(alta);
}

CuentaValor SumarEstados(const uint8_t* estados, size_t n, uint16_t* pasan, uint16_t* rechazadas) {
    const hn::Half<Bytes> mitad;
    size_t suyas[2] = {};
    for (size_t i = 0; i < n; i += hn::Lanes(d16)) {
        const auto estado = hn::PromoteTo(d16, hn::LoadU(mitad, estados + i));
        const auto cuales = hn::FirstN(d16, n - i);
        const auto sumar = [&](uint16_t* cuentas, uint16_t e, size_t& total) HWY_ATTR {
            const auto iguales = hn::And(cuales, hn::Eq(estado, hn::Set(d16, e)));
            hn::StoreU(hn::Sub(hn::LoadU(d16, cuentas + i), hn::VecFromMask(d16, iguales)), d16, cuentas + i);
            total += hn::CountTrue(d16, iguales);
        };
        sumar(pasan, ApuestaPasa, suyas[0]);
        sumar(rechazadas, ApuestaRechazada, suyas[1]);
    }
    return {static_cast<int32_t>(suyas[0] + suyas[1]), static_cast<int32_t>(suyas[0])};
}

class RecuentoPalabras {
  public:
    explicit RecuentoPalabras(CuentaPalabras& cuenta) {
        for (size_t t = 0; t < CuentaPalabras::Turnos; ++t) cuentas_[t] = cuenta.Cuentas(t);
    }

    // In a table in order many rows hold a few different values for a while, which are counted one after the
    // other. Where they are more, the next vectors are likely to have as many: after each vain attempt twice
    // as many are counted bet by bet.
    HWY_INLINE void Contar(const uint8_t* baja, const uint8_t* alta, V estado) {
        const V bajas = hn::Load(d, baja), altas = hn::Load(d, alta);
        if (variados_ > 0) {
            --variados_;
            return ContarUnaAUna(bajas, altas, estado);
        }
        Mascara quedan = hn::Ne(estado, hn::Set(d, ApuestaMuerta));
        for (int v = 0; v < 4; ++v) {
            const auto i = hn::FindFirstTrue(d, quedan);
            if (i < 0) break;
            const auto iguales = hn::And(hn::Eq(bajas, hn::Set(d, baja[i])), hn::Eq(altas, hn::Set(d, alta[i])));
            ContarIguales(baja[i], alta[i], hn::And(quedan, iguales), estado);
            quedan = hn::AndNot(iguales, quedan);
        }
        if (hn::AllFalse(d, quedan)) {
            pausa_ = 0;
            return;
        }
        variados_ = pausa_ = std::min(2 * pausa_ + 1, MayorPausa);
        ContarUnaAUna(bajas, altas, hn::IfThenElse(quedan, estado, hn::Set(d, ApuestaMuerta)));
    }

  private:
    using Mascara = decltype(hn::Eq(V(), V()));

    HWY_INLINE void ContarIguales(uint8_t baja, uint8_t alta, Mascara cuales, V estado) {
        const size_t valor = baja + size_t{256} * alta;
        for (const EstadoApuesta e : {ApuestaPasa, ApuestaRechazada}) {
            const auto suyas = hn::And(cuales, hn::Eq(estado, hn::Set(d, static_cast<uint8_t>(e))));
            cuentas_[0][CuentaPalabras::Lugar(valor, e)] += static_cast<int32_t>(hn::CountTrue(d, suyas));
        }
    }

    HWY_INLINE void ContarUnaAUna(V bajas, V altas, V estado) {
        static_assert(CuentaPalabras::Lugar(0, ApuestaRechazada) == 0x8080);
        static_assert(CuentaPalabras::Lugar(0, ApuestaMuerta) == 0x7F00);
        const V rechazo = hn::ShiftLeft<7>(estado);
        const auto muertas = hn::Eq(estado, hn::Set(d, ApuestaMuerta));
        const V altasConEstado = hn::IfThenElse(muertas, hn::Set(d, 0x7F), hn::Xor(altas, rechazo));
        const V bajasConEstado = hn::Xor(bajas, rechazo);
        constexpr size_t ancho = hn::MaxLanes(d);
        HWY_ALIGN uint16_t lugar[ancho];
        hn::Store(hn::BitCast(d16, hn::InterleaveLower(bajasConEstado, altasConEstado)), d16, lugar);
        hn::Store(hn::BitCast(d16, hn::InterleaveUpper(d, bajasConEstado, altasConEstado)), d16, lugar + ancho / 2);
        for (size_t j = 0; j < ancho; j += CuentaPalabras::Turnos)
            for (size_t t = 0; t < CuentaPalabras::Turnos; ++t) ++cuentas_[t][lugar[j + t]];
    }

    int32_t* cuentas_[CuentaPalabras::Turnos];
    static constexpr int MayorPausa = 31;
    int variados_ = 0; // vectors yet to be counted one bet at a time
    int pausa_ = 0;
};

void Bytes2(const Tramo& tramo, const uint8_t* baja, const uint8_t* alta, CuentaPalabras& cuenta) {
    RecuentoPalabras recuento(cuenta);
    const auto ancho = static_cast<int64_t>(hn::Lanes(d));
    for (int64_t i = 0; i < tramo.n; i += ancho) recuento.Contar(baja + i, alta + i, hn::Load(d, tramo.eliminada + i));
}

// Words have the state in their highest bit; those of dead bets are all alike.
class RecuentoDePalabras {
  public:
    explicit RecuentoDePalabras(CuentaPalabras& cuenta) {
        for (size_t t = 0; t < CuentaPalabras::Turnos; ++t) cuentas_[t] = cuenta.Cuentas(t);
    }
    HWY_INLINE void Contar(V16 valores, V16 estado) {
        const auto muertas = hn::Eq(estado, hn::Set(d16, ApuestaMuerta));
        const V16 rechazo = hn::Or(hn::ShiftLeft<15>(estado), hn::ShiftLeft<7>(estado));
        constexpr size_t ancho = hn::MaxLanes(d16);
        HWY_ALIGN uint16_t lugar[ancho];
        hn::Store(
            hn::IfThenElse(muertas, hn::Set(d16, CuentaPalabras::Lugar(0, ApuestaMuerta)), hn::Xor(valores, rechazo)),
            d16, lugar);
        for (size_t j = 0; j < ancho; j += CuentaPalabras::Turnos)
            for (size_t t = 0; t < CuentaPalabras::Turnos; ++t) ++cuentas_[t][lugar[j + t]];
    }

  private:
    int32_t* cuentas_[CuentaPalabras::Turnos];
};

void DePalabras(const Tramo& tramo, const uint16_t* valores, CuentaPalabras& cuenta) {
    const hn::Half<Bytes> mitad;
    RecuentoDePalabras recuento(cuenta);
    for (int64_t i = 0; i < tramo.n; i += static_cast<int64_t>(hn::Lanes(d16)))
        recuento.Contar(hn::LoadU(d16, valores + i), hn::PromoteTo(d16, hn::Load(mitad, tramo.eliminada + i)));
}

void DeSumas(const Tramo& tramo, const PalabrasPorPosicion& valores, int16_t minimo, CuentaPalabras& cuenta) {
    const SumaPalabras sumar(valores);
    const V16 menor = hn::Set(d16, static_cast<uint16_t>(minimo));
    RecuentoDePalabras recuento(cuenta);
    for (int64_t i = 0; i < tramo.n; i += static_cast<int64_t>(hn::Lanes(d))) {
        const ParPalabras suma = sumar(tramo, i);
        const V16 estado = hn::BitCast(d16, hn::Load(d, tramo.eliminada + i));
        recuento.Contar(hn::Sub(suma.pares, menor), hn::And(estado, hn::Set(d16, 0xFF)));
        recuento.Contar(hn::Sub(suma.impares, menor), hn::ShiftRight<8>(estado));
    }
}

#endif
} // namespace HWY_NAMESPACE
} // namespace
HWY_AFTER_NAMESPACE();

#if HWY_ONCE
namespace {
HWY_EXPORT(Aciertos);
HWY_EXPORT(Figuras);
HWY_EXPORT(Pares);
HWY_EXPORT(Bytes2);
HWY_EXPORT(DePalabras);
HWY_EXPORT(DeSumas);
HWY_EXPORT(SumarEstados);

alignas(64) constexpr std::array<uint8_t, ApuestasPorTurno + 128> Ceros{};

template <size_t Valores, class Valor>
void ContarUnoAUno(const Tramo& tramo, std::array<CuentaValor, Valores>& cuenta, Valor valor) {
    for (int64_t i = 0; i < tramo.n; ++i) {
        const auto v = static_cast<size_t>(valor(i));
        if (v < Valores && tramo.eliminada[i] != ApuestaMuerta) cuenta[v].Sumar({1, tramo.eliminada[i] == ApuestaPasa});
    }
}
} // namespace

CuentaValor CuentaPalabras::De(size_t valor) const {
    CuentaValor suma;
    for (size_t t = 0; t < Turnos; ++t) {
        const int32_t* cuentas = cuentas_.data() + t * PorTurno;
        const int32_t pasan = cuentas[Lugar(valor, ApuestaPasa)];
        suma.Sumar({pasan + cuentas[Lugar(valor, ApuestaRechazada)], pasan});
    }
    return suma;
}

void NucleoContarAciertos(const Tramo& tramo, const uint8_t* valores, CuentaAciertos& cuenta) {
    HWY_DYNAMIC_DISPATCH(Aciertos)(tramo, valores, cuenta);
}

void NucleoContarPares(const Tramo& tramo, const uint8_t* valores, CuentaAciertos& baja, CuentaAciertos& alta) {
    HWY_DYNAMIC_DISPATCH(Pares)(tramo, valores, baja, alta);
}

void NucleoContarFiguras(const Tramo& tramo, const uint8_t* valores, CuentaFiguras& cuenta) {
    HWY_DYNAMIC_DISPATCH(Figuras)(tramo, valores, cuenta);
}

void NucleoContarBytes(const Tramo& tramo, const uint8_t* baja, const uint8_t* alta, CuentaPalabras& cuenta) {
    HWY_DYNAMIC_DISPATCH(Bytes2)(tramo, baja, alta == nullptr ? Ceros.data() : alta, cuenta);
}

void NucleoContarAciertosEscalar(const Tramo& tramo, const uint8_t* valores, CuentaAciertos& cuenta) {
    ContarUnoAUno(tramo, cuenta, [&](int64_t i) { return valores[i]; });
}

void NucleoContarFigurasEscalar(const Tramo& tramo, const uint8_t* valores, CuentaFiguras& cuenta) {
    ContarUnoAUno(tramo, cuenta, [&](int64_t i) { return valores[i]; });
}

void NucleoContarParesEscalar(const Tramo& tramo, const uint8_t* valores, CuentaAciertos& baja, CuentaAciertos& alta) {
    CuentaAciertos bajas{}, altas{};
    ContarUnoAUno(tramo, bajas, [&](int64_t i) { return valores[i] & 15; });
    ContarUnoAUno(tramo, altas, [&](int64_t i) { return valores[i] >> 4; });
    for (size_t v = 1; v < baja.size(); ++v) {
        baja[v].Sumar(bajas[v]);
        alta[v].Sumar(altas[v]);
    }
}

void NucleoContarBytesEscalar(const Tramo& tramo, const uint8_t* baja, const uint8_t* alta, CuentaPalabras& cuenta) {
    for (int64_t i = 0; i < tramo.n; ++i) {
        const size_t valor = tramo.eliminada[i] == ApuestaMuerta ? 0 : baja[i] + size_t{256} * alta[i];
        ++cuenta.Cuentas(static_cast<size_t>(i) %
                         CuentaPalabras::Turnos)[CuentaPalabras::Lugar(valor, tramo.eliminada[i])];
    }
}

void NucleoContarPalabras(const Tramo& tramo, const uint16_t* valores, CuentaPalabras& cuenta) {
    HWY_DYNAMIC_DISPATCH(DePalabras)(tramo, valores, cuenta);
}

void NucleoContarSumas(const Tramo& tramo, const PalabrasPorPosicion& valores, int16_t minimo, CuentaPalabras& cuenta) {
    HWY_DYNAMIC_DISPATCH(DeSumas)(tramo, valores, minimo, cuenta);
}

void NucleoContarSumasEscalar(const Tramo& tramo, const PalabrasPorPosicion& valores, int16_t minimo,
                              CuentaPalabras& cuenta) {
    std::array<uint16_t, ApuestasPorTurno + 64> sumas;
    for (int64_t i = 0; i < tramo.n; ++i)
        sumas[static_cast<size_t>(i)] = static_cast<uint16_t>(SumaDeMarcas(tramo, i, valores) - minimo);
    NucleoContarPalabrasEscalar(tramo, sumas.data(), cuenta);
}

void NucleoContarPalabrasEscalar(const Tramo& tramo, const uint16_t* valores, CuentaPalabras& cuenta) {
    for (int64_t i = 0; i < tramo.n; ++i) {
        const size_t valor = tramo.eliminada[i] == ApuestaMuerta ? 0 : valores[i];
        ++cuenta.Cuentas(static_cast<size_t>(i) %
                         CuentaPalabras::Turnos)[CuentaPalabras::Lugar(valor, tramo.eliminada[i])];
    }
}

CuentaValor NucleoSumarEstados(const uint8_t* estados, size_t n, uint16_t* pasan, uint16_t* rechazadas) {
    return HWY_DYNAMIC_DISPATCH(SumarEstados)(estados, n, pasan, rechazadas);
}

CuentaValor NucleoSumarEstadosEscalar(const uint8_t* estados, size_t n, uint16_t* pasan, uint16_t* rechazadas) {
    CuentaValor suma;
    for (size_t i = 0; i < n; ++i) {
        if (estados[i] == ApuestaMuerta) continue;
        ++(estados[i] == ApuestaPasa ? pasan : rechazadas)[i];
        suma.Sumar({1, estados[i] == ApuestaPasa});
    }
    return suma;
}
#endif
