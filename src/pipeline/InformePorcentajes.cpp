#include "InformePorcentajes.h"

#include "Informes.h"
#include "LogicaVentanaProceso.h"
#include "RejillaInforme.h"

bool EscribirInformePorcentajes(const LogicaVentanaProceso& ventana, std::string& ruta) {
    const std::string texto = "TOMBOLERA " + ventana.fraPorcentajes + ":\n\n" +
                              TextoRejillaInforme(ventana.lblN, ventana.sesion.trabajo.cboTipoJuego);
    ruta = RutaInforme(ventana.entorno, NombreInformeAnalisis);
    std::string fallo;
    return EscribirInforme(ruta, texto, fallo);
}
