// The moves between bet tables against plain loops, for every processor that the vector code is
// compiled for and this machine has.
#include "Supervivientes.h"

#include <algorithm>
#include <cstring>

#include <gtest/gtest.h>

#include "Objetivos.h"

#include <hwy/targets.h>

#include "Boleto.h"
#include "Guion.h"
#include "Rnd.h"

namespace {

template <class Prueba>
void ConCadaProcesador(Prueba prueba) {
    for (const int64_t procesador : hwy::SupportedAndGeneratedTargets()) {
        SCOPED_TRACE(hwy::TargetName(procesador));
        hwy::SetSupportedTargetsForTest(procesador);
        prueba();
        hwy::SetSupportedTargetsForTest(0);
    }
}

// A table of this shape with bytes from 1 to `tope`.
void Sortear(Azar& azar, Tabla& tabla, int filas, int32_t apuestas, int32_t tope) {
    tabla.Dimensionar(filas, apuestas);
    for (int r = 1; r <= filas; ++r)
        for (int32_t i = 1; i <= apuestas; ++i) tabla(r, i) = static_cast<uint8_t>(1 + azar.Entero(tope));
}

void SortearBase(Azar& azar, Guion& guion) {
    for (int n = 1; n <= 49; ++n) guion.sesion.trabajo.lblNumero[static_cast<size_t>(n)] = n > 43 || azar.Entero(3) > 0;
    LeerBase(guion.sesion.trabajo);
}

} // namespace

TEST(Supervivientes, CopiaLasVivasEnOrden) {
    ConCadaProcesador([] {
        Azar azar;
        for (const int32_t apuestas : {1, 63, 64, 65, 500, 4095, 4096, 4097, 12345})
            for (const int32_t vivasDeCien : {0, 3, 50, 80, 100}) {
                SCOPED_TRACE(testing::Message() << apuestas << " bets, " << vivasDeCien << " % alive");
                EstadoTrabajo trabajo;
                const int filas = 6 + azar.Entero(2);
                Sortear(azar, trabajo.TablaApuestas, filas, apuestas, 49);
                trabajo.ApuestasEnTabla = apuestas;
                PrepararEliminadas(trabajo);
                std::vector<Apuesta> vivas;
                const std::vector<Apuesta> todas = Apuestas(trabajo.TablaApuestas, filas);
                for (int32_t i = 1; i <= apuestas; ++i) {
                    const bool viva = azar.Entero(100) < vivasDeCien;
                    trabajo.ApuestaEliminada(1, i) = viva ? 0 : 1;
                    if (viva) vivas.push_back(todas[static_cast<size_t>(i - 1)]);
                }
                trabajo.Contador.Condicionadas = static_cast<int32_t>(vivas.size());
                CopiarSupervivientes(trabajo);
                ASSERT_EQ(Apuestas(trabajo.ApuestasCondicionadas, filas), vivas);
            }
    });
}

TEST(Supervivientes, ImportadasComoPosiciones) {
    ConCadaProcesador([] {
        Guion guion;
        Azar azar;
        SortearBase(azar, guion);
        EstadoTrabajo& trabajo = guion.sesion.trabajo;
        trabajo.NApuestasImportadas = 1000;
        Sortear(azar, trabajo.ApuestasImportadas, 7, 1000, trabajo.NumerosBase);
        const std::vector<Apuesta> posiciones = Apuestas(trabajo.ApuestasImportadas, 7);
        for (int r = 1; r <= 6; ++r)
            for (int i = 1; i <= 1000; ++i)
                trabajo.ApuestasImportadas(r, i) = trabajo.BaseNumeros[trabajo.ApuestasImportadas(r, i)];
        // A file of draws, loaded meanwhile, leaves its own count.
        for (const int32_t cuenta : {1000, 999, 0, 1001, 9361, 1000}) {
            trabajo.NApuestasImportadas = cuenta;
            TraducirImportadas(trabajo, trabajo, 7);
            const std::vector<Apuesta> traducidas(posiciones.begin(), posiciones.begin() + std::min(cuenta, 1000));
            EXPECT_EQ(Apuestas(trabajo.TablaApuestas, 7), traducidas);
        }
    });
}

TEST(Supervivientes, CondicionadasComoNumeros) {
    for (const int filas : {6, 7})
        ConCadaProcesador([&] {
            Guion guion;
            Azar azar;
            SortearBase(azar, guion);
            EstadoTrabajo& trabajo = guion.sesion.trabajo;
            Sortear(azar, trabajo.ApuestasCondicionadas, filas, 777, trabajo.NumerosBase);
            TraducirCondicionadas(trabajo);
            std::vector<Apuesta> esperadas = Apuestas(trabajo.ApuestasCondicionadas, filas);
            for (Apuesta& a : esperadas) {
                for (size_t r = 0; r < 6; ++r) a[r] = trabajo.BaseNumeros[static_cast<size_t>(a[r])];
                a.resize(7, 0);
            }
            EXPECT_EQ(Apuestas(trabajo.ApuestasReducidas, 7), esperadas);
        });
}
