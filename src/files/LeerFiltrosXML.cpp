#include "LeerFiltrosXML.h"

#include <array>

#include "BloqueXML.h"
#include "Sesiones.h"
#include "TablaFiltros.h"
#include "modGeneral.h"

namespace {

using Elemento = const ElementoXML&;

void LeerALTOSBAJOS(BloqueXML& b, Elemento e, Condiciones& c) {
    if (e.nombre == "BAJOS") b.Lista(e, "valores", c.ALTOSBAJOS.Bajos);
    if (e.nombre == "ALTOS") b.Lista(e, "valores", c.ALTOSBAJOS.Altos);
}

void LeerDECENAS(BloqueXML& b, Elemento e, Condiciones& c) {
    static constexpr std::array Nombres{"DECENA0109", "DECENA1019", "DECENA2029", "DECENA3039", "DECENA4049"};
    for (size_t i = 0; i < Nombres.size(); ++i)
        if (e.nombre == Nombres[i]) b.Lista(e, "valores", c.DECENAS.Decena[i]);
    if (e.nombre == "FIGURASDECENAS") b.Valores(e, "valores", c.DECENAS.FigurasDecenas);
}

void LeerDISTANCIAS(BloqueXML& b, Elemento e, Condiciones& c) {
    static constexpr std::array<std::string_view, 6> Pares{"12", "23", "34", "45", "56", "16"};
    for (size_t i = 0; i < Pares.size(); ++i) {
        Intervalo& distancia = c.DISTANCIAS.Distancia[i];
        const std::string nombre = "DISTANCIA" + std::string(Pares[i]);
        if (e.nombre == nombre + "MINIMA") b.Valor(e, "valor", distancia.Minimo);
        if (e.nombre == nombre + "MAXIMA") b.Valor(e, "valor", distancia.Maximo);
    }
}

void LeerGRUPOS(BloqueXML& b, Elemento e, Condiciones& c) {
    size_t g = 0;
    if (e.nombre != "GRUPO" || !b.Indice(e, "numero", 1, RegistroGRUPOS::Grupos, g)) return;
    GrupoNumeros& grupo = c.GRUPOS.grupo[g - 1];
    BloqueXML::CadaHijo(e.nodo, [&](Elemento hijo) {
        if (hijo.nombre == "NUMEROS") b.Lista(hijo, "valores", grupo.numeros, 1);
        if (hijo.nombre == "ACIERTOS") b.Lista(hijo, "valores", grupo.aciertos);
        if (hijo.nombre == "POSICIONES") b.Valores(hijo, "valores", grupo.posiciones);
    });
}

// Subgroups go to the slots in their order in the file, whatever number they carry.
void LeerSubgrupos(BloqueXML& b, Elemento e, RegistroGRUPOSRELACIONADOS& r, size_t base) {
    size_t s = 0;
    BloqueXML::CadaHijo(e.nodo, [&](Elemento hijo) {
        if (s >= RegistroGRUPOSRELACIONADOS::PorGrupo) return b.Fallar("sobran subgrupos");
        b.Lista(hijo, "numeros", r.subgrupos[base + s++], 1);
    });
}

void LeerCondiciones(BloqueXML& b, Elemento e, RegistroGRUPOSRELACIONADOS& r, size_t base) {
    BloqueXML::CadaHijo(e.nodo, [&](Elemento hijo) {
        size_t s = 0;
        if (hijo.nombre == "ACIERTOS" && b.Indice(hijo, "bloque", 1, RegistroGRUPOSRELACIONADOS::PorGrupo, s))
            b.Lista(hijo, "valores", r.condiciones[base + s - 1]);
    });
}

void LeerGRUPOSRELACIONADOS(BloqueXML& b, Elemento e, Condiciones& c) {
    size_t g = 0;
    if (e.nombre != "GRUPO" || !b.Indice(e, "numero", 1, RegistroGRUPOSRELACIONADOS::Grupos, g)) return;
    const size_t base = (g - 1) * RegistroGRUPOSRELACIONADOS::PorGrupo;
    BloqueXML::CadaHijo(e.nodo, [&](Elemento hijo) {
        if (hijo.nombre == "SUBGRUPOS") LeerSubgrupos(b, hijo, c.GRUPOSRELACIONADOS, base);
        if (hijo.nombre == "CONDICIONES") LeerCondiciones(b, hijo, c.GRUPOSRELACIONADOS, base);
    });
}

void LeerHOMOLOGOS(BloqueXML& b, Elemento e, Condiciones& c) {
    if (e.nombre == "HOMOLOGOSACERTADOS") b.Lista(e, "valores", c.HOMOLOGOS.HomologosAcertados);
}

void LeerPARESIMPARES(BloqueXML& b, Elemento e, Condiciones& c) {
    if (e.nombre == "PARESACTIVOS") b.Lista(e, "valores", c.PARESIMPARES.ParesActivos);
}

void LeerSEGUIDOS(BloqueXML& b, Elemento e, Condiciones& c) {
    if (e.nombre == "NUMEROSSEGUIDOS") b.Lista(e, "valores", c.SEGUIDOS.NumerosSeguidos);
    if (e.nombre == "FIGURASSEGUIDOS") b.Valores(e, "valores", c.SEGUIDOS.FigurasSeguidos);
}

void LeerSUMAS(BloqueXML& b, Elemento e, Condiciones& c) {
    if (e.nombre == "INTERVALOS") b.LeerIntervalos(e, "suma", c.SUMAS.intervalos);
}

void LeerTERMINACIONES(BloqueXML& b, Elemento e, Condiciones& c) {
    RegistroTERMINACIONES& r = c.TERMINACIONES;
    size_t digito = 0;
    if (e.nombre == "TERMINADOSEN" && b.Indice(e, "id", 0, 9, digito)) b.Lista(e, "valores", r.TerminadosEn[digito]);
    if (e.nombre == "SUMATERMINACIONES") b.Limites(e, "suma", r.SumaMinima, r.SumaMaxima);
    if (e.nombre == "FIGURASTERMINACIONES") b.Valores(e, "valores", r.FigurasTerminaciones);
}

void LeerPOSICIONES(BloqueXML& b, Elemento e, Condiciones& c) {
    size_t bola = 0;
    if (e.nombre == "BOLA" && b.Indice(e, "id", 1, 6, bola)) b.Lista(e, "valores", c.POSICIONES.Bola[bola - 1], 1);
}

void LeerEXTERIORESINTERIORES(BloqueXML& b, Elemento e, Condiciones& c) {
    if (e.nombre == "EXTERIORESINTERIORESACTIVOS")
        b.Lista(e, "valores", c.EXTERIORESINTERIORES.ExterioresInterioresActivos);
}

void LeerSUPERIORESINFERIORES(BloqueXML& b, Elemento e, Condiciones& c) {
    if (e.nombre == "SUPERIORESINFERIORESACTIVOS")
        b.Lista(e, "valores", c.SUPERIORESINFERIORES.SuperioresInferioresActivos);
}

void LeerCOLINDANTES(BloqueXML& b, Elemento e, Condiciones& c) {
    if (e.nombre == "COLINDANTESACERTADOS") b.Lista(e, "valores", c.COLINDANTES.ColindantesAcertados);
}

void LeerSorteo(BloqueXML& b, Elemento e, SorteoDelAnio& sorteo) {
    b.Valor(e, "numero", sorteo.numero);
    b.Valor(e, "anio", sorteo.anio);
}

void LeerSORTEOSANTERIORES(BloqueXML& b, Elemento e, Condiciones& c) {
    size_t g = 0;
    if (e.nombre != "GRUPO" || !b.Indice(e, "numero", 1, RegistroSORTEOSANTERIORES::Grupos, g)) return;
    BloqueSorteos& bloque = c.SORTEOSANTERIORES.grupo[g - 1];
    BloqueXML::CadaHijo(e.nodo, [&](Elemento hijo) {
        if (hijo.nombre == "SORTEODESDE") LeerSorteo(b, hijo, bloque.DESDE);
        if (hijo.nombre == "SORTEOHASTA") LeerSorteo(b, hijo, bloque.HASTA);
        if (hijo.nombre == "SORTEODIAS") b.Valor(hijo, "valor", bloque.sorteoDIAS);
        if (hijo.nombre == "ACIERTOSMINIMOSORTEOS") b.Valor(hijo, "valor", bloque.aciertosMinimoSORTEOS);
        if (hijo.nombre == "ACIERTOSMAXIMOSORTEOS") b.Valor(hijo, "valor", bloque.aciertosMaximoSORTEOS);
        if (hijo.nombre == "ACERTAREN") b.Lista(hijo, "valores", bloque.acertarEN);
    });
}

void LeerSUMASPORTRIOS(BloqueXML& b, Elemento e, Condiciones& c) {
    if (e.nombre == "INTERVALOST1") b.LeerIntervalos(e, "suma", c.SUMASPORTRIOS.intervalosT1);
    if (e.nombre == "INTERVALOST2") b.LeerIntervalos(e, "suma", c.SUMASPORTRIOS.intervalosT2);
}

void LeerVALORACIONES(BloqueXML& b, Elemento e, Condiciones& c) {
    size_t g = 0;
    if (e.nombre != "GRUPO" || !b.Indice(e, "numero", 1, RegistroVALORACIONES::Grupos, g)) return;
    GrupoValoraciones& grupo = c.VALORACIONES.grupo[g - 1];
    BloqueXML::CadaHijo(e.nodo, [&](Elemento hijo) {
        if (hijo.nombre == "INTERVALOS") b.LeerIntervalos(hijo, "valores", grupo.intervalos);
        if (hijo.nombre == "VALORACIONES") b.Valores(hijo, "valores", grupo.valoraciones, 1);
    });
}

void LeerCOEFICIENTERENTABILIDAD(BloqueXML& b, Elemento e, Condiciones& c) {
    RegistroCOEFICIENTERENTABILIDAD& r = c.COEFICIENTERENTABILIDAD;
    if (e.nombre == "PORCENTAJESAPOSTADOS") b.Valores(e, "valores", r.PorcentajesApostados, 1);
    if (e.nombre == "PORCENTAJESREALES") b.Valores(e, "valores", r.PorcentajesReales, 1);
    if (e.nombre == "RANGOSCR") b.Lista(e, "valores", r.RangosCR);
}

void LeerGRUPOSENTRELIMITES(BloqueXML& b, Elemento e, Condiciones& c) {
    RegistroGRUPOSENTRELIMITES& r = c.GRUPOSENTRELIMITES;
    if (e.nombre == "ACIERTOSMINIMOGRUPOSENTRELIMITES") b.Valor(e, "valor", r.aciertosMinimoGRUPOSENTRELIMITES);
    if (e.nombre == "ACIERTOSMAXIMOGRUPOSENTRELIMITES") b.Valor(e, "valor", r.aciertosMaximoGRUPOSENTRELIMITES);
    size_t g = 0;
    if (e.nombre != "GRUPO" || !b.Indice(e, "numero", 1, RegistroGRUPOSENTRELIMITES::Grupos, g)) return;
    GrupoLimites& grupo = r.grupo[g - 1];
    BloqueXML::CadaHijo(e.nodo, [&](Elemento hijo) {
        if (hijo.nombre == "NUMEROS") b.Lista(hijo, "valores", grupo.numeros, 1);
        if (hijo.nombre == "ACIERTOS") b.Lista(hijo, "valores", grupo.aciertos);
    });
}

struct BloqueDeFiltro {
    std::string_view NombreDeError;
    void (*LeerElemento)(BloqueXML&, const ElementoXML&, Condiciones&);
};

// In row order; the names of the filters themselves are those of TablaFiltros.
constexpr std::array<BloqueDeFiltro, NFiltros> Bloques{{
    {"BAJOS Y ALTOS", LeerALTOSBAJOS},
    {"DECENAS", LeerDECENAS},
    {"DISTANCIAS", LeerDISTANCIAS},
    {"GRUPOS DE NUMEROS", LeerGRUPOS},
    {"GRUPOS RELACIONADOS", LeerGRUPOSRELACIONADOS},
    {"HOMOLOGOS", LeerHOMOLOGOS},
    {"PARES E IMPARES", LeerPARESIMPARES},
    {"SEGUIDOS", LeerSEGUIDOS},
    {"SUMAS", LeerSUMAS},
    {"TERMINACIONES", LeerTERMINACIONES},
    {"POSICIONES", LeerPOSICIONES},
    {"EXTERIORES INTERIORES", LeerEXTERIORESINTERIORES},
    {"SUPERIORES INFERIORES", LeerSUPERIORESINFERIORES},
    {"COLINDANTES", LeerCOLINDANTES},
    {"SORTEOS ANTERIORES", LeerSORTEOSANTERIORES},
    {"SUMASPORTRIOS", LeerSUMASPORTRIOS},
    {"VALORACIONES", LeerVALORACIONES},
    {"COEFICIENTERENTABILIDAD", LeerCOEFICIENTERENTABILIDAD},
    {"GRUPOS ENTRE LIMITES", LeerGRUPOSENTRELIMITES},
}};

// A file only ever turns a row on; the reset before has turned all of them off.
void LeerActivado(BloqueXML& bloque, const ElementoXML& filtro, FilaFiltro& fila) {
    std::string_view activado;
    int32_t valor = 0;
    if (bloque.Atributo(filtro, "activado", activado) && LeerEntero(activado, valor) && valor == 1) fila.Activo = true;
}

void LeerFiltro(const ElementoXML& filtro, size_t k, Sesion& sesion, ErroresDeBase& errores) {
    BloqueXML bloque;
    BloqueXML::CadaHijo(filtro.nodo,
                        [&](const ElementoXML& hijo) { Bloques[k].LeerElemento(bloque, hijo, sesion.condiciones); });
    ActualizarFila(sesion, static_cast<int>(k));
    LeerActivado(bloque, filtro, sesion.condiciones.lstFiltros[k]);
    errores.Anadir(bloque.Fallo(), Bloques[k].NombreDeError);
}

} // namespace

void ErroresDeBase::Anadir(std::string_view descripcion, std::string_view nombre) {
    if (!descripcion.empty()) Texto += std::string(nombre) + " : " + std::string(descripcion) + "\n";
}

void LeerFiltrosXML(pugi::xml_node filtros, Sesion& sesion, ErroresDeBase& errores) {
    BloqueXML::CadaHijo(filtros, [&](const ElementoXML& filtro) {
        const std::string nombre = EnMayusculas(filtro.nodo.attribute("nombre").value());
        for (size_t k = 0; k < NFiltros; ++k)
            if (nombre == TablaFiltros[k].nombre) LeerFiltro(filtro, k, sesion, errores);
    });
}
