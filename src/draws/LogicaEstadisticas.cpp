#include "LogicaEstadisticas.h"

#include <limits>

#include "Juegos.h"
#include "modGeneral.h"

namespace {

// The last two statistics belong to the ticket of 49.
constexpr int PrimeraDeBoleto = 8;

bool LeerCampo16(const std::string& texto, int& valor) {
    int32_t n = 0;
    if (!LeerEntero(texto, n)) return false;
    valor = n;
    return n >= std::numeric_limits<int16_t>::min() && n <= std::numeric_limits<int16_t>::max();
}

bool LeerConsulta(const LogicaEstadisticas& l, ConsultaSorteos& consulta) {
    consulta.dia = l.cboDia;
    return LeerCampo16(l.txtTemporadaDESDE, consulta.anioDesde) &&
           LeerCampo16(l.txtTemporadaHASTA, consulta.anioHasta) &&
           LeerCampo16(l.txtSorteoDESDE, consulta.sorteoDesde) && LeerCampo16(l.txtSorteoHASTA, consulta.sorteoHasta);
}

bool AlgunoVacio(const LogicaEstadisticas& l) {
    return l.txtTemporadaDESDE.empty() || l.txtTemporadaHASTA.empty() || l.txtSorteoDESDE.empty() ||
           l.txtSorteoHASTA.empty();
}

} // namespace

LogicaEstadisticas::LogicaEstadisticas(EstadoTrabajo& estado, Entorno& mundo) : trabajo(estado), entorno(mundo) {
    txtTemporadaDESDE = "1985";
    txtTemporadaHASTA = std::to_string(entorno.Ahora().Anio);
    txtSorteoDESDE = "1";
    txtSorteoHASTA = "999";
    RutaFicheroNuevo = entorno.CarpetaInformes + "/" + std::string(FicheroEstadisticas);
    ElegirEstadistica(0);
    ElegirJuego(trabajo.cboTipoJuego);
}

bool LogicaEstadisticas::Ofrece(int indice) const {
    return cboTipoJuego != EURODREAMS || indice < PrimeraDeBoleto;
}

void LogicaEstadisticas::ElegirJuego(int juego) {
    cboTipoJuego = juego;
    if (juego == EURODREAMS && optFiltro != 0) ElegirEstadistica(0);
}

void LogicaEstadisticas::ElegirEstadistica(int indice) {
    optFiltro = indice;
    lblDatos = TituloEstadistica(indice);
    txtDatos.clear();
    Figuras.clear();
}

bool LogicaEstadisticas::cmdConsultar() {
    if (SorteosCargados.empty()) return Fallo(entorno, "No hay ningún fichero de sorteos cargado");
    if (AlgunoVacio(*this)) return Fallo(entorno, "ERROR: Algún campo de la consulta esta vacío");
    ConsultaSorteos consulta;
    if (!LeerConsulta(*this, consulta)) return Fallo(entorno, "ERROR: Algún campo de la consulta no es válido");
    if (consulta.anioDesde > consulta.anioHasta) return Fallo(entorno, "ERROR: Año mínimo mayor que año máximo");
    if (consulta.sorteoDesde > consulta.sorteoHasta)
        return Fallo(entorno, "ERROR: Número de sorteo mínimo mayor que número de sorteo máximo");
    Figuras = FigurasEstadistica(optFiltro, SorteosCargados, consulta);
    txtDatos = TextoEstadistica(optFiltro, Figuras);
    if (txtDatos.empty()) entorno.Mensaje(Icono::Exclamacion, "Ningún dato coincide con la consulta realizada");
    lblSorteosConsultados = std::to_string(ContarCoincidentes(SorteosCargados, consulta));
    return true;
}

std::string LogicaEstadisticas::TextoTabla() const {
    if (Figuras.empty()) return "";
    const std::string_view titulo = TituloEstadistica(optFiltro);
    std::string tabla = std::string(NombreEstadistica(optFiltro)) + "\t";
    tabla.append(titulo, titulo.rfind(' ') + 1);
    for (const BarraEstadistica& figura : Figuras)
        tabla += "\n" + figura.etiqueta + "\t" + std::to_string(figura.veces);
    return tabla + "\n";
}
