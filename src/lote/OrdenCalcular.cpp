// calcular: the calculation of a base file, its counts and the files of its bets.
#include <nlohmann/json.hpp>

#include <fmt/format.h>

#include "Argumentos.h"
#include "BaseDeOrden.h"
#include "CalcularSistema.h"
#include "GuardarCombinacion.h"
#include "MejorarReduccion.h"
#include "Ordenes.h"
#include "Reduccion.h"
#include "TablaFiltros.h"
#include "TextoApuestas.h"

namespace {

struct ArgumentosCalcular {
    ArgumentosBase Partida;
    std::string Guardar, Texto, Condicionadas;
    int32_t Ciclos = 0, Segundos = 0; ///< ends of a reduction, 0 where none was given
    int32_t Mejorar = 0, MejorarPasos = 0, MejorarSemilla = 1, MejorarHasta = 0;
    bool Json = false;
};

// The active filters in row order with what each one eliminated.
std::vector<std::pair<std::string, int32_t>> Eliminadas(const Condiciones& condiciones) {
    std::vector<std::pair<std::string, int32_t>> cuentas;
    for (size_t k = 0; k < NFiltros; ++k)
        if (condiciones.lstFiltros[k].Activo)
            cuentas.emplace_back(TablaFiltros[k].nombre, condiciones.EliminadasPorFiltro[k]);
    return cuentas;
}

std::string CuentasComoTexto(const Lote& lote) {
    const Sesion& sesion = lote.sesion;
    const Contadores& contador = sesion.trabajo.Contador;
    std::string texto = fmt::format("Iniciales: {}\nCondicionadas: {}\nReducidas: {}\nCiclos: {}\n", contador.Iniciales,
                                    contador.Condicionadas, contador.Reducidas, lote.Ciclos);
    if (lote.Cota > 0) texto += fmt::format("Cota: {}\n", lote.Cota);
    for (const auto& [nombre, cuenta] : Eliminadas(sesion.condiciones))
        texto += fmt::format("Eliminadas {}: {}\n", nombre, cuenta);
    return texto;
}

std::string CuentasComoJson(const Lote& lote) {
    const Sesion& sesion = lote.sesion;
    const Contadores& contador = sesion.trabajo.Contador;
    nlohmann::ordered_json eliminadas = nlohmann::ordered_json::object();
    for (const auto& [nombre, cuenta] : Eliminadas(sesion.condiciones)) eliminadas[nombre] = cuenta;
    nlohmann::ordered_json cuentas = {{"iniciales", contador.Iniciales},
                                      {"condicionadas", contador.Condicionadas},
                                      {"reducidas", contador.Reducidas},
                                      {"ciclos", lote.Ciclos},
                                      {"eliminadas", eliminadas}};
    if (lote.Cota > 0) cuentas["cota"] = lote.Cota;
    return cuentas.dump() + "\n";
}

// The calculation is done: a file that fails does not keep the others from being written.
bool GuardarFicheros(Lote& lote, const ArgumentosCalcular& argumentos) {
    const EstadoTrabajo& trabajo = lote.sesion.trabajo;
    bool bien = true;
    if (!argumentos.Guardar.empty()) {
        lote.entorno.PedirGuardar = Responder(argumentos.Guardar);
        bien = GuardarCombinacion(lote.sesion, lote.entorno);
    }
    if (!argumentos.Texto.empty())
        bien = GuardarTextoApuestas(argumentos.Texto, trabajo.ApuestasReducidas, lote.entorno) && bien;
    if (!argumentos.Condicionadas.empty())
        bien = GuardarTextoApuestas(argumentos.Condicionadas, trabajo.ApuestasCondicionadas, trabajo.BaseNumeros.data(),
                                    lote.entorno) &&
               bien;
    return bien;
}

bool Calcular(Lote& lote, const ArgumentosCalcular& argumentos) {
    if (!AbrirBase(lote, argumentos.Partida)) return false;
    const bool mejorar = argumentos.Mejorar > 0 || argumentos.MejorarPasos > 0;
    if (mejorar && !ReduccionMejorable(lote.sesion, lote.entorno)) return false;
    const FinesMejora mejora{static_cast<double>(argumentos.Mejorar), argumentos.MejorarPasos,
                             static_cast<uint64_t>(argumentos.MejorarSemilla), argumentos.MejorarHasta};
    PrepararReduccion(lote, {argumentos.Ciclos, argumentos.Segundos, mejorar, mejora});
    if (!CalcularSistema(lote.sesion, lote.entorno)) return false;
    const bool guardado = GuardarFicheros(lote, argumentos);
    lote.salida.Escribir(argumentos.Json ? CuentasComoJson(lote) : CuentasComoTexto(lote));
    return guardado;
}

} // namespace

void DeclararCalcular(CLI::App& programa, Lote& lote) {
    const auto argumentos = std::make_shared<ArgumentosCalcular>();
    CLI::App* orden = NuevaOrden(programa, lote, "calcular", "Calcula el sistema de un fichero base",
                                 [argumentos](Lote& l) { return Calcular(l, *argumentos); });
    DeclararArgumentosBase(orden, argumentos->Partida);
    Entero(orden, "--ciclos", argumentos->Ciclos, 1, "Ciclos de una reducción que no acaba por sí sola; si falta, 1");
    Entero(orden, "--segundos", argumentos->Segundos, 1,
           "Segundos de esa reducción, en lugar de los ciclos o con ellos");
    Entero(orden, "--mejorar", argumentos->Mejorar, 1,
           "Segundos que después busca un sistema más pequeño con la misma garantía");
    Entero(orden, "--mejorar-pasos", argumentos->MejorarPasos, 1,
           "Pasos de esa búsqueda, en lugar de los segundos o con ellos: se repite igual");
    Entero(orden, "--mejorar-semilla", argumentos->MejorarSemilla, 1, "Semilla de esa búsqueda; si falta, 1");
    Entero(orden, "--mejorar-hasta", argumentos->MejorarHasta, 1, "Apuestas que bastan: acaba al llegar a tan pocas");
    Fichero(orden, "--guardar", argumentos->Guardar, "Graba el sistema final, y a su lado su fichero base");
    Fichero(orden, "--texto", argumentos->Texto, "Escribe las apuestas finales, doce cifras por línea");
    Fichero(orden, "--condicionadas", argumentos->Condicionadas, "Escribe igual las apuestas condicionadas");
    Bandera(orden, "--json", argumentos->Json, "Escribe las cuentas como un objeto JSON");
}
