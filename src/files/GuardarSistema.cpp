#include "GuardarSistema.h"

#include "Bloqueo.h"
#include "Ficheros.h"
#include "modEncriptarFichero.h"
#include "modGeneral.h"

std::string NombreSistemaActual(const EstadoTrabajo& trabajo) {
    const std::string actual = NombreFicheroActual(trabajo);
    return actual.substr(0, actual.find_last_of('.')) + ".TOM";
}

std::string PedirRutaSistema(const std::string& nombre, Entorno& entorno) {
    const std::string ruta =
        entorno.PedirGuardar({"Guardar Combinación",
                              {{"Fichero de TOMBOLERA (*.TOM)", "*.TOM"}, {"todos los archivos (*.*)", "*.*"}},
                              nombre});
    return Recortar(ruta).empty() ? std::string() : RutaConExtension(ruta, ".TOM");
}

bool GuardarSistema(const std::string& ruta, std::string_view cabecera, const Tabla& sistema, EstadoTrabajo& trabajo,
                    Espera& barra, Entorno& entorno) {
    const Bloqueo bloqueo(trabajo);
    const BarraVisible visible(barra);
    return GuardarFicheroApuestas(ruta, cabecera, static_cast<int32_t>(sistema.Apuestas()), sistema, &barra, entorno);
}

std::string CabeceraDeMarcas(const std::array<bool, NumeroMaximoBoleto + 1>& marcas, int maximo) {
    std::string cabecera;
    for (int n = 1; n <= maximo; ++n)
        if (marcas[static_cast<size_t>(n)]) cabecera += Formato00(n);
    return cabecera;
}
