#include "Materia.h"

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <numeric>
#include <random>
#include <stdexcept>

#include <fmt/format.h>

#include "Boleto.h"
#include "CondicionesEjemplo.h"
#include "GenerarApuestas.h"
#include "Reloj.h"
#include "Sesiones.h"
#include "Supervivientes.h"
#include "TablasCSN.h"
#include "modCSN.h"
#include "modEncriptarFichero.h"

namespace {

constexpr int32_t Mitad = 7000000;

void EscribirTexto(const std::string& ruta, const Tabla& t) {
    std::ofstream fichero(ruta, std::ios::binary);
    for (int64_t i = 1; i <= t.Apuestas(); ++i)
        fichero << fmt::format("{:02},{:02},{:02},{:02},{:02},{:02}\r\n", t(1, i), t(2, i), t(3, i), t(4, i), t(5, i),
                               t(6, i));
}

Tabla Sistema(const std::vector<int32_t>& csn, int64_t desde, int64_t n) {
    Tabla tabla(7, n);
    CSNaCombinaciones(csn.data() + desde, n, tabla, 1);
    return tabla;
}

} // namespace

// All bets of 1 to n, alive, under the conditions of the sweep.
void Expandir(Sesion& sesion, Entorno& entorno, int n) {
    IniciarSesion(sesion, entorno);
    EstadoTrabajo& trabajo = sesion.trabajo;
    std::fill_n(trabajo.lblNumero.begin() + 1, n, true);
    ActualizarContadores(trabajo);
    LeerBase(trabajo);
    GenerarApuestas(trabajo, entorno, 6, 6);
    trabajo.ApuestasEnTabla = trabajo.Contador.Iniciales;
    PrepararEliminadas(trabajo);
    trabajo.SinEliminadas = true;
    ElegirCondicionesEjemplo(sesion.condiciones);
    sesion.condiciones.SEGUIDOS.FigurasSeguidos = {};
}

Sorteos Historia(size_t cuantos) {
    Sorteos sorteos(cuantos);
    std::mt19937 azar(3);
    for (size_t i = 0; i < cuantos; ++i) {
        CSNaCombinacion(1 + static_cast<int32_t>(azar() % N), 6, 49, sorteos[i].numeros.data());
        sorteos[i].anio = static_cast<int16_t>(1985 + i / 300);
        sorteos[i].sorteo = static_cast<uint16_t>(i % 300 + 1);
    }
    return sorteos;
}

Materia::Materia(const std::string& carpeta) : texto(carpeta + "/boleto.txt"), tom(carpeta + "/boleto.TOM") {
    Expandir(sesion, entorno, 49);
    std::vector<int32_t> csn(static_cast<size_t>(N));
    std::iota(csn.begin(), csn.end(), 1);
    std::shuffle(csn.begin(), csn.end(), std::mt19937(1));
    uno = Sistema(csn, 0, Mitad);
    otro = Sistema(csn, N - Mitad, Mitad);
    todo = Sistema(csn, 0, N);
    sesion.condiciones.SorteosFiltro = Historia(3000);
    sesion.condiciones.SORTEOSANTERIORES.grupo[0] = {{-32768, 1}, {32767, 1}, 0, 45, 67, {0, 0, 0, 1, 1, 1, 1}};
    if (!std::filesystem::exists(texto)) EscribirTexto(texto, todo);
    if (!std::filesystem::exists(tom) && !GuardarFicheroApuestas(tom, "0", N, todo, nullptr, entorno))
        throw std::runtime_error(tom);
}

// The plain work on `n` bets in place of all.
TiempoLiteral EnProporcion(int64_t n, const std::function<void()>& hacer, double veces) {
    return {Segundos(hacer) * static_cast<double>(N) / static_cast<double>(n) * veces,
            fmt::format("{} bets, in proportion", n)};
}
