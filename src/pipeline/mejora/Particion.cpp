#include "Particion.h"

#include <algorithm>
#include <cmath>

#include "Rangos.h"

namespace {

constexpr int64_t SinSistema = 1'000'000;
constexpr int64_t TrabajoPorTurno = 1 << 23;
constexpr int32_t MaximoApuestas = 500'000; // of a piece
constexpr LimitesCartera DePieza{4, 1 << 20, true};

// No fewer bets cover every t of v numbers: each number needs the bets of the v - 1 others round it.
int64_t CotaRecubrimiento(int v, int t) {
    int64_t cota = 1;
    for (int k = t - 1; k >= 0; --k) cota = ((v - k) * cota + 5 - k) / (6 - k);
    return cota;
}

constexpr int32_t SinPieza = -1, Suelta = -2; // how the rest begins: not at all, with a number without bets

} // namespace

Particion::Particion(int n, int t, uint64_t semilla, const Vigia& vigia)
    : n_(n), t_(t), semilla_(semilla), vigia_(vigia) {
    const int mayor = t == 2 ? 2 : t + 1;
    for (int m = t; m <= mayor; ++m)
        for (int v = std::min(n, 6); v < n && Combinar(v, 6) <= MaximoApuestas; ++v) {
            Pieza pieza{v, m};
            pieza.cota = m == t ? CotaRecubrimiento(v, t) : 1;
            pieza.coste = v <= 6 ? 1 : SinSistema;
            piezas_.push_back(std::move(pieza));
        }
    suma_.resize(static_cast<size_t>(n) + 1);
    primera_.resize(static_cast<size_t>(n) + 1);
    Sumar();
    if (suma_[n][Presupuesto] < SinSistema) Componer();
}

// The fewest bets for each number of numbers and each rest of the budget.
void Particion::Sumar() {
    for (int n = 0; n <= n_; ++n)
        for (int resto = 0; resto <= Presupuesto; ++resto) {
            int64_t& suma = suma_[n][resto];
            int32_t& primera = primera_[n][resto];
            suma = n == 0 ? 0 : SinSistema;
            primera = SinPieza;
            if (n > 0 && resto > 0 && suma_[n - 1][resto - 1] < suma) {
                suma = suma_[n - 1][resto - 1];
                primera = Suelta;
            }
            for (size_t i = 0; i < piezas_.size(); ++i) {
                const Pieza& pieza = piezas_[i];
                if (pieza.v > n || pieza.m - 1 > resto) continue;
                const int64_t con = pieza.coste + suma_[n - pieza.v][resto - pieza.m + 1];
                if (con >= suma) continue;
                suma = con;
                primera = static_cast<int32_t>(i);
            }
        }
}

// The fewest bets of the whole with this piece in it.
int64_t Particion::ConEsta(const Pieza& pieza) const {
    return pieza.coste + suma_[n_ - pieza.v][Presupuesto - pieza.m + 1];
}

// An eighth more bets than the best is made up for by half the work done; whatever has no system yet
// comes first where one could be of use.
void Particion::ElegirPieza() {
    const auto mejor = static_cast<double>(suma_[n_][Presupuesto]);
    double menos = 0;
    actual_ = nullptr;
    for (Pieza& pieza : piezas_) {
        if (pieza.coste <= pieza.cota || (pieza.cartera && pieza.cartera->Agotada())) continue;
        const bool nueva = pieza.coste >= SinSistema;
        const double exceso = nueva ? 0 : static_cast<double>(ConEsta(pieza)) / mejor - 1;
        const double precio = static_cast<double>(pieza.trabajo) * std::exp2(std::min(8 * exceso, 500.0));
        if (actual_ != nullptr && precio >= menos) continue;
        actual_ = &pieza;
        menos = precio;
    }
    if (actual_ == nullptr) return;
    finTurno_ = actual_->trabajo + TrabajoPorTurno;
    if (actual_->cartera) return;
    actual_->filas = std::make_unique<Familia>(Familia::Todas(actual_->v, actual_->m));
    actual_->columnas = std::make_unique<Familia>(Familia::Todas(actual_->v, 6));
    actual_->cartera = std::make_unique<Cartera>(*actual_->filas, *actual_->columnas, t_, actual_->filas->Total(),
                                                 semilla_, vigia_, DePieza);
}

bool Particion::Paso() {
    if (actual_ == nullptr || actual_->trabajo >= finTurno_ || actual_->cartera->Agotada()) ElegirPieza();
    if (actual_ == nullptr) return false;
    const int64_t antes = actual_->cartera->Trabajo();
    const bool mejora = actual_->cartera->Paso();
    const int64_t hecho = actual_->cartera->Trabajo() - antes + 1;
    actual_->trabajo += hecho;
    trabajo_ += hecho;
    if (!mejora) return false;
    actual_->coste = static_cast<int64_t>(actual_->cartera->Mejor().size());
    const int64_t suma = suma_[n_][Presupuesto];
    Sumar();
    if (suma_[n_][Presupuesto] >= suma) return false;
    Componer();
    return true;
}

void Particion::Componer() {
    mejor_.clear();
    for (int n = n_, resto = Presupuesto; n > 0;) {
        const int32_t primera = primera_[n][resto];
        if (primera == Suelta) {
            --n;
            --resto;
            continue;
        }
        const Pieza& pieza = piezas_[primera];
        n -= pieza.v;
        resto -= pieza.m - 1;
        AgregarPieza(pieza, n);
    }
}

void Particion::AgregarPieza(const Pieza& pieza, int desde) {
    if (pieza.v <= 6) {
        mejor_.push_back(uint64_t{0x3F} << desde);
        return;
    }
    for (const int32_t columna : pieza.cartera->Mejor()) mejor_.push_back(pieza.columnas->Mascara(columna) << desde);
}
