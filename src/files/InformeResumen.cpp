#include "InformeResumen.h"

#include <algorithm>

#include "Ficheros.h"
#include "Informes.h"
#include "TextoInforme.h"
#include "modGeneral.h"

namespace {

int32_t NumeroDeApuestas(const EstadoTrabajo& trabajo) {
    const Contadores& contador = trabajo.Contador;
    return trabajo.NApuestasImportadas > 0 || contador.Reducidas >= 1 ? contador.Reducidas : contador.Condicionadas;
}

void EscribirCabecera(TextoInforme& t, const EstadoTrabajo& trabajo, char miles) {
    t.Linea("RESUMEN");
    t.Linea();
    t.Linea("Programa           : TOMBOLERA 11.1");
    t.Linea("Tipo de Juego      : {}", trabajo.TipoJuego());
    t.Linea("Nombre combinación : {}", NombreFicheroActual(trabajo));
    t.Linea("Nº de Apuestas     : {}", FormatoMiles(NumeroDeApuestas(trabajo), miles));
    t.Linea();
}

std::string CeldaAncha(bool marcado, int n) {
    return marcado ? " " + Formato00(n) + " " : " -- ";
}

void EscribirNumeros(TextoInforme& t, const EstadoTrabajo& trabajo) {
    const auto marcado = [&](int n) { return trabajo.lblNumero[static_cast<size_t>(n)]; };
    t.Linea("COMBINACION BASE");
    t.Linea();
    t.Linea("NUMEROS");
    if (trabajo.cboTipoJuego != EURODREAMS)
        return LineasBoleto(t, "   ", [&](int n) { return " " + (marcado(n) ? Formato00(n) : "--"); });
    for (int n = 1; n <= trabajo.NumeroMaximo(); ++n) t.Texto += CeldaAncha(marcado(n), n) + (n % 5 == 0 ? "\n" : "");
}

void EscribirDigitos(TextoInforme& t, const EstadoTrabajo& trabajo) {
    const Juego& juego = trabajo.JuegoActual();
    if (!juego.TieneDigito()) return;
    t.Linea();
    t.Linea("{} ({})", juego.TituloReintegros, NombresTipoReintegro[static_cast<size_t>(trabajo.cboTipoReintegro)]);
    for (int d = juego.DigitoMinimo; d <= juego.DigitoMaximo; ++d) {
        const bool finDeLinea = (d - juego.DigitoMinimo) % 5 == 4;
        t.Texto += CeldaAncha(trabajo.lblReintegro[static_cast<size_t>(d)], d) + (finDeLinea ? "\n" : "");
    }
}

bool HayCondiciones(const ListaFiltros& filas) {
    return std::any_of(filas.begin(), filas.begin() + NFiltros, [](const FilaFiltro& fila) { return fila.Activo; });
}

} // namespace

std::string TextoResumen(const Sesion& sesion, const Entorno& entorno) {
    const EstadoTrabajo& trabajo = sesion.trabajo;
    TextoInforme t;
    t.Decimal = entorno.SeparadorDecimal;
    EscribirCabecera(t, trabajo, entorno.SeparadorMiles);
    EscribirNumeros(t, trabajo);
    EscribirDigitos(t, trabajo);
    if (trabajo.cboTipoCombinacion == PronosticoDesdeArchivo) {
        t.Linea();
        t.Linea("Base desde Fichero : {}", NombreSinCarpeta(trabajo.txtFicheroASCII));
        t.Linea();
    }
    if (HayCondiciones(sesion.condiciones.lstFiltros)) {
        t.Linea();
        t.Linea("FILTROS");
        t.Linea();
        EscribirSecciones(t, sesion.condiciones);
    }
    return t.Texto;
}

bool VerResumenFiltros(const Sesion& sesion, Entorno& entorno) {
    return MostrarInforme(entorno, "TOMBOLERA_INFORME.txt", TextoResumen(sesion, entorno));
}
