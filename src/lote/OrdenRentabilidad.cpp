// rentabilidad: how many bets of a file fall on each coefficient of profitability.
#include <sstream>

#include "Argumentos.h"
#include "LogicaCoeficienteRentabilidad.h"
#include "Ordenes.h"
#include "Parada.h"
#include "modGeneral.h"

namespace {

struct ArgumentosRentabilidad {
    std::string Fichero, Apostados, Reales, Guardar;
    std::vector<size_t> CR; ///< rows chosen
};

bool CargarTodo(LogicaCoeficienteRentabilidad& utilidad, const ArgumentosRentabilidad& argumentos) {
    if (!utilidad.Cargar(argumentos.Fichero)) return false;
    if (!argumentos.Apostados.empty() && !utilidad.CargarPorcentajes(TablaCR::Apostados, argumentos.Apostados))
        return false;
    return argumentos.Reales.empty() || utilidad.CargarPorcentajes(TablaCR::Reales, argumentos.Reales);
}

bool Rentabilidad(Lote& lote, const ArgumentosRentabilidad& argumentos) {
    LogicaCoeficienteRentabilidad utilidad{lote.sesion, lote.entorno};
    const auto cederTurno = lote.entorno.CederTurno;
    lote.entorno.CederTurno = [&] {
        cederTurno();
        if (ParadaPedida()) utilidad.Detener();
    };
    lote.entorno.PedirGuardar = Responder(argumentos.Guardar);
    utilidad.Abrir();
    bool hecho = CargarTodo(utilidad, argumentos) && !ParadaPedida() && utilidad.imgCalcular();
    for (const std::string& fila : utilidad.lstCR) lote.salida.Escribir(fila + "\n");
    for (const size_t i : argumentos.CR) utilidad.ElegirCR(i, true);
    if (hecho && !argumentos.Guardar.empty()) hecho = !ParadaPedida() && utilidad.imgGrabarApuestasCR();
    lote.entorno.CederTurno = cederTurno;
    return hecho;
}

// "1.3" is row 13; at most one decimal, up to 9.9.
size_t LeerCR(const std::string& texto) {
    const bool entero = texto.size() == 1, decimal = texto.size() == 3 && texto[1] == '.';
    const auto cifra = [&](size_t i) { return texto[i] >= '0' && texto[i] <= '9'; };
    if (!(entero || decimal) || !cifra(0) || (decimal && !cifra(2)))
        ArgumentoMalo("--cr", "se esperan valores de 0.0 a 9.9, no " + texto);
    return static_cast<size_t>((texto[0] - '0') * 10 + (decimal ? texto[2] - '0' : 0));
}

Opcion OpcionCR(CLI::App* orden, std::vector<size_t>& elegidos) {
    const auto leer = [&elegidos](const std::string& valor) {
        std::istringstream partes(valor);
        for (std::string parte; std::getline(partes, parte, ',');) elegidos.push_back(LeerCR(parte));
    };
    return OpcionLeida(orden, "--cr", "L", leer,
                       "Coeficientes cuyas apuestas se guardan, como 1.0,1.1; 9.9 y mayores van juntos");
}

} // namespace

void DeclararRentabilidad(CLI::App& programa, Lote& lote) {
    const auto argumentos = std::make_shared<ArgumentosRentabilidad>();
    CLI::App* orden =
        NuevaOrden(programa, lote, "rentabilidad", "Cuenta las apuestas de cada coeficiente de rentabilidad",
                   [argumentos](Lote& l) { return Rentabilidad(l, *argumentos); });
    Fichero(orden, "F", argumentos->Fichero, "Fichero de apuestas");
    Fichero(orden, "--apostados", argumentos->Apostados, "Fichero de porcentajes apostados");
    Fichero(orden, "--reales", argumentos->Reales, "Fichero de porcentajes reales");
    const Opcion cr = OpcionCR(orden, argumentos->CR);
    const Opcion guardar =
        Fichero(orden, "--guardar", argumentos->Guardar, "Fichero de apuestas que se escribe").VaCon(cr);
    cr.VaCon(guardar);
}
