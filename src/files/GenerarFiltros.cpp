#include <algorithm>
#include <array>

#include "TablaFiltros.h"
#include "TextoXML.h"

namespace {

// A table of flags as the list of its set indices. The form of the line is the most frequent one.
template <class Marcas>
void Lista(TextoXML& xml, std::string_view elemento, const Marcas& marcas, size_t primero = 0) {
    xml.Linea("<{} valores='{}' />", elemento, TextoLista(marcas, primero));
}

template <class Valores>
void Figuras(TextoXML& xml, std::string_view elemento, const Valores& figuras) {
    xml.Linea("<{} valores='{}'/>", elemento, TextoValores(figuras));
}

template <class Intervalos>
void GenerarIntervalos(TextoXML& xml, std::string_view grupo, std::string_view atributo, const Intervalos& intervalos) {
    xml.Linea("<{}>", grupo);
    for (size_t i = 0; i < intervalos.size(); ++i)
        xml.Linea("<intervalo numero='{}' {}='{}-{}'/>", i + 1, atributo, intervalos[i].Minimo, intervalos[i].Maximo);
    xml.Linea("</{}>", grupo);
}

void GenerarALTOSBAJOS(TextoXML& xml, const Condiciones& c) {
    Lista(xml, "Bajos", c.ALTOSBAJOS.Bajos);
    Lista(xml, "Altos", c.ALTOSBAJOS.Altos);
}

void GenerarDECENAS(TextoXML& xml, const Condiciones& c) {
    static constexpr std::array Nombres{"Decena0109", "Decena1019", "Decena2029", "Decena3039", "Decena4049"};
    for (size_t i = 0; i < Nombres.size(); ++i) Lista(xml, Nombres[i], c.DECENAS.Decena[i]);
    Figuras(xml, "FigurasDecenas", c.DECENAS.FigurasDecenas);
}

void GenerarDISTANCIAS(TextoXML& xml, const Condiciones& c) {
    static constexpr std::array Pares{"12", "23", "34", "45", "56", "16"};
    for (size_t i = 0; i < Pares.size(); ++i) {
        xml.Linea("<Distancia{}Minima valor='{}' />", Pares[i], c.DISTANCIAS.Distancia[i].Minimo);
        xml.Linea("<Distancia{}Maxima valor='{}' />", Pares[i], c.DISTANCIAS.Distancia[i].Maximo);
    }
}

void GenerarGRUPOS(TextoXML& xml, const Condiciones& c) {
    for (size_t g = 0; g < c.GRUPOS.grupo.size(); ++g) {
        const GrupoNumeros& grupo = c.GRUPOS.grupo[g];
        if (!EnVigor(grupo.aciertos)) continue;
        xml.Linea("<grupo numero='{}'>", g + 1);
        Lista(xml, "numeros", grupo.numeros, 1);
        Lista(xml, "aciertos", grupo.aciertos);
        xml.Linea("<posiciones valores='{}' />", TextoValores(grupo.posiciones));
        xml.Linea("</grupo>");
    }
}

void GenerarGrupoRelacionado(TextoXML& xml, const RegistroGRUPOSRELACIONADOS& r, size_t g) {
    constexpr size_t porGrupo = RegistroGRUPOSRELACIONADOS::PorGrupo;
    const size_t base = g * porGrupo;
    xml.Linea("<grupo numero='{}'>", g + 1);
    xml.Linea("<subgrupos>");
    // Subgroups are numbered through all groups, conditions within their own.
    for (size_t s = 0; s < porGrupo; ++s)
        if (EnVigor(r.subgrupos[base + s]))
            xml.Linea("<subgrupo numero='{}' numeros='{}' />", base + s + 1, TextoLista(r.subgrupos[base + s], 1));
    xml.Linea("</subgrupos>");
    xml.Linea("<condiciones>");
    for (size_t s = 0; s < porGrupo; ++s)
        if (EnVigor(r.condiciones[base + s]))
            xml.Linea("<aciertos bloque='{}' valores='{}' />", s + 1, TextoLista(r.condiciones[base + s]));
    xml.Linea("</condiciones>");
    xml.Linea("</grupo>");
}

void GenerarGRUPOSRELACIONADOS(TextoXML& xml, const Condiciones& c) {
    const RegistroGRUPOSRELACIONADOS& r = c.GRUPOSRELACIONADOS;
    constexpr size_t porGrupo = RegistroGRUPOSRELACIONADOS::PorGrupo;
    for (size_t g = 0; g < RegistroGRUPOSRELACIONADOS::Grupos; ++g) {
        const auto desde = r.subgrupos.begin() + static_cast<std::ptrdiff_t>(g * porGrupo);
        if (std::any_of(desde, desde + porGrupo, EnVigor<MarcasNumeros>)) GenerarGrupoRelacionado(xml, r, g);
    }
}

void GenerarHOMOLOGOS(TextoXML& xml, const Condiciones& c) {
    Lista(xml, "HomologosAcertados", c.HOMOLOGOS.HomologosAcertados, 1);
}

void GenerarPARESIMPARES(TextoXML& xml, const Condiciones& c) {
    Lista(xml, "ParesActivos", c.PARESIMPARES.ParesActivos);
}

void GenerarSEGUIDOS(TextoXML& xml, const Condiciones& c) {
    Lista(xml, "NumerosSeguidos", c.SEGUIDOS.NumerosSeguidos, 1);
    Figuras(xml, "FigurasSeguidos", c.SEGUIDOS.FigurasSeguidos);
}

void GenerarSUMAS(TextoXML& xml, const Condiciones& c) {
    GenerarIntervalos(xml, "intervalos", "suma", c.SUMAS.intervalos);
}

void GenerarTERMINACIONES(TextoXML& xml, const Condiciones& c) {
    const RegistroTERMINACIONES& r = c.TERMINACIONES;
    for (size_t d = 0; d < r.TerminadosEn.size(); ++d)
        xml.Linea("<TerminadosEn id='{}' valores='{}' />", d, TextoLista(r.TerminadosEn[d]));
    xml.Linea("<SumaTerminaciones suma='{}-{}'/>", r.SumaMinima, r.SumaMaxima);
    Figuras(xml, "FigurasTerminaciones", r.FigurasTerminaciones);
}

void GenerarPOSICIONES(TextoXML& xml, const Condiciones& c) {
    for (size_t b = 0; b < c.POSICIONES.Bola.size(); ++b)
        xml.Linea("<Bola id='{}' valores='{}' />", b + 1, TextoLista(c.POSICIONES.Bola[b], 1));
}

void GenerarEXTERIORESINTERIORES(TextoXML& xml, const Condiciones& c) {
    Lista(xml, "ExterioresInterioresActivos", c.EXTERIORESINTERIORES.ExterioresInterioresActivos);
}

void GenerarSUPERIORESINFERIORES(TextoXML& xml, const Condiciones& c) {
    Lista(xml, "SuperioresInferioresActivos", c.SUPERIORESINFERIORES.SuperioresInferioresActivos);
}

void GenerarCOLINDANTES(TextoXML& xml, const Condiciones& c) {
    Lista(xml, "ColindantesAcertados", c.COLINDANTES.ColindantesAcertados);
}

void GenerarSORTEOSANTERIORES(TextoXML& xml, const Condiciones& c) {
    for (size_t g = 0; g < c.SORTEOSANTERIORES.grupo.size(); ++g) {
        const BloqueSorteos& bloque = c.SORTEOSANTERIORES.grupo[g];
        if (!EnVigor(bloque.acertarEN)) continue;
        xml.Linea("<grupo numero='{}'>", g + 1);
        xml.Linea("<sorteoDESDE numero='{}' anio='{}'/>", bloque.DESDE.numero, bloque.DESDE.anio);
        xml.Linea("<sorteoHASTA numero='{}' anio='{}'/>", bloque.HASTA.numero, bloque.HASTA.anio);
        xml.Linea("<sorteoDIAS valor='{}'/>", bloque.sorteoDIAS);
        xml.Linea("<aciertosMinimoSORTEOS valor='{}' />", bloque.aciertosMinimoSORTEOS);
        xml.Linea("<aciertosMaximoSORTEOS valor='{}' />", bloque.aciertosMaximoSORTEOS);
        Lista(xml, "acertarEN", bloque.acertarEN);
        xml.Linea("</grupo>");
    }
}

void GenerarSUMASPORTRIOS(TextoXML& xml, const Condiciones& c) {
    GenerarIntervalos(xml, "intervalosT1", "suma", c.SUMASPORTRIOS.intervalosT1);
    GenerarIntervalos(xml, "intervalosT2", "suma", c.SUMASPORTRIOS.intervalosT2);
}

void GenerarVALORACIONES(TextoXML& xml, const Condiciones& c) {
    for (size_t g = 0; g < c.VALORACIONES.grupo.size(); ++g) {
        const GrupoValoraciones& grupo = c.VALORACIONES.grupo[g];
        if (std::none_of(grupo.intervalos.begin(), grupo.intervalos.end(),
                         [](const Intervalo& i) { return i.EnUso(); }))
            continue;
        xml.Linea("<grupo numero='{}'>", g + 1);
        GenerarIntervalos(xml, "intervalos", "valores", grupo.intervalos);
        xml.Linea("<valoraciones valores='{}'/>", TextoValores(grupo.valoraciones, 1));
        xml.Linea("</grupo>");
    }
}

void GenerarCOEFICIENTERENTABILIDAD(TextoXML& xml, const Condiciones& c) {
    const RegistroCOEFICIENTERENTABILIDAD& r = c.COEFICIENTERENTABILIDAD;
    xml.Linea("<PorcentajesApostados valores='{}'/>", TextoValores(r.PorcentajesApostados, 1));
    xml.Linea("<PorcentajesReales valores='{}'/>", TextoValores(r.PorcentajesReales, 1));
    Lista(xml, "RangosCR", r.RangosCR);
}

void GenerarGRUPOSENTRELIMITES(TextoXML& xml, const Condiciones& c) {
    const RegistroGRUPOSENTRELIMITES& r = c.GRUPOSENTRELIMITES;
    for (size_t g = 0; g < r.grupo.size(); ++g) {
        if (!EnVigor(r.grupo[g].aciertos)) continue;
        xml.Linea("<grupo numero='{}'>", g + 1);
        Lista(xml, "numeros", r.grupo[g].numeros, 1);
        Lista(xml, "aciertos", r.grupo[g].aciertos);
        xml.Linea("</grupo>");
    }
    xml.Linea("<aciertosMinimoGRUPOSENTRELIMITES valor='{}' />", r.aciertosMinimoGRUPOSENTRELIMITES);
    xml.Linea("<aciertosMaximoGRUPOSENTRELIMITES valor='{}' />", r.aciertosMaximoGRUPOSENTRELIMITES);
}

// In row order.
constexpr std::array<void (*)(TextoXML&, const Condiciones&), NFiltros> Contenidos{GenerarALTOSBAJOS,
                                                                                   GenerarDECENAS,
                                                                                   GenerarDISTANCIAS,
                                                                                   GenerarGRUPOS,
                                                                                   GenerarGRUPOSRELACIONADOS,
                                                                                   GenerarHOMOLOGOS,
                                                                                   GenerarPARESIMPARES,
                                                                                   GenerarSEGUIDOS,
                                                                                   GenerarSUMAS,
                                                                                   GenerarTERMINACIONES,
                                                                                   GenerarPOSICIONES,
                                                                                   GenerarEXTERIORESINTERIORES,
                                                                                   GenerarSUPERIORESINFERIORES,
                                                                                   GenerarCOLINDANTES,
                                                                                   GenerarSORTEOSANTERIORES,
                                                                                   GenerarSUMASPORTRIOS,
                                                                                   GenerarVALORACIONES,
                                                                                   GenerarCOEFICIENTERENTABILIDAD,
                                                                                   GenerarGRUPOSENTRELIMITES};

} // namespace

void GenerarFiltros(TextoXML& xml, const Condiciones& condiciones) {
    for (size_t k = 0; k < NFiltros; ++k) {
        xml.Linea("<Filtro nombre='{}' activado='{}'>", TablaFiltros[k].nombre,
                  condiciones.lstFiltros[k].Activo ? 1 : 0);
        Contenidos[k](xml, condiciones);
        xml.Linea("</Filtro>");
    }
}
