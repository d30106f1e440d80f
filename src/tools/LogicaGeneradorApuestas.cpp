#include "LogicaGeneradorApuestas.h"

#include <algorithm>
#include <cerrno>
#include <new>
#include <numeric>
#include <vector>

#include "Boleto.h"
#include "Ficheros.h"
#include "GuardarSistema.h"
#include "Mientras.h"
#include "Rnd.h"
#include "modCSN.h"
#include "modGeneral.h"

namespace {

constexpr int32_t ApuestasPorTurno = 500;

// Every place is swapped with any other, once; so each order can come up, and all of the total are
// shuffled though only some may be asked for.
std::vector<int32_t> Barajar(int32_t total, Entorno& entorno) {
    std::vector<int32_t> OrdenAleatorio(static_cast<size_t>(total));
    std::iota(OrdenAleatorio.begin(), OrdenAleatorio.end(), 1);
    Azar azar;
    azar.SembrarReloj();
    for (int32_t i = 0; i < total; ++i) {
        std::swap(OrdenAleatorio[static_cast<size_t>(i)], OrdenAleatorio[static_cast<size_t>(azar.Entero(total))]);
        if (i % ApuestasPorTurno == 0) entorno.CederTurno();
    }
    return OrdenAleatorio;
}

// The bets at these places among all those of the base, as numbers, with 1 in row 7.
Tabla ApuestasEn(const std::vector<int32_t>& lugares, int32_t cuantas, const std::vector<uint8_t>& base,
                 Entorno& entorno) {
    Tabla apuestas;
    apuestas.DimensionarSinLimpiar(7, cuantas);
    const auto n = static_cast<int16_t>(base.size());
    for (int32_t b = 0; b < cuantas; ++b) {
        uint8_t posiciones[6];
        CSNaCombinacion(lugares[static_cast<size_t>(b)], 6, n, posiciones);
        for (int r = 0; r < 6; ++r) apuestas.Fila(r + 1)[b] = base[posiciones[r] - size_t{1}];
        apuestas.Fila(7)[b] = 1;
        if (b % ApuestasPorTurno == 0) entorno.CederTurno();
    }
    return apuestas;
}

std::string ErrorMasQueElTotal(int32_t total) {
    return "ERROR: EL Nº DE APUESTAS A GENERAR HA DE SER MENOR O IGUAL QUE EL Nº DE APUESTAS DEL SISTEMA TOTAL "
           "(tiene " +
           std::to_string(total) + " apuestas)";
}

} // namespace

bool LeerApuestasPedidas(const std::string& texto, int32_t maximo, int32_t& pedidas, Entorno& entorno) {
    const std::string_view recortado = Recortar(texto);
    if (recortado.empty()) return false;
    pedidas = 0;
    const bool cifras = std::all_of(recortado.begin(), recortado.end(), [](char c) { return c >= '0' && c <= '9'; });
    if (!LeerEntero(recortado, pedidas) && cifras) pedidas = maximo + 1;
    if (pedidas < 1) return Fallo(entorno, "ERROR: EL Nº DE APUESTAS A GENERAR HA DE SER MAYOR QUE 0");
    pedidas = std::min(pedidas, maximo + 1);
    return true;
}

int LogicaGeneradorApuestas::NumerosMarcados() const {
    return static_cast<int>(std::count(lblNumero.begin() + 1, lblNumero.end(), true));
}

std::string LogicaGeneradorApuestas::lblApuestasIniciales() const {
    const int64_t total = Combinaciones(static_cast<int16_t>(NumerosMarcados()), 6);
    return FormatoMiles(total, entorno.SeparadorMiles) + " Apuestas";
}

std::string LogicaGeneradorApuestas::lblTipoCombinacion() const {
    return std::to_string(NumerosMarcados()) + " Números";
}

void LogicaGeneradorApuestas::PulsarNumero(int numero) {
    if (numero < 1 || numero > trabajo.NumeroMaximo()) return;
    bool& marca = lblNumero[static_cast<size_t>(numero)];
    marca = !marca;
}

void LogicaGeneradorApuestas::cmdAlazar() {
    lblNumero = SortearMarcas(trabajo.NumeroMaximo(), std::clamp<int>(cboNumeros, 1, trabajo.NumeroMaximo()));
}

bool LogicaGeneradorApuestas::cmdGenerar() {
    if (NumerosMarcados() < 6) return Fallo(entorno, "AVISO: DEBE SELECCIONAR MINIMO 6 NUMEROS");
    const auto total = static_cast<int32_t>(Combinaciones(static_cast<int16_t>(NumerosMarcados()), 6));
    int32_t pedidas = 0;
    if (!LeerApuestasPedidas(txtApuestas, total, pedidas, entorno)) return false;
    if (pedidas > total) return Fallo(entorno, ErrorMasQueElTotal(total));
    std::vector<uint8_t> base;
    for (uint8_t n = 1; n <= NumeroMaximoBoleto; ++n)
        if (lblNumero[n]) base.push_back(n);
    const std::string ruta = PedirRutaSistema(std::to_string(pedidas) + "_Apuestas.TOM", entorno);
    if (ruta.empty()) return false;
    const Mientras generando(Generando);
    try {
        const std::vector<int32_t> orden = Barajar(total, entorno);
        const Tabla apuestas = ApuestasEn(orden, pedidas, base, entorno);
        return GuardarSistema(ruta, CabeceraDeMarcas(lblNumero, NumeroMaximoBoleto), apuestas, trabajo, lblProgressBar,
                              entorno);
    } catch (const std::bad_alloc&) {
        return FalloAlGuardar(entorno, DescripcionFallo(ENOMEM));
    }
}
