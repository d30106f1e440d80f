// The examples that the dialogs show, put before the conditions that they explain.
#include <gtest/gtest.h>

#include <sstream>

#include "FiltrosSencillos.h"
#include "Guion.h"
#include "LogicaFiltroTERMINACIONES.h"

namespace {

Apuesta Leer(std::string_view texto) {
    std::istringstream entrada{std::string(texto)};
    Apuesta numeros;
    for (int n; entrada >> n;) numeros.push_back(n);
    return numeros;
}

// Which of the bets pass the condition of row k.
std::vector<bool> Pasan(Guion& guion, int k, const std::vector<Apuesta>& apuestas) {
    guion.PonerApuestas(apuestas);
    TablaFiltros[static_cast<size_t>(k)].Filtrar(guion.sesion, guion.entorno);
    std::vector<bool> pasan;
    for (size_t i = 0; i < apuestas.size(); ++i)
        pasan.push_back(guion.sesion.trabajo.ApuestaEliminada(1, static_cast<int64_t>(i) + 1) == 0);
    return pasan;
}

// With only flag i set, only example i passes.
void ComprobarEjemplos(int k, std::span<const std::string_view> ejemplos, std::span<uint8_t> (*marcas)(Condiciones&)) {
    std::vector<Apuesta> apuestas;
    for (const std::string_view ejemplo : ejemplos) apuestas.push_back(Leer(ejemplo));
    for (size_t i = 0; i < ejemplos.size(); ++i) {
        Guion guion;
        marcas(guion.sesion.condiciones)[i] = 1;
        std::vector<bool> esperado(ejemplos.size());
        esperado[i] = true;
        EXPECT_EQ(Pasan(guion, k, apuestas), esperado) << k << " " << i;
    }
}

// A bet of n and five others, which are all of the class: six of it when n is, five when not.
std::vector<bool> DeLaClase(Guion& guion, int k, std::vector<int> otros) {
    std::vector<Apuesta> apuestas;
    for (int n = 1; n <= NumeroMaximoBoleto; ++n) {
        Apuesta apuesta{n};
        for (const int otro : otros)
            if (otro != n && apuesta.size() < 6) apuesta.push_back(otro);
        std::sort(apuesta.begin(), apuesta.end());
        apuestas.push_back(apuesta);
    }
    return Pasan(guion, k, apuestas);
}

void ComprobarDibujo(int k, const std::vector<bool>& clase) {
    for (int n = 1; n <= NumeroMaximoBoleto; ++n)
        EXPECT_EQ(FiltroSencilloDeFila(k)->Dibujo(n) == TonoNumero::Resaltado, clase[static_cast<size_t>(n) - 1]) << n;
}

} // namespace

TEST(Ejemplos, CadaFiguraTieneLaSuya) {
    for (const FiltroSencillo& filtro : FiltrosSencillos)
        if (filtro.Marcas) ComprobarEjemplos(filtro.Fila, filtro.EjemplosCasillas, filtro.Marcas);
    ComprobarEjemplos(kTERMINACIONES, EjemplosTERMINACIONES,
                      [](Condiciones& c) -> std::span<uint8_t> { return c.TERMINACIONES.FigurasTerminaciones; });
}

TEST(Ejemplos, LasSeriesDeSEGUIDOSSonTanLargasComoDicen) {
    for (const EjemploFiltro& ejemplo : FiltroSencilloDeFila(kSEGUIDOS)->Ejemplos) {
        const size_t flecha = ejemplo.Texto.find("->");
        for (size_t largo = 1; largo <= 6; ++largo) {
            Guion guion;
            guion.sesion.condiciones.SEGUIDOS.NumerosSeguidos[largo] = 1;
            EXPECT_EQ(Pasan(guion, kSEGUIDOS, {Leer(ejemplo.Texto.substr(0, flecha))})[0],
                      std::to_string(largo) == ejemplo.Texto.substr(flecha + 2))
                << ejemplo.Texto;
        }
    }
}

TEST(Ejemplos, LosGruposDeHOMOLOGOSCompartenRaiz) {
    int raiz = 0, numeros = 0;
    for (const EjemploFiltro& grupo : FiltroSencilloDeFila(kHOMOLOGOS)->Ejemplos) {
        for (const int n : Leer(grupo.Valor)) {
            EXPECT_EQ((n - 1) % 9, raiz) << grupo.Texto;
            ++numeros;
        }
        ++raiz;
    }
    EXPECT_EQ(raiz, 9);
    EXPECT_EQ(numeros, 49);
}

TEST(Ejemplos, LosDeCOLINDANTESYSuDibujo) {
    const FiltroSencillo& filtro = *FiltroSencilloDeFila(kCOLINDANTES);
    for (const size_t cuantos : {size_t{6}, size_t{0}}) {
        Guion guion;
        guion.sesion.condiciones.COLINDANTES.ColindantesAcertados[cuantos] = 1;
        EXPECT_EQ(Pasan(guion, kCOLINDANTES, {Leer(filtro.Ejemplos[0].Valor), Leer(filtro.Ejemplos[1].Valor)}),
                  (std::vector<bool>{cuantos == 6, cuantos == 0}));
    }
    std::vector<int> vecinos;
    for (int n = 1; n <= NumeroMaximoBoleto; ++n)
        if (filtro.Dibujo(n) == TonoNumero::Resaltado) vecinos.push_back(n);
    EXPECT_EQ(vecinos, (std::vector<int>{13, 14, 15, 23, 25, 33, 34, 35}));
    EXPECT_EQ(filtro.Dibujo(24), TonoNumero::Central);
}

TEST(Ejemplos, LosDibujosDelBoletoMuestranSuClase) {
    Guion guion;
    guion.sesion.condiciones.EXTERIORESINTERIORES.ExterioresInterioresActivos[6] = 1;
    guion.sesion.condiciones.SUPERIORESINFERIORES.SuperioresInferioresActivos[6] = 1;
    ComprobarDibujo(kEXTERIORESINTERIORES, DeLaClase(guion, kEXTERIORESINTERIORES, {1, 2, 3, 4, 5, 6}));
    ComprobarDibujo(kSUPERIORESINFERIORES, DeLaClase(guion, kSUPERIORESINFERIORES, {1, 2, 3, 4, 10, 11}));
}
