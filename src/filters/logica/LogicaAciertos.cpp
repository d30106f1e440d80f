#include "LogicaAciertos.h"

#include <algorithm>

namespace {

// Any other value of a flag, as a damaged base file may hold, means "not allowed".
TablaAciertos SoloUnos(const TablaAciertos& tabla) {
    TablaAciertos limpia{};
    std::transform(tabla.begin(), tabla.end(), limpia.begin(),
                   [](uint8_t marca) { return static_cast<uint8_t>(marca == 1); });
    return limpia;
}

void Rellenar(LogicaAciertos& aciertos, uint8_t marca) {
    for (int i = aciertos.MinimoAcierto; i <= aciertos.MaximoAcierto; ++i)
        aciertos.AciertosSeleccion[static_cast<size_t>(i)] = marca;
}

} // namespace

void LogicaAciertos::Pulsar(int valor) {
    AciertosSeleccion[static_cast<size_t>(valor)] ^= 1;
}

void LogicaAciertos::imgTodos() {
    Rellenar(*this, 1);
}

void LogicaAciertos::imgNinguno() {
    Rellenar(*this, 0);
}

LogicaAciertos AbrirAciertos(const TablaAciertos& tabla, int minimo) {
    return {minimo, 6, SoloUnos(tabla)};
}

void CerrarAciertos(const LogicaAciertos& aciertos, LogicaMarco& marco, TablaAciertos& tabla, std::string& texto) {
    tabla = SoloUnos(aciertos.AciertosSeleccion);
    texto = TextoLista(tabla);
    marco.ActivarFiltro();
}
