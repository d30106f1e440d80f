#include "RespuestaGuardada.h"

#include "Ficheros.h"

void ResponderConFichero(Entorno& entorno, const std::string& ruta) {
    constexpr int64_t maximo = int64_t{512} << 20;
    entorno.Servicio = "file://";
    entorno.PedirHttp = [ruta](const std::string&, std::string& cuerpo, std::string& fallo) {
        return LeerFichero(ruta, maximo, cuerpo, fallo);
    };
}
