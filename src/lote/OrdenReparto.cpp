// reparto: how the bets of a base are spread over what a condition tests.
#include <algorithm>

#include <fmt/format.h>

#include "AlVuelo.h"
#include "Argumentos.h"
#include "BaseDeOrden.h"
#include "Boleto.h"
#include "Ordenes.h"
#include "Reparto.h"
#include "TablaFiltros.h"

namespace {

struct ArgumentosReparto {
    ArgumentosBase Partida;
    int Filtro = 0; ///< row of the condition
};

std::string TextoReparto(const Reparto& reparto) {
    std::string texto;
    for (const ApartadoReparto& apartado : reparto.Apartados) {
        if (reparto.Apartados.size() > 1) texto += apartado.Nombre + "\n";
        for (const BarraReparto& barra : apartado.Barras)
            texto += fmt::format("{}\t{}\n", barra.Etiqueta, barra.Apuestas);
    }
    return texto + fmt::format("Pasan: {} de {}\n", reparto.Pasan, reparto.Total);
}

bool Repartir(Lote& lote, const ArgumentosReparto& argumentos) {
    if (!AbrirBase(lote, argumentos.Partida)) return false;
    if (ContarBase(lote.sesion.trabajo) < 6) return Fallo(lote.entorno, "AVISO: DEBE SELECCIONAR MINIMO 6 NUMEROS");
    if (!DisponibleEnJuego(argumentos.Filtro, lote.sesion.trabajo))
        return Fallo(lote.entorno, "AVISO: FILTRO NO PERMITIDO PARA EL JUEGO EURODREAMS");
    const auto aparte = ApartarBase(lote.sesion);
    ExpandirBase(*aparte, lote.entorno);
    lote.salida.Escribir(TextoReparto(RepartirFiltro(argumentos.Filtro, *aparte, lote.entorno)));
    return true;
}

void OpcionFiltro(CLI::App* orden, int& filtro) {
    const auto leer = [&filtro](const std::string& nombre) {
        const auto fila = std::find_if(TablaFiltros.begin(), TablaFiltros.end(),
                                       [&](const DescripcionFiltro& f) { return f.nombre == nombre; });
        if (fila == TablaFiltros.end())
            ArgumentoMalo("--filtro", "se espera el nombre de una condición, como SUMAS, no " + nombre);
        filtro = static_cast<int>(fila - TablaFiltros.begin());
    };
    OpcionLeida(orden, "--filtro", "NOMBRE", leer, "Condición, por su nombre en el fichero base").Obligatoria();
}

} // namespace

void DeclararReparto(CLI::App& programa, Lote& lote) {
    const auto argumentos = std::make_shared<ArgumentosReparto>();
    CLI::App* orden =
        NuevaOrden(programa, lote, "reparto", "Reparte las apuestas de una base por lo que mira una condición",
                   [argumentos](Lote& l) { return Repartir(l, *argumentos); });
    DeclararArgumentosBase(orden, argumentos->Partida);
    OpcionFiltro(orden, argumentos->Filtro);
}
