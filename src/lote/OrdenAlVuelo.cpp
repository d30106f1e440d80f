// al-vuelo: what the active conditions of a base file let through, and what each of them costs.
#include <fmt/format.h>

#include "AlVuelo.h"
#include "Argumentos.h"
#include "BaseDeOrden.h"
#include "Boleto.h"
#include "Ordenes.h"
#include "TablaFiltros.h"

namespace {

bool AlVuelo(Lote& lote, const ArgumentosBase& argumentos) {
    if (!AbrirBase(lote, argumentos)) return false;
    if (ContarBase(lote.sesion.trabajo) < 6) return Fallo(lote.entorno, "AVISO: DEBE SELECCIONAR MINIMO 6 NUMEROS");
    const auto aparte = ApartarBase(lote.sesion);
    ExpandirBase(*aparte, lote.entorno);
    const CuentaAlVuelo cuenta = ContarAlVuelo(*aparte, lote.entorno);
    std::string texto = fmt::format("Iniciales: {}\nAl vuelo: {}\n", cuenta.Total, cuenta.Pasan);
    for (size_t k = 0; k < NFiltros; ++k)
        if (cuenta.Costes[k])
            texto += fmt::format("Sola {0}: {1}\nSólo ella {0}: {2}\n", TablaFiltros[k].nombre, cuenta.Costes[k]->Sola,
                                 cuenta.Costes[k]->Propia.value_or(0));
    lote.salida.Escribir(texto);
    return true;
}

} // namespace

void DeclararAlVuelo(CLI::App& programa, Lote& lote) {
    const auto argumentos = std::make_shared<ArgumentosBase>();
    CLI::App* orden = NuevaOrden(programa, lote, "al-vuelo",
                                 "Cuenta las apuestas que pasan las condiciones y lo que elimina cada una",
                                 [argumentos](Lote& l) { return AlVuelo(l, *argumentos); });
    DeclararArgumentosBase(orden, *argumentos);
}
