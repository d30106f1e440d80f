#include "TablaFiltros.h"

#include <algorithm>

#include "Evaluadores.h"
#include "Repartidores.h"

const std::array<DescripcionFiltro, NFiltros> TablaFiltros{{
    {"ALTOSBAJOS", "Bajos y Altos         ", "Fil. Bajos y Altos", "BAJOS Y ALTOS: ", "Filtro BAJOS Y ALTOS:", "", true,
     FiltrarALTOSBAJOS, RepartirALTOSBAJOS},
    {"DECENAS", "Decenas               ", "Fil. Decenas", "DECENAS: ", "Filtro DECENAS:", "", true, FiltrarDECENAS,
     RepartirDECENAS},
    {"DISTANCIAS", "Distancias            ", "Fil. Distancias", "DISTANCIAS: ", "Filtro DISTANCIAS:", "", true,
     FiltrarDISTANCIAS, RepartirDISTANCIAS},
    {"GRUPOS", "Grupos de Números     ", "Fil. Gru. de números",
     "GRUPOS DE NUMEROS: ", "Filtro GRUPOS DE NUMEROS:", "GRUPOS DE NUMEROS", true, FiltrarGRUPOS, RepartirGRUPOS},
    {"GRUPOSRELACIONADOS", "Grupos Relacionados   ", "Fil. Gru. Relacionados", "GRUPOS RELACIONADOS: ",
     "Filtro GRUPOS RELACIONADOS:", "GRUPOS RELACIONADOS", true, FiltrarGRUPOSRELACIONADOS, RepartirGRUPOSRELACIONADOS},
    {"HOMOLOGOS", "Homólogos             ", "Fil. Homólogos", "HOMOLOGOS: ", "Filtro HOMOLOGOS:", "", false,
     FiltrarHOMOLOGOS, RepartirHOMOLOGOS},
    {"PARESIMPARES", "Pares e Impares       ", "Fil. Pares e Impares",
     "PARES E IMPARES: ", "Filtro PARES E IMPARES:", "", true, FiltrarPARESIMPARES, RepartirPARESIMPARES},
    {"SEGUIDOS", "Seguidos              ", "Fil. Seguidos", "SEGUIDOS: ", "Filtro SEGUIDOS:", "", true, FiltrarSEGUIDOS,
     RepartirSEGUIDOS},
    {"SUMAS", "Sumas                 ", "Fil. Sumas", "SUMAS: ", "Filtro SUMAS:", "", true, FiltrarSUMAS,
     RepartirSUMAS},
    {"TERMINACIONES", "Terminaciones         ", "Fil. Terminaciones", "TERMINACIONES: ", "Filtro TERMINACIONES:", "",
     true, FiltrarTERMINACIONES, RepartirTERMINACIONES},
    {"POSICIONES", "Posiciones            ", "Fil. Posiciones", "POSICIONES: ", "Filtro POSICIONES:", "", true,
     FiltrarPOSICIONES, RepartirPOSICIONES},
    {"EXTERIORESINTERIORES", "Exteriores/Interiores ", "Fil. Ext./Int.", "EXTERIORES/INTERIORES: ",
     "Filtro EXTERIORES/INTERIORES:", "", false, FiltrarEXTERIORESINTERIORES, RepartirEXTERIORESINTERIORES},
    {"SUPERIORESINFERIORES", "Superiores/Inferiores ", "Fil. Sup./Inf.", "SUPERIORES/INFERIORES: ",
     "Filtro SUPERIORES/INFERIORES:", "", false, FiltrarSUPERIORESINFERIORES, RepartirSUPERIORESINFERIORES},
    {"COLINDANTES", "Colindantes           ", "Fil. Colindantes", "COLINDANTES: ", "Filtro COLINDANTES:", "", false,
     FiltrarCOLINDANTES, RepartirCOLINDANTES},
    {"SORTEOSANTERIORES", "Sorteos Anteriores    ", "Fil. Sorteos Anteriores", "SORTEOS ANTERIORES: ",
     "Filtro SORTEOS ANTERIORES:", "SORTEOS ANTERIORES", true, FiltrarSORTEOSANTERIORES, RepartirSORTEOSANTERIORES},
    {"SUMASPORTRIOS", "Sumas por Trios       ", "Fil. Sumas por Trios",
     "SUMAS POR TRIOS: ", "Filtro SUMAS POR TRIOS:", "", true, FiltrarSUMASPORTRIOS, RepartirSUMASPORTRIOS},
    {"VALORACIONES", "Valoraciones          ", "Fil. Valoraciones",
     "VALORACIONES: ", "Filtro VALORACIONES:", "VALORACIONES", true, FiltrarVALORACIONES, RepartirVALORACIONES},
    {"COEFICIENTERENTABILIDAD", "Coefici. Rentabilidad ", "Fil. Coefi.Rentabilidad", "COEFICIENTE RENTABILIDAD: ",
     "Filtro COEFICIENTE RENTABILIDAD:", "", false, FiltrarCOEFICIENTERENTABILIDAD, RepartirCOEFICIENTERENTABILIDAD},
    // The only progress label without "Fil. " in front.
    {"GRUPOSENTRELIMITES", "Grupos entre Límites  ", "Grupos entre Límites",
     "GRUPOS ENTRE LIMITES: ", "Filtro GRUPOS ENTRE LIMITES:", "GRUPOS ENTRE LIMITES", true, FiltrarGRUPOSENTRELIMITES,
     RepartirGRUPOSENTRELIMITES},
}};

std::string_view NombreFila(int k) {
    return k == FilaReduccion ? std::string_view("Reducción             ") : TablaFiltros[static_cast<size_t>(k)].Fila;
}

bool DisponibleEnJuego(int k, const EstadoTrabajo& trabajo) {
    return trabajo.cboTipoJuego != EURODREAMS || k == FilaReduccion ||
           TablaFiltros[static_cast<size_t>(k)].ParaEurodreams;
}

namespace {

template <class Bloques, class Usado>
std::string NDeTotal(const Bloques& bloques, Usado usado) {
    return std::to_string(std::count_if(bloques.begin(), bloques.end(), usado)) + " de " +
           std::to_string(bloques.size());
}

std::string GruposRelacionadosUsados(const RegistroGRUPOSRELACIONADOS& registro) {
    constexpr size_t porGrupo = RegistroGRUPOSRELACIONADOS::PorGrupo;
    int usados = 0;
    for (size_t g = 0; g < RegistroGRUPOSRELACIONADOS::Grupos; ++g) {
        const auto desde = registro.subgrupos.begin() + static_cast<std::ptrdiff_t>(g * porGrupo);
        usados += std::any_of(desde, desde + porGrupo, EnVigor<MarcasNumeros>);
    }
    return std::to_string(usados) + " de " + std::to_string(RegistroGRUPOSRELACIONADOS::Grupos);
}

} // namespace

std::string TextoBloquesUsados(const Condiciones& c, std::string_view nombre) {
    if (nombre == "GRUPOS DE NUMEROS") return NDeTotal(c.GRUPOS.grupo, [](auto& g) { return EnVigor(g.aciertos); });
    if (nombre == "GRUPOS RELACIONADOS") return GruposRelacionadosUsados(c.GRUPOSRELACIONADOS);
    if (nombre == "SORTEOS ANTERIORES")
        return NDeTotal(c.SORTEOSANTERIORES.grupo, [](auto& g) { return EnVigor(g.acertarEN); });
    if (nombre == "VALORACIONES")
        return NDeTotal(c.VALORACIONES.grupo, [](auto& g) {
            return std::any_of(g.intervalos.begin(), g.intervalos.end(), [](const Intervalo& i) { return i.EnUso(); });
        });
    if (nombre == "GRUPOS ENTRE LIMITES")
        return NDeTotal(c.GRUPOSENTRELIMITES.grupo, [](auto& g) { return EnVigor(g.aciertos); });
    return "";
}
