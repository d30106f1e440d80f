#include "CeldaVerde.h"

#include "MarcoFiltro.h"
#include "TextoQt.h"

namespace {

const char* const EstiloCelda = "QPushButton { background: white; color: black; border: 1px solid #767676;"
                                "  border-radius: 4px; font-weight: bold; padding: 0px; }"
                                "QPushButton:checked { background: #1b7f3b; color: white; border-color: #145c2b; }"
                                "QPushButton:hover { border: 2px solid #145c2b; }"
                                "QPushButton:focus { border: 2px solid #1a5fb4; }";

} // namespace

QPushButton* CrearCeldaVerde(std::string_view nombre, std::string_view texto, std::string_view ayuda, int lado,
                             std::function<void()> alPulsar) {
    auto* celda = CrearBoton(nombre, texto, ayuda, std::move(alPulsar));
    celda->setCheckable(true);
    celda->setAccessibleName(Q(ayuda));
    celda->setFixedSize(lado, lado);
    celda->setStyleSheet(QLatin1String(EstiloCelda));
    return celda;
}
