#include "HistoriaCambios.h"

#include <gtest/gtest.h>

#include "Boleto.h"
#include "DadosFiltros.h"
#include "Guion.h"
#include "LogicaAbrirFila.h"
#include "Sesiones.h"

namespace {

// All that a step brings back, and the counters that follow the marks.
struct Foto {
    std::array<bool, NumeroMaximoBoleto + 1> numeros;
    std::array<bool, 10> digitos;
    Parametros parametros;
    std::array<std::pair<bool, std::string>, NFilas> filas;
    AjustesReduccion reduccion;
    bool guardada;
    int32_t iniciales;

    explicit Foto(const Sesion& s)
        : numeros(s.trabajo.lblNumero), digitos(s.trabajo.lblReintegro), parametros(s.condiciones),
          reduccion(s.trabajo.Reduccion), guardada(s.trabajo.CombinacionGuardada),
          iniciales(s.trabajo.Contador.Iniciales) {
        for (size_t k = 0; k < filas.size(); ++k)
            filas[k] = {s.condiciones.lstFiltros[k].Activo, s.condiciones.lstFiltros[k].NumeroActivos};
    }
    bool operator==(const Foto&) const = default;
};

// One thing that a user does.
void Cambiar(Dados& dados, Guion& g) {
    Condiciones& c = g.sesion.condiciones;
    switch (dados.Entre(0, 5)) {
    case 0:
        return PulsarNumero(g.sesion.trabajo, dados.Entre(1, 49));
    case 1:
        return PulsarReintegro(g.sesion.trabajo, dados.Entre(0, 9));
    case 2:
        return PulsarColumna(g.sesion.trabajo, dados.Entre(0, 4));
    case 3:
        return AlternarFila(g.sesion, dados.Entre(0, NFilas - 1));
    case 4: {
        const int16_t tipo = dados.Entre(0, 4);
        AbrirFila(g.sesion, g.entorno, FilaReduccion, [&] { g.sesion.trabajo.Reduccion.TipoReduccion = tipo; });
        return;
    }
    default:
        AbrirFila(g.sesion, g.entorno, kGRUPOS, [&] {
            dados.Llenar(c.GRUPOS.grupo[static_cast<size_t>(dados.Entre(0, 209))].aciertos);
            c.lstFiltros[kGRUPOS].Activo = true;
        });
    }
}

} // namespace

TEST(HistoriaCambios, VuelvePorTodosLosPasosYLosRehace) {
    Dados dados;
    Guion g;
    HistoriaCambios historia;
    historia.Recordar(g.sesion);
    std::vector<Foto> fotos{Foto(g.sesion)};
    for (int i = 0; i < 80; ++i) {
        Cambiar(dados, g);
        historia.Recordar(g.sesion);
        Foto foto(g.sesion);
        Foto igual = fotos.back();
        igual.guardada = foto.guardada;
        // What changes nothing but the flag is no step.
        if (foto == igual)
            fotos.back() = foto;
        else
            fotos.push_back(foto);
    }
    for (size_t i = fotos.size() - 1; i-- > 0;) {
        ASSERT_TRUE(historia.PuedeDeshacer());
        historia.Deshacer(g.sesion);
        ASSERT_TRUE(Foto(g.sesion) == fotos[i]) << i;
    }
    EXPECT_FALSE(historia.PuedeDeshacer());
    for (size_t i = 1; i < fotos.size(); ++i) {
        historia.Rehacer(g.sesion);
        ASSERT_TRUE(Foto(g.sesion) == fotos[i]) << i;
    }
    EXPECT_FALSE(historia.PuedeRehacer());
}

TEST(HistoriaCambios, LoGuardadoEsLoQueSeGuardo) {
    Guion g;
    HistoriaCambios historia;
    const auto pulsar = [&](int n) { PulsarNumero(g.sesion.trabajo, n), historia.Recordar(g.sesion); };
    bool& guardada = g.sesion.trabajo.CombinacionGuardada;
    historia.Recordar(g.sesion);
    pulsar(1);
    pulsar(2);
    guardada = true;
    historia.Recordar(g.sesion);
    pulsar(3);
    historia.Deshacer(g.sesion);
    EXPECT_TRUE(guardada);
    historia.Deshacer(g.sesion);
    EXPECT_FALSE(guardada);
    historia.Deshacer(g.sesion);
    EXPECT_FALSE(guardada) << "the file holds other marks by now";
    historia.Rehacer(g.sesion);
    historia.Rehacer(g.sesion);
    EXPECT_TRUE(guardada);
    pulsar(9);
    EXPECT_FALSE(historia.PuedeRehacer());
}

TEST(HistoriaCambios, OtroTrabajoNoTienePasosDelAnterior) {
    Guion g;
    HistoriaCambios historia;
    historia.Recordar(g.sesion);
    const std::function<void()> cambios[] = {
        [&] { CambiarJuego(g.sesion, EURODREAMS); },
        [&] { ++g.sesion.trabajo.Importacion; },
        [&] { g.sesion.trabajo.cboTipoCombinacion = PronosticoDesdeArchivo; },
    };
    for (const auto& cambiar : cambios) {
        PulsarNumero(g.sesion.trabajo, 7);
        historia.Recordar(g.sesion);
        EXPECT_TRUE(historia.PuedeDeshacer());
        cambiar();
        historia.Recordar(g.sesion);
        EXPECT_FALSE(historia.PuedeDeshacer());
    }
    for (size_t i = 0; i < HistoriaCambios::PasosMaximos + 20; ++i) {
        PulsarNumero(g.sesion.trabajo, 5);
        historia.Recordar(g.sesion);
    }
    size_t pasos = 0;
    for (; historia.PuedeDeshacer(); ++pasos) historia.Deshacer(g.sesion);
    EXPECT_EQ(pasos, HistoriaCambios::PasosMaximos);
}
