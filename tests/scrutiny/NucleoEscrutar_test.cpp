#include <algorithm>
#include <numeric>
#include <random>

#include <gtest/gtest.h>

#include "Objetivos.h"

#include <hwy/targets.h>

#include "EscrutarLiteral.h"

namespace {

class Azar {
  public:
    explicit Azar(unsigned semilla) : dados_(semilla) {}
    uint8_t Hasta(int n) { return static_cast<uint8_t>(dados_() % static_cast<unsigned>(n)); }

    // Six different numbers of 1 to `maximo`, ascending; `cuantos` of them, the others 0.
    std::array<uint8_t, 6> Seis(int maximo, size_t cuantos = 6) {
        std::vector<uint8_t> numeros(static_cast<size_t>(maximo));
        std::iota(numeros.begin(), numeros.end(), uint8_t{1});
        std::shuffle(numeros.begin(), numeros.end(), dados_);
        std::array<uint8_t, 6> seis{};
        std::copy_n(numeros.begin(), cuantos, seis.begin());
        std::sort(seis.begin(), seis.begin() + static_cast<std::ptrdiff_t>(cuantos));
        return seis;
    }

    // Few numbers, so that every category comes up.
    Tabla Sistema(int64_t apuestas, int maximo) {
        Tabla tabla(7, apuestas);
        for (int64_t i = 1; i <= apuestas; ++i) {
            const auto seis = Seis(maximo);
            for (int r = 1; r <= 6; ++r) tabla(r, i) = seis[static_cast<size_t>(r) - 1];
            tabla(7, i) = Hasta(10);
        }
        return tabla;
    }

  private:
    std::mt19937 dados_;
};

void CompararConLiteral(Azar& azar, int64_t apuestas) {
    const int maximo = 8 + azar.Hasta(42);
    const Tabla sistema = azar.Sistema(apuestas, maximo);
    EscrutarLiteral literal{azar.Seis(maximo, azar.Hasta(4) == 0 ? azar.Hasta(6) : 6), 0, azar.Hasta(10)};
    do literal.complementario = azar.Hasta(maximo + 1);
    while (std::count(literal.ganadores.begin(), literal.ganadores.end(), literal.complementario) > 0 &&
           literal.complementario != 0);
    const SorteoPorNumero sorteo(Sorteado(literal.ganadores, literal.complementario),
                                 static_cast<uint8_t>(literal.digito));
    Tabla aciertos;
    Entorno entorno;
    int64_t turnos = 0;
    entorno.CederTurno = [&turnos] { ++turnos; };
    const auto cuenta = EscrutarTabla(sistema, static_cast<int32_t>(apuestas), sorteo, aciertos, entorno);
    EXPECT_EQ(cuenta, literal(sistema));
    EXPECT_EQ(turnos, apuestas / 5000);
    for (int64_t i = 1; i <= apuestas; ++i) ASSERT_EQ(aciertos(1, i), literal.Aciertos(sistema, i)) << i;
}

TEST(NucleoEscrutar, DaLoMismoQueContarUnoAUno) {
    Azar azar(1);
    for (const int64_t procesador : hwy::SupportedAndGeneratedTargets()) {
        SCOPED_TRACE(hwy::TargetName(procesador));
        hwy::SetSupportedTargetsForTest(procesador);
        for (const int64_t apuestas : {0, 1, 8, 63, 64, 65, 200, 4999, 5000, 5001, 20000})
            CompararConLiteral(azar, apuestas);
    }
    hwy::SetSupportedTargetsForTest(0);
}

TEST(CategoriasPremio, UnaApuestaContraUnSorteoEsLoMismoConMascaras) {
    Azar azar(2);
    const Tabla sistema = azar.Sistema(5000, 10);
    const EscrutarLiteral literal{azar.Seis(10), 0, -1};
    for (const uint8_t complementario : {uint8_t{0}, uint8_t{7}, uint8_t{10}}) {
        EscrutarLiteral caso = literal;
        caso.complementario = complementario;
        if (std::count(caso.ganadores.begin(), caso.ganadores.end(), complementario) > 0) continue;
        const Sorteado sorteo(caso.ganadores, complementario);
        CuentaAciertos cuenta;
        for (int64_t i = 1; i <= sistema.Apuestas(); ++i) cuenta.Anotar(MascaraApuesta(sistema, i), sorteo);
        EXPECT_EQ(cuenta, caso(sistema).Aciertos);
    }
}

TEST(CategoriasPremio, CincoConComplementarioNoEsCinco) {
    CuentaAciertos cuenta;
    const Sorteado sorteo(std::array<uint8_t, 6>{1, 2, 3, 4, 5, 6}, 7);
    for (const std::array<uint8_t, 6>& apuesta :
         {std::array<uint8_t, 6>{1, 2, 3, 4, 5, 7}, {1, 2, 3, 4, 5, 8}, {1, 2, 3, 4, 5, 6}, {1, 2, 3, 8, 9, 7}})
        cuenta.Anotar(MascaraNumeros(apuesta), sorteo);
    EXPECT_EQ(cuenta.Aciertos[5], 2);
    EXPECT_EQ(cuenta.Premios(), (std::array<int32_t, 5>{1, 1, 1, 0, 1}));
}

} // namespace
