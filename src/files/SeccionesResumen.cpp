#include <algorithm>
#include <array>

#include "Figuras.h"
#include "TablaFiltros.h"
#include "TextoInforme.h"
#include "modGeneral.h"

namespace {

// By count of numbers of the first class.
constexpr std::array<std::string_view, 7> Repartos{"0-6", "1-5", "2-4", "3-3", "4-2", "5-1", "6-0"};

// The labels of the set flags, joined by ",". Label `primero` is that of the first flag.
template <class Marcas, class Rotulos>
std::string TextoRotulos(const Marcas& marcas, const Rotulos& rotulos, size_t primero = 0) {
    std::string lista;
    for (size_t i = 0; i < marcas.size(); ++i)
        if (marcas[i] == 1) lista += (lista.empty() ? "" : ",") + std::string(rotulos[primero + i]);
    return lista;
}

// Positions of the bet, from 1.
std::string TextoPosiciones(const std::array<uint8_t, 6>& posiciones) {
    std::array<uint8_t, 7> desdeUno{};
    std::copy(posiciones.begin(), posiciones.end(), desdeUno.begin() + 1);
    return TextoLista(desdeUno, 1);
}

template <class Intervalos>
void LineasIntervalos(TextoInforme& t, std::string_view rotulo, const Intervalos& intervalos) {
    for (size_t i = 0; i < intervalos.size(); ++i)
        t.Linea("Intervalo {}({}): {}-{}", i + 1, rotulo, intervalos[i].Minimo, intervalos[i].Maximo);
}

// No figure chosen, no line.
template <class Figuras>
bool LineaFiguras(TextoInforme& t, const Figuras& figuras, size_t primera = 0) {
    if (!EnVigor(figuras)) return false;
    t.Linea("Figuras jugadas: {}", TextoRotulos(figuras, NombresFiguras, primera));
    return true;
}

void SeccionALTOSBAJOS(TextoInforme& t, const Condiciones& c) {
    t.Linea("Números 01 al 24: {}", TextoLista(c.ALTOSBAJOS.Bajos));
    t.Linea("Números 25 al 49: {}", TextoLista(c.ALTOSBAJOS.Altos));
}

// Here and in SEGUIDOS the empty line at the end belongs to the figures, and goes with them.
void SeccionDECENAS(TextoInforme& t, const Condiciones& c) {
    static constexpr std::array Decenas{"01 al 09", "10 al 19", "20 al 29", "30 al 39", "40 al 49"};
    for (size_t i = 0; i < Decenas.size(); ++i)
        t.Linea("Decena del {}: {}", Decenas[i], TextoLista(c.DECENAS.Decena[i]));
    if (LineaFiguras(t, c.DECENAS.FigurasDecenas)) t.Linea();
}

void SeccionDISTANCIAS(TextoInforme& t, const Condiciones& c) {
    static constexpr std::array Pares{"entre números 1 y 2", "entre números 2 y 3", "entre números 3 y 4",
                                      "entre números 4 y 5", "entre números 5 y 6", "general números del 1 al 6"};
    for (size_t i = 0; i < Pares.size(); ++i)
        t.Linea("Distancia {}(Mín-Máx): {}-{}", Pares[i], c.DISTANCIAS.Distancia[i].Minimo,
                c.DISTANCIAS.Distancia[i].Maximo);
}

void LineasGrupo(TextoInforme& t, size_t g, const MarcasNumeros& numeros, const TablaAciertos& aciertos) {
    t.Linea("Grupo {}", g + 1);
    t.Linea("Números en el grupo: {}", TextoLista(numeros, 1));
    t.Linea("Aciertos en el grupo: {}", TextoLista(aciertos));
}

void SeccionGRUPOS(TextoInforme& t, const Condiciones& c) {
    for (size_t g = 0; g < c.GRUPOS.grupo.size(); ++g) {
        const GrupoNumeros& grupo = c.GRUPOS.grupo[g];
        if (!EnVigor(grupo.aciertos)) continue;
        LineasGrupo(t, g, grupo.numeros, grupo.aciertos);
        t.Linea("Posiciones en el grupo: {}", TextoPosiciones(grupo.posiciones));
    }
}

void SeccionGRUPOSRELACIONADOS(TextoInforme& t, const Condiciones& c) {
    constexpr size_t porGrupo = RegistroGRUPOSRELACIONADOS::PorGrupo;
    for (size_t g = 0; g < RegistroGRUPOSRELACIONADOS::Grupos; ++g) {
        const MarcasNumeros* subgrupos = &c.GRUPOSRELACIONADOS.subgrupos[g * porGrupo];
        const TablaAciertos* condiciones = &c.GRUPOSRELACIONADOS.condiciones[g * porGrupo];
        if (std::none_of(subgrupos, subgrupos + porGrupo, EnVigor<MarcasNumeros>)) continue;
        t.Linea("GRUPO {}", g + 1);
        for (size_t s = 0; s < porGrupo; ++s) {
            std::string numeros = TextoLista(subgrupos[s], 1);
            std::replace(numeros.begin(), numeros.end(), ',', ' ');
            if (!numeros.empty()) t.Linea("Números en Subgrupo {}: {}", s + 1, numeros);
        }
        for (size_t s = 0; s < porGrupo; ++s)
            if (EnVigor(condiciones[s])) t.Linea("Aciertos en algún Subgrupo: {}", TextoLista(condiciones[s]));
    }
}

void SeccionHOMOLOGOS(TextoInforme& t, const Condiciones& c) {
    t.Linea("Homólogos acertados: {}", TextoLista(c.HOMOLOGOS.HomologosAcertados));
}

void SeccionPARESIMPARES(TextoInforme& t, const Condiciones& c) {
    t.Linea("Números jugados (Pares-Impares): {}", TextoRotulos(c.PARESIMPARES.ParesActivos, Repartos));
}

void SeccionSEGUIDOS(TextoInforme& t, const Condiciones& c) {
    t.Linea("Números Seguidos: {}", TextoLista(c.SEGUIDOS.NumerosSeguidos));
    if (LineaFiguras(t, c.SEGUIDOS.FigurasSeguidos)) t.Linea();
}

void SeccionSUMAS(TextoInforme& t, const Condiciones& c) {
    LineasIntervalos(t, "Suma Mín-Máx", c.SUMAS.intervalos);
}

void SeccionTERMINACIONES(TextoInforme& t, const Condiciones& c) {
    const RegistroTERMINACIONES& r = c.TERMINACIONES;
    for (size_t d = 0; d < r.TerminadosEn.size(); ++d)
        if (EnVigor(r.TerminadosEn[d])) t.Linea("Terminados en {}: {}", d, TextoLista(r.TerminadosEn[d]));
    LineaFiguras(t, r.FigurasTerminaciones, PrimeraFiguraTERMINACIONES);
    t.Linea("Suma de Terminaciones: {}-{}", r.SumaMinima, r.SumaMaxima);
}

void SeccionPOSICIONES(TextoInforme& t, const Condiciones& c) {
    t.Linea("Números seleccionados en cada bola:");
    for (size_t b = 0; b < c.POSICIONES.Bola.size(); ++b) {
        const std::string numeros = TextoLista(c.POSICIONES.Bola[b], 1);
        t.Linea("BOLA {}: {}", b + 1, numeros.empty() ? "-" : numeros);
    }
}

void SeccionEXTERIORESINTERIORES(TextoInforme& t, const Condiciones& c) {
    t.Linea("Números jugados (Exteriores-Interiores): {}",
            TextoRotulos(c.EXTERIORESINTERIORES.ExterioresInterioresActivos, Repartos));
}

void SeccionSUPERIORESINFERIORES(TextoInforme& t, const Condiciones& c) {
    t.Linea("Números jugados (Superiores-Inferiores): {}",
            TextoRotulos(c.SUPERIORESINFERIORES.SuperioresInferioresActivos, Repartos));
}

void SeccionCOLINDANTES(TextoInforme& t, const Condiciones& c) {
    t.Linea("Colindantes acertados: {}", TextoLista(c.COLINDANTES.ColindantesAcertados));
}

// Any day but Thursday is told as Saturday, and Thursday is code 1 here: the text is a fixed one of the
// report, not the name that the day has in its list.
std::string_view TextoDias(int16_t dias) {
    return dias == 0 ? "Todos" : dias == 1 ? "Jueves" : "Sábado";
}

void SeccionSORTEOSANTERIORES(TextoInforme& t, const Condiciones& c) {
    for (size_t g = 0; g < c.SORTEOSANTERIORES.grupo.size(); ++g) {
        const BloqueSorteos& bloque = c.SORTEOSANTERIORES.grupo[g];
        if (!EnVigor(bloque.acertarEN)) continue;
        t.Linea("GRUPO {}", g + 1);
        t.Linea("Desde el sorteo {} de {} hasta el sorteo {} de {}", bloque.DESDE.numero, bloque.DESDE.anio,
                bloque.HASTA.numero, bloque.HASTA.anio);
        t.Linea("En los días : {}", TextoDias(bloque.sorteoDIAS));
        t.Linea("En Mínimo {} Sorteos y Máximo {} Sorteos", bloque.aciertosMinimoSORTEOS, bloque.aciertosMaximoSORTEOS);
        t.Linea("Se han de acertar : {}", TextoLista(bloque.acertarEN));
    }
}

void SeccionSUMASPORTRIOS(TextoInforme& t, const Condiciones& c) {
    t.Linea("Tres Primeros Números:");
    LineasIntervalos(t, "Suma Mín-Máx", c.SUMASPORTRIOS.intervalosT1);
    t.Linea("Tres Ultimos Números:");
    LineasIntervalos(t, "Suma Mín-Máx", c.SUMASPORTRIOS.intervalosT2);
}

void SeccionVALORACIONES(TextoInforme& t, const Condiciones& c) {
    for (size_t g = 0; g < c.VALORACIONES.grupo.size(); ++g) {
        const GrupoValoraciones& grupo = c.VALORACIONES.grupo[g];
        if (std::none_of(grupo.intervalos.begin(), grupo.intervalos.end(),
                         [](const Intervalo& i) { return i.EnUso(); }))
            continue;
        t.Linea("Grupo {}", g + 1);
        LineasIntervalos(t, "Mín-Máx", grupo.intervalos);
        t.Linea("Valoraciones:");
        LineasBoleto(t, "    ", [&](int n) {
            const int16_t valor = grupo.valoraciones[static_cast<size_t>(n)];
            return valor == 0 ? " ---" : fmt::format(" {:>3}", valor);
        });
    }
}

// As wide as the widest value, so that the columns stay aligned.
void LineasPorcentajes(TextoInforme& t, const std::array<double, 50>& porcentajes) {
    const auto texto = [&](int n) {
        const double valor = porcentajes[static_cast<size_t>(n)];
        return valor == 0 ? "-----" : TextoDecimal(valor, t.Decimal);
    };
    size_t ancho = 5;
    for (int n = 1; n <= NumeroMaximoBoleto; ++n) ancho = std::max(ancho, texto(n).size());
    LineasBoleto(t, std::string(ancho + 1, ' '), [&](int n) { return fmt::format(" {:>{}}", texto(n), ancho); });
}

void SeccionCOEFICIENTERENTABILIDAD(TextoInforme& t, const Condiciones& c) {
    const RegistroCOEFICIENTERENTABILIDAD& r = c.COEFICIENTERENTABILIDAD;
    t.Linea("Porcentajes Probabilidad Apostada:");
    LineasPorcentajes(t, r.PorcentajesApostados);
    t.Linea("Porcentajes Probabilidad Real:");
    LineasPorcentajes(t, r.PorcentajesReales);
    std::string rangos;
    for (size_t i = 0; i < 100; ++i)
        if (r.RangosCR[i] == 1) rangos += fmt::format("{}{}{}{}", rangos.empty() ? "" : " ", i / 10, t.Decimal, i % 10);
    t.Linea("CR seleccionados : {}", rangos);
}

void SeccionGRUPOSENTRELIMITES(TextoInforme& t, const Condiciones& c) {
    const RegistroGRUPOSENTRELIMITES& r = c.GRUPOSENTRELIMITES;
    for (size_t g = 0; g < r.grupo.size(); ++g)
        if (EnVigor(r.grupo[g].aciertos)) LineasGrupo(t, g, r.grupo[g].numeros, r.grupo[g].aciertos);
    t.Linea("Límites de Grupos Acertados: {} - {}", r.aciertosMinimoGRUPOSENTRELIMITES,
            r.aciertosMaximoGRUPOSENTRELIMITES);
}

struct Seccion {
    void (*Escribir)(TextoInforme&, const Condiciones&);
    bool LineaFinal = true; ///< an empty line follows
};

// In row order.
constexpr std::array<Seccion, NFiltros> Secciones{{{SeccionALTOSBAJOS},
                                                   {SeccionDECENAS, false},
                                                   {SeccionDISTANCIAS},
                                                   {SeccionGRUPOS},
                                                   {SeccionGRUPOSRELACIONADOS},
                                                   {SeccionHOMOLOGOS},
                                                   {SeccionPARESIMPARES},
                                                   {SeccionSEGUIDOS, false},
                                                   {SeccionSUMAS},
                                                   {SeccionTERMINACIONES},
                                                   {SeccionPOSICIONES},
                                                   {SeccionEXTERIORESINTERIORES},
                                                   {SeccionSUPERIORESINFERIORES},
                                                   {SeccionCOLINDANTES},
                                                   {SeccionSORTEOSANTERIORES},
                                                   {SeccionSUMASPORTRIOS},
                                                   {SeccionVALORACIONES},
                                                   {SeccionCOEFICIENTERENTABILIDAD},
                                                   {SeccionGRUPOSENTRELIMITES}}};

} // namespace

void EscribirSecciones(TextoInforme& informe, const Condiciones& condiciones) {
    for (size_t k = 0; k < NFiltros; ++k) {
        if (!condiciones.lstFiltros[k].Activo) continue;
        informe.Linea("{}", TablaFiltros[k].Resumen);
        Secciones[k].Escribir(informe, condiciones);
        if (Secciones[k].LineaFinal) informe.Linea();
    }
}
