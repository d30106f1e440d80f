// Guarantees, scrutiny and the tools.
#include <memory>

#include <gtest/gtest.h>

#include "HistoriaInventada.h"
#include "LogicaAlgebra.h"
#include "LogicaCoeficienteRentabilidad.h"
#include "LogicaEscrutar.h"
#include "LogicaGarantias.h"
#include "LogicaGeneradorApuestas.h"
#include "LogicaGeneradorApuestasXPorcentaje.h"
#include "LogicaMultiEscrutinioEstadistico.h"
#include "LogicaMultiEscrutinioMultiFichero.h"
#include "LogicaSistemasPropios.h"
#include "Operaciones.h"

namespace {

Operacion Garantias(Mundo& m, int numeros, int tipo, int aciertos) {
    m.Calcular(numeros);
    m.Aclarar(4001);
    const auto l = std::make_shared<LogicaGarantias>(m.sesion, m.entorno);
    l->CambiarTipo(tipo);
    l->CambiarAciertos(aciertos);
    return {
        [l] { l->Calcular(); },
        [l] { return l->resultados.txtResumen.find("detenido") == std::string::npos ? l->resultados.txtResumen : ""; },
        [l] { l->Detener(); },
        [l, aciertos] {
            EXPECT_TRUE(l->Libre() && l->PuedeCerrar());
            EXPECT_EQ(l->cboTipoGarantias, aciertos);
        }};
}

Operacion Extendidas(Mundo& m) {
    m.Calcular(30);
    m.Aclarar(4001);
    const auto l = std::make_shared<LogicaGarantias>(m.sesion, m.entorno);
    return {[l] {
                l->CerrarMiniGarantias();
                l->GarantiasExtendidas();
            },
            [l] { return l->txtMiniGarantias.find("detenido") == std::string::npos ? l->txtMiniGarantias : ""; },
            [l] { l->Detener(); }, [l] { EXPECT_FALSE(l->Corriendo); }};
}

Operacion UnSorteo(Mundo& m) {
    m.Calcular(30);
    const auto l = std::make_shared<LogicaEscrutar>(m.sesion, m.entorno);
    l->Abrir();
    for (const int n : {4, 11, 17, 23, 28, 30}) l->PulsarNumero(n);
    return {[l] { l->EscrutarSistema(); }, [l] { return l->Copiar(); }, {}, [l] { EXPECT_FALSE(l->Escrutando); }};
}

Operacion MuchosSorteos(Mundo& m) {
    m.Calcular(28);
    const auto l = std::make_shared<LogicaMultiEscrutinioEstadistico>(m.sesion, m.entorno);
    l->SorteosCargados = SorteosInventados(PRIMITIVA, 3000);
    l->Premios.assign(l->SorteosCargados.size(), {1e8, 1e6, 1e5, 1e4, 800});
    l->ApuestasMulti = m.sesion.trabajo.ApuestasReducidas;
    return {[l] { l->cmdEscrutar(); }, [l] { return l->Informe; }, [l] { l->cmdStop(); },
            [l] {
                EXPECT_FALSE(l->Ocupada());
                EXPECT_LE(l->Ganado.size(), l->SorteosCargados.size());
            }};
}

// The stop skips the file in hand alone.
Operacion MuchosFicheros(Mundo& m) {
    m.Calcular(24);
    const auto l = std::make_shared<LogicaMultiEscrutinioMultiFichero>(m.sesion, m.entorno);
    l->AnadirFicheros(
        {m.Fichero("entrada1.TOM", 1, 1), m.Fichero("entrada2.TOM", 2, 2), m.Fichero("entrada3.TOM", 3, 3)});
    std::string sorteos;
    for (const Sorteo& s : SorteosInventados(PRIMITIVA, 3000)) {
        for (size_t r = 0; r < 6; ++r) sorteos += (s.numeros[r] < 10 ? "0" : "") + std::to_string(s.numeros[r]);
        sorteos += "\r\n";
    }
    EscribirTodo(m.carpeta.Ruta("entrada5.txt"), sorteos);
    l->CargarSorteos(m.carpeta.Ruta("entrada5.txt"));
    m.Cajas.clear();
    Operacion operacion{[l] { l->imgEscrutar(); },
                        [l] {
                            std::vector<FicheroEscrutado> enteros = l->Escrutados;
                            std::erase_if(enteros, [](const FicheroEscrutado& f) { return !f.Escrutado; });
                            return TablaEscrutados(enteros);
                        }};
    operacion.porPartes = true;
    operacion.parar = [l] { l->cmdStop(); };
    operacion.comprobar = [l] {
        EXPECT_FALSE(l->Ocupada());
        EXPECT_EQ(l->Escrutados.size(), 3u);
        EXPECT_GE(std::count_if(l->Escrutados.begin(), l->Escrutados.end(), [](const auto& f) { return f.Escrutado; }),
                  2);
    };
    return operacion;
}

Operacion Algebra(Mundo& m, int tipo) {
    m.Calcular(30);
    const auto l = std::make_shared<LogicaAlgebra>(LogicaAlgebra{m.sesion, m.entorno});
    l->Abrir();
    l->Cargar(0, m.Fichero("entrada1.TOM", 1, 2));
    l->Cargar(1, m.Fichero("entrada2.TOM", 1, 3));
    l->ElegirTipo(tipo);
    return {[l] { l->imgCalcular(); },
            [l] { return l->NResultado == 0 ? "" : std::to_string(l->NResultado) + "\n" + l->Copiar(); },
            [l] { l->Detener(); },
            [l] {
                EXPECT_TRUE(l->PuedeCerrar() && !l->Calculando);
                EXPECT_TRUE(l->NResultado > 0 || l->SistemaResultado.Apuestas() == 0);
                EXPECT_EQ(l->txtVentanaResultados.empty(), l->NResultado == 0);
                EXPECT_EQ(l->Sistema[0].N(), 296888);
            }};
}

// Loading, which has no stop.
Operacion CargarSistema(Mundo& m) {
    m.Calcular(30);
    const std::string ruta = m.Fichero("entrada.TOM", 1, 1);
    const auto l = std::make_shared<LogicaAlgebra>(LogicaAlgebra{m.sesion, m.entorno});
    return {[l, ruta] { l->Cargar(0, ruta); },
            [l] { return l->Sistema[0].N() == 0 ? "" : Resumen(l->Sistema[0].Apuestas); },
            {},
            [l] { EXPECT_TRUE(l->PuedeCerrar()); }};
}

std::shared_ptr<LogicaCoeficienteRentabilidad> Utilidad(Mundo& m, int numeros) {
    m.Calcular(numeros);
    const auto l = std::make_shared<LogicaCoeficienteRentabilidad>(LogicaCoeficienteRentabilidad{m.sesion, m.entorno});
    l->Abrir();
    l->Cargar(m.Fichero("entrada.TOM", 1, 1));
    return l;
}

Operacion Rentabilidad(Mundo& m) {
    const auto l = Utilidad(m, 32);
    return {[l] { l->imgCalcular(); }, [l] { return l->Copiar(); }, [l] { l->Detener(); },
            [l] { EXPECT_TRUE(l->PuedeCerrar()); }};
}

Operacion GuardarRentabilidad(Mundo& m) {
    const auto l = Utilidad(m, 26);
    l->imgCalcular();
    l->Elegidos.fill(true);
    return {[l] { l->imgGrabarApuestasCR(); },
            [l] { return l->Copiar(); },
            {},
            [l] { EXPECT_TRUE(l->PuedeCerrar() && !l->picVentanaEspera.Visible); }};
}

Operacion GenerarPorNumeros(Mundo& m) {
    const auto l = std::make_shared<LogicaGeneradorApuestas>(m.sesion.trabajo, m.entorno);
    for (int n = 1; n <= 27; ++n) l->PulsarNumero(n);
    l->txtApuestas = "100000";
    return {[l] { l->cmdGenerar(); },
            [] { return std::string(); },
            {},
            [l] { EXPECT_FALSE(l->Generando || l->lblProgressBar.Visible); }};
}

Operacion GenerarPorPorcentajes(Mundo& m) {
    const auto l = std::make_shared<LogicaGeneradorApuestasXPorcentaje>(m.sesion.trabajo, m.entorno);
    std::fill_n(l->cboPorcentaje.begin() + 1, 20, 15);
    l->txtApuestas = "100000";
    return {[l] { l->cmdGenerar(); },
            [] { return std::string(); },
            {},
            [l] { EXPECT_FALSE(l->Generando || l->lblProgressBar.Visible); }};
}

Operacion SistemaPropio(Mundo& m) {
    m.Calcular(26);
    const auto l = std::make_shared<LogicaSistemasPropios>(m.sesion.trabajo, m.entorno);
    l->Cargar(m.Fichero("entrada.TOM", 1, 1));
    for (int n = 20; n < 46; ++n) l->PulsarDestino(n);
    return {[l] { l->imgCalculoDefinitivo(); },
            [l] { return l->txtApuCargadas; },
            {},
            [l] { EXPECT_FALSE(l->lblProgressBar.Visible); }};
}

} // namespace

const std::vector<CasoParada>& ParadasDeHerramientas() {
    static const std::vector<CasoParada> casos{
        {"GarantiasDelTotal", [](Mundo& m) { return Garantias(m, 32, SobreElTotal, SeisAciertos); }},
        {"GarantiasTodas", [](Mundo& m) { return Garantias(m, 32, SobreElTotal, TodasLasGarantias); }},
        {"GarantiasDeLoCondicionado", [](Mundo& m) { return Garantias(m, 32, SobreLoCondicionado, SeisAciertos); }},
        {"GarantiasExtendidas", Extendidas},
        {"UnSorteo", UnSorteo},
        {"MuchosSorteos", MuchosSorteos},
        {"MuchosFicheros", MuchosFicheros},
        {"Ordenar", [](Mundo& m) { return Algebra(m, OrdenarSistema1); }},
        {"SumaDirecta", [](Mundo& m) { return Algebra(m, SumaDirecta); }},
        {"SumaSinRepetidas", [](Mundo& m) { return Algebra(m, SumaSinRepetidas); }},
        {"Interseccion", [](Mundo& m) { return Algebra(m, Interseccion); }},
        {"Resta", [](Mundo& m) { return Algebra(m, Resta); }},
        {"CargarSistema", CargarSistema},
        {"Rentabilidad", Rentabilidad},
        {"GuardarRentabilidad", GuardarRentabilidad},
        {"GenerarPorNumeros", GenerarPorNumeros},
        {"GenerarPorPorcentajes", GenerarPorPorcentajes},
        {"SistemaPropio", SistemaPropio},
    };
    return casos;
}
