#include "GenerarApuestas.h"

#include <gtest/gtest.h>

#include "Boleto.h"
#include "Guion.h"

namespace {

// All k-subsets of 1 to n in order, one after the other: the last element that can grow does.
std::vector<Apuesta> Enumerar(int n, int k) {
    std::vector<Apuesta> apuestas;
    Apuesta a;
    for (int i = 1; i <= k; ++i) a.push_back(i);
    while (true) {
        apuestas.push_back(a);
        int j = k - 1;
        while (j >= 0 && a[static_cast<size_t>(j)] == n - k + 1 + j) --j;
        if (j < 0) return apuestas;
        ++a[static_cast<size_t>(j)];
        for (int i = j + 1; i < k; ++i) a[static_cast<size_t>(i)] = a[static_cast<size_t>(i - 1)] + 1;
    }
}

} // namespace

TEST(GenerarApuestas, ComoLaEnumeracion) {
    for (int n = 6; n <= 20; ++n)
        for (int k = 1; k <= 6; ++k) {
            SCOPED_TRACE(testing::Message() << n << " numbers, " << k << " balls");
            Guion guion;
            guion.MarcarHasta(n);
            LeerBase(guion.sesion.trabajo);
            GenerarApuestas(guion.sesion.trabajo, guion.entorno, k, 7);
            std::vector<Apuesta> esperadas = Enumerar(n, k);
            for (Apuesta& a : esperadas) a.resize(6, 99);
            ASSERT_EQ(Apuestas(guion.sesion.trabajo.TablaApuestas), esperadas);
            EXPECT_EQ(guion.Turnos, static_cast<int>(esperadas.size()) / 500);
        }
}

TEST(GenerarApuestas, TablaUsadaAntesYDeMenosFilas) {
    Guion guion;
    guion.MarcarHasta(12);
    LeerBase(guion.sesion.trabajo);
    GenerarApuestas(guion.sesion.trabajo, guion.entorno, 6, 6);
    GenerarApuestas(guion.sesion.trabajo, guion.entorno, 3, 3);
    EXPECT_EQ(Apuestas(guion.sesion.trabajo.TablaApuestas, 3), Enumerar(12, 3));
}

TEST(GenerarApuestas, FueraDeRangoNoEscribe) {
    Guion guion;
    guion.MarcarHasta(8);
    LeerBase(guion.sesion.trabajo);
    GenerarApuestas(guion.sesion.trabajo, guion.entorno, 6, 6);
    const Tabla antes = guion.sesion.trabajo.TablaApuestas;
    for (const int k : {-1, 0, 7, 49}) GenerarApuestas(guion.sesion.trabajo, guion.entorno, k, 7);
    EXPECT_EQ(guion.sesion.trabajo.TablaApuestas, antes);
}
