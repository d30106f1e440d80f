#include "Entorno.h"

#include <ctime>

bool Fallo(Entorno& entorno, const std::string& texto) {
    entorno.Mensaje(texto.starts_with("ERROR") ? Icono::Critico : Icono::Exclamacion, texto);
    return false;
}

FechaHora AhoraDelSistema() {
    const std::time_t ahora = std::time(nullptr);
    std::tm local{};
    localtime_r(&ahora, &local);
    return {local.tm_year + 1900, local.tm_mon + 1, local.tm_mday, local.tm_hour, local.tm_min, local.tm_sec};
}
