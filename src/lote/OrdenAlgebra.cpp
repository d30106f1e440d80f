// algebra: two systems make a third, or one is put in order.
#include "Argumentos.h"
#include "LogicaAlgebra.h"
#include "Ordenes.h"
#include "Parada.h"

namespace {

constexpr std::array<std::string_view, 5> Operaciones{"ordenar", "sumar", "unir", "comunes", "restar"};

struct ArgumentosAlgebra {
    int Operacion = OrdenarSistema1;
    std::string S1, S2, Guardar;
    bool Descendente = false;
};

bool Algebra(Lote& lote, const ArgumentosAlgebra& argumentos) {
    LogicaAlgebra algebra{lote.sesion, lote.entorno};
    const auto cederTurno = lote.entorno.CederTurno;
    lote.entorno.CederTurno = [&] {
        cederTurno();
        if (ParadaPedida()) algebra.Detener();
    };
    lote.entorno.PedirGuardar = Responder(argumentos.Guardar);
    algebra.Abrir();
    algebra.ElegirTipo(argumentos.Operacion);
    algebra.cboTipoOrdenacion = argumentos.Descendente ? 1 : 0;
    algebra.Cargar(0, argumentos.S1);
    if (!argumentos.S2.empty() && !ParadaPedida()) algebra.Cargar(1, argumentos.S2);
    const bool hecho = !ParadaPedida() && algebra.imgCalcular();
    for (const std::string& linea : algebra.txtVentanaResultados) lote.salida.Escribir(linea + "\n");
    const bool guardado = hecho && !ParadaPedida() && algebra.imgGuardar();
    lote.entorno.CederTurno = cederTurno;
    return guardado;
}

void OpcionOperacion(CLI::App* orden, int& operacion) {
    const auto leer = [&operacion](const std::string& valor) {
        const auto hay = std::find(Operaciones.begin(), Operaciones.end(), valor);
        if (hay == Operaciones.end())
            ArgumentoMalo("OPERACION", "se espera ordenar, sumar, unir, comunes o restar, no " + valor);
        operacion = static_cast<int>(hay - Operaciones.begin());
    };
    OpcionLeida(orden, "OPERACION", "", leer, "ordenar, sumar, unir (sin repetidas), comunes o restar").Obligatoria();
}

} // namespace

void DeclararAlgebra(CLI::App& programa, Lote& lote) {
    const auto argumentos = std::make_shared<ArgumentosAlgebra>();
    CLI::App* orden = NuevaOrden(programa, lote, "algebra", "Ordena un sistema, o hace de dos un tercero",
                                 [argumentos](Lote& l) { return Algebra(l, *argumentos); });
    OpcionOperacion(orden, argumentos->Operacion);
    Fichero(orden, "S1", argumentos->S1, "Fichero del sistema 1");
    Fichero(orden, "S2", argumentos->S2, "Fichero del sistema 2, que ordenar no necesita").Obligatoria(false);
    Bandera(orden, "--descendente", argumentos->Descendente, "Ordena de la última apuesta a la primera");
    Fichero(orden, "--guardar", argumentos->Guardar, "Fichero de apuestas que se escribe").Obligatoria();
}
