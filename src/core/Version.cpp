#include "Version.h"

std::string FechaCompilacion() {
    const std::string fecha = __DATE__; // "Nov  3 2024"
    const size_t mes = std::string_view("JanFebMarAprMayJunJulAugSepOctNovDec").find(fecha.substr(0, 3)) / 3 + 1;
    const std::string dia = (fecha[4] == ' ' ? "0" : fecha.substr(4, 1)) + fecha.substr(5, 1);
    return dia + "/" + (mes < 10 ? "0" : "") + std::to_string(mes) + "/" + fecha.substr(7);
}
