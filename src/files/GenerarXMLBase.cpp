#include <fmt/format.h>

#include "TablaFiltros.h"
#include "TextoXML.h"
#include "modXML.h"

namespace {

// Numbers hidden by the game are no part of the base, even if they are marked.
std::string NumerosMarcados(const EstadoTrabajo& trabajo) {
    auto marcas = trabajo.lblNumero;
    for (size_t n = static_cast<size_t>(trabajo.NumeroMaximo()) + 1; n < marcas.size(); ++n) marcas[n] = false;
    return TextoLista(marcas, 1);
}

void GenerarCabecera(TextoXML& xml, const Sesion& sesion, Entorno& entorno) {
    const EstadoTrabajo& trabajo = sesion.trabajo;
    const FechaHora ahora = entorno.Ahora();
    xml.Linea("<DatosGeneracionFicheroXML fecha='{:02}/{:02}/{:04}' hora='{:02}:{:02}:{:02}'/>", ahora.Dia, ahora.Mes,
              ahora.Anio, ahora.Hora, ahora.Minuto, ahora.Segundo);
    xml.Linea("<Programa nombre='TOMBOLERA' version='11.1' IDtipojuego='{}' tipojuego='{}' />", trabajo.cboTipoJuego,
              trabajo.TipoJuego());
    xml.Linea("<Combinacion>");
    xml.Linea("<Base_Numeros numeros='{}'/>", NumerosMarcados(trabajo));
    xml.Linea("<Base_Reintegros numeros='{}' tipo='{}' tipoDescripcion='{}' />", TextoLista(trabajo.lblReintegro),
              trabajo.cboTipoReintegro, NombresTipoReintegro[static_cast<size_t>(trabajo.cboTipoReintegro)]);
    xml.Linea("</Combinacion>");
    xml.Linea("<CombinacionGanadora valor='{}' />", TextoValores(sesion.referencia.CombinacionGanadora));
    xml.Linea("<Complementario valor='{}' />", sesion.referencia.Complementario);
    // The path is the only value that can hold a character with a meaning of its own.
    xml.Linea("<BaseASCII valor='{}' />", EscaparXML(trabajo.txtFicheroASCII));
}

void GenerarReduccion(TextoXML& xml, const AjustesReduccion& r) {
    xml.Linea("<Reduccion>");
    xml.Linea("<Tipo descripcion='{}' valor='{}' />", TextoReduccion(r.TipoReduccion), r.TipoReduccion);
    xml.Linea("<Porcentaje valor='{}' />", r.PorcentajeReduccion);
    xml.Linea("<ActivarNumeroApuestas valor='{}' />", r.ActivarNumeroApuestas);
    xml.Linea("<NuApuestas valor='{}' />", r.NApuestasExactas);
    xml.Linea("<ApuestasExactas valor='{}' />", r.ApuestasExactas);
    xml.Linea("<ActivarCiclos valor='{}' />", r.ActivarCiclos);
    xml.Linea("<Aleatorio valor='{}' />", r.Aleatorio);
    xml.Linea("</Reduccion>");
}

} // namespace

std::string GenerarXMLBase(const Sesion& sesion, Entorno& entorno) {
    TextoXML xml;
    xml.Linea("<XML>");
    xml.Linea("<BASE>");
    GenerarCabecera(xml, sesion, entorno);
    xml.Linea("<Filtros>");
    GenerarFiltros(xml, sesion.condiciones);
    xml.Linea("</Filtros>");
    GenerarReduccion(xml, sesion.trabajo.Reduccion);
    xml.Linea("</BASE>");
    xml.Linea("</XML>");
    return xml.Texto;
}
