#include "LogicaGeneradorApuestasXPorcentaje.h"

#include <algorithm>
#include <cerrno>
#include <cmath>
#include <new>
#include <numeric>
#include <vector>

#include "FicheroPorcentajes.h"
#include "Ficheros.h"
#include "GuardarSistema.h"
#include "LogicaGeneradorApuestas.h"
#include "Mientras.h"
#include "Rnd.h"
#include "modGeneral.h"

namespace {

constexpr int PorcentajesMaximos = NumeroMaximoBoleto - 6;
constexpr int32_t ApuestasPorTurno = 500;

// What the bets are dealt from: `Bolsa` has a slot for each number of each bet, 0 for a number of the
// rest; `Resto` the numbers without a percent.
struct Reparto {
    std::vector<uint8_t> Bolsa, Resto;
};

bool LlenarReparto(const std::array<int, NumeroMaximoBoleto + 1>& porcentajes, int maximo, int32_t apuestas,
                   Reparto& reparto) {
    const size_t huecos = 6 * static_cast<size_t>(apuestas);
    for (int n = 1; n <= maximo; ++n) {
        const int porcentaje = porcentajes[static_cast<size_t>(n)];
        if (porcentaje == 0) {
            reparto.Resto.push_back(static_cast<uint8_t>(n));
            continue;
        }
        const auto Veces = static_cast<size_t>(int64_t{porcentaje} * apuestas / 100);
        if (reparto.Bolsa.size() + Veces > huecos) return false;
        reparto.Bolsa.insert(reparto.Bolsa.end(), Veces, static_cast<uint8_t>(n));
    }
    reparto.Bolsa.resize(huecos, 0);
    return true;
}

// Deals bet b, from 0: slots b, b + N, ... A number's slots lie side by side and are at most N, so no
// bet gets it twice. False when the rest has too few numbers.
bool Repartir(const Reparto& reparto, std::vector<uint8_t>& resto, int32_t b, Tabla& apuestas) {
    const auto total = static_cast<size_t>(apuestas.Apuestas());
    std::array<uint8_t, 6> apuesta;
    for (size_t k = 0; k < 6; ++k) {
        apuesta[k] = reparto.Bolsa[static_cast<size_t>(b) + k * total];
        if (apuesta[k] != 0) continue;
        if (k >= resto.size()) return false;
        apuesta[k] = resto[k];
    }
    std::sort(apuesta.begin(), apuesta.end());
    for (size_t k = 0; k < 6; ++k) apuestas.Fila(static_cast<int>(k) + 1)[b] = apuesta[k];
    apuestas.Fila(7)[b] = 1;
    return true;
}

// One seeding serves the run: a clock read for every bet would seed neighbours alike.
bool RepartirTodas(const Reparto& reparto, Tabla& apuestas, Entorno& entorno) {
    Azar azar;
    azar.SembrarReloj();
    std::vector<uint8_t> resto = reparto.Resto;
    const auto m = static_cast<int32_t>(resto.size());
    for (int32_t b = 0; b < apuestas.Apuestas(); ++b) {
        for (uint8_t& numero : resto) std::swap(numero, resto[static_cast<size_t>(azar.Entero(m))]);
        if (!Repartir(reparto, resto, b, apuestas)) return false;
        if (b % ApuestasPorTurno == 0) entorno.CederTurno();
    }
    return true;
}

std::string CabeceraDe(const std::array<int, NumeroMaximoBoleto + 1>& porcentajes, int maximo) {
    std::array<bool, NumeroMaximoBoleto + 1> marcas{};
    std::transform(porcentajes.begin(), porcentajes.end(), marcas.begin(), [](int p) { return p != 0; });
    return CabeceraDeMarcas(marcas, maximo);
}

} // namespace

int LogicaGeneradorApuestasXPorcentaje::NumerosElegidos() const {
    return static_cast<int>(cboPorcentaje.size()) -
           static_cast<int>(std::count(cboPorcentaje.begin(), cboPorcentaje.end(), 0));
}

int LogicaGeneradorApuestasXPorcentaje::SumaPorcentajes() const {
    return std::accumulate(cboPorcentaje.begin(), cboPorcentaje.end(), 0);
}

std::string LogicaGeneradorApuestasXPorcentaje::lblTitNumeros() const {
    return std::to_string(NumerosElegidos()) + " Porcentajes de Números Seleccionados";
}

bool LogicaGeneradorApuestasXPorcentaje::CargarPorcentajes(const std::string& ruta) {
    std::array<int, NumeroMaximoBoleto + 1> leidos{};
    const bool bien = LeerPorcentajes(ruta, [&](int n, const std::string&, double valor) {
        if (valor < 1 || valor > 100 || valor != std::floor(valor) || n > trabajo.NumeroMaximo()) return false;
        leidos[static_cast<size_t>(n)] = static_cast<int>(valor);
        return true;
    });
    if (!bien)
        return Fallo(entorno, "ERROR: El fichero de porcentajes no se puede leer o tiene valores que no son enteros de "
                              "0 a 100 para los números del juego");
    cboPorcentaje = leidos;
    return true;
}

bool LogicaGeneradorApuestasXPorcentaje::cmdGenerar() {
    if (NumerosElegidos() < 6) return Fallo(entorno, "AVISO: DEBE SELECCIONAR MINIMO 6 PORCENTAJES DE NUMEROS");
    if (NumerosElegidos() > PorcentajesMaximos)
        return Fallo(entorno, "ERROR: SOLO SE PUEDEN SELECCIONAR 43 PORCENTAJES COMO MAXIMO");
    if (SumaPorcentajes() >= 600)
        return Fallo(entorno, "ERROR: LA SUMA DE TODOS LOS % SELECCIONADOS DEBE SER MENOR DE 600");
    int32_t pedidas = 0;
    if (!LeerApuestasPedidas(txtApuestas, ApuestasMaximas, pedidas, entorno)) return false;
    if (pedidas > ApuestasMaximas)
        return Fallo(entorno, "ERROR: EL Nº DE APUESTAS A GENERAR HA DE SER MENOR O IGUAL QUE " +
                                  std::to_string(ApuestasMaximas));
    try {
        Reparto reparto;
        if (!LlenarReparto(cboPorcentaje, trabajo.NumeroMaximo(), pedidas, reparto))
            return Fallo(entorno,
                         "AVISO: NO ES POSIBLE GENERAR LAS APUESTAS, BAJE LOS PORCENTAJES SELECCIONADOS O PIDA "
                         "MAS APUESTAS");
        const std::string ruta = PedirRutaSistema(std::to_string(pedidas) + "_Apuestas.TOM", entorno);
        if (ruta.empty()) return false;
        const Mientras generando(Generando);
        Tabla apuestas(7, pedidas);
        if (!RepartirTodas(reparto, apuestas, entorno))
            return Fallo(entorno, "ERROR: NO QUEDAN NUMEROS SIN PORCENTAJE PARA COMPLETAR LAS APUESTAS");
        return GuardarSistema(ruta, CabeceraDe(cboPorcentaje, trabajo.NumeroMaximo()), apuestas, trabajo,
                              lblProgressBar, entorno);
    } catch (const std::bad_alloc&) {
        return FalloAlGuardar(entorno, DescripcionFallo(ENOMEM));
    }
}
