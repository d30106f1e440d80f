#include "AyudaVentanas.h"

#include <algorithm>
#include <array>

namespace {

constexpr std::array Capitulos{
    CapituloVentana{"frmPrincipal", "boleto", ""},
    CapituloVentana{"frmAlazar", "boleto", "al-azar"},
    CapituloVentana{"frmAciertos", "condiciones", "aciertos"},
    CapituloVentana{"frmFiltroALTOSBAJOS", "condiciones", "bajos-y-altos"},
    CapituloVentana{"frmFiltroDECENAS", "condiciones", "decenas"},
    CapituloVentana{"frmFiltroDISTANCIAS", "condiciones", "distancias"},
    CapituloVentana{"frmFiltroGRUPOS", "condiciones", "grupos-de-numeros"},
    CapituloVentana{"frmFiltroGRURELACIONADOS", "condiciones", "grupos-relacionados"},
    CapituloVentana{"frmFiltroHOMOLOGOS", "condiciones", "homologos"},
    CapituloVentana{"frmFiltroPARESIMPARES", "condiciones", "pares-e-impares"},
    CapituloVentana{"frmFiltroSEGUIDOS", "condiciones", "seguidos"},
    CapituloVentana{"frmFiltroSUMAS", "condiciones", "sumas"},
    CapituloVentana{"frmFiltroTERMINACIONES", "condiciones", "terminaciones"},
    CapituloVentana{"frmFiltroPOSICIONES", "condiciones", "posiciones"},
    CapituloVentana{"frmFiltroEXTERIORES", "condiciones", "exteriores-interiores"},
    CapituloVentana{"frmFiltroSUPERIORES", "condiciones", "superiores-inferiores"},
    CapituloVentana{"frmFiltroCOLINDANTES", "condiciones", "colindantes"},
    CapituloVentana{"frmFiltroSORTEOSANTERIORES", "condiciones", "sorteos-anteriores"},
    CapituloVentana{"frmFiltroSUMASPORTRIOS", "condiciones", "sumas-por-trios"},
    CapituloVentana{"frmFiltroVALORACIONES", "condiciones", "valoraciones"},
    CapituloVentana{"frmFiltroCR", "condiciones", "coeficiente"},
    CapituloVentana{"frmFiltroGRUPOSENTRELIMITES", "condiciones", "grupos-entre-limites"},
    CapituloVentana{"frmReduccion", "calculo", "reduccion"},
    CapituloVentana{"frmVentanaProceso", "calculo", "proceso"},
    CapituloVentana{"frmAnalisis", "informes", "analisis"},
    CapituloVentana{"frmInforme", "informes", "informes"},
    CapituloVentana{"frmEstadisticas", "estadisticas", ""},
    CapituloVentana{"frmGarantiasTOTAL", "garantias", ""},
    CapituloVentana{"frmEscrutar", "escrutinio", "escrutar"},
    CapituloVentana{"frmCalculadoraPremios", "escrutinio", "calculadora"},
    CapituloVentana{"frmMultiEscrutinioEstadistico", "multiescrutinio", "estadistico"},
    CapituloVentana{"frmMultiEscrutinioMultiFichero", "multiescrutinio", "multifichero"},
    CapituloVentana{"frmAlgebra", "herramientas", "algebra"},
    CapituloVentana{"frmCoeficienteRentabilidad", "herramientas", "rentabilidad"},
    CapituloVentana{"frmGeneradorApuestas", "generadores", "por-numeros"},
    CapituloVentana{"frmGeneradorApuestasXPorcentaje", "generadores", "por-porcentajes"},
    CapituloVentana{"frmSistemasPropios", "generadores", "sistemas-propios"},
    CapituloVentana{"frmVisualizar", "generadores", "visor"},
    CapituloVentana{"frmAcercaDe", "index", ""},
    CapituloVentana{"caja", "mensajes", ""},
};

} // namespace

std::span<const CapituloVentana> CapitulosDeVentanas() {
    return Capitulos;
}

// Openers of local files drop what stands behind "#", so each section has a page that leads to it.
std::string PaginaDeVentana(std::string_view ventana) {
    const auto* fila = std::find_if(Capitulos.begin(), Capitulos.end(),
                                    [&](const CapituloVentana& c) { return c.Ventana == ventana; });
    if (fila == Capitulos.end()) return {};
    std::string pagina(fila->Capitulo);
    if (!fila->Ancla.empty()) pagina.append(".").append(fila->Ancla);
    return pagina + ".html";
}

bool AbrirAyuda(Entorno& entorno, const std::string& direccion) {
    if (!direccion.empty() && entorno.AbrirDireccion(direccion)) return true;
    return Fallo(entorno, "ERROR: FICHERO DE AYUDA NO ENCONTRADO O ERRONEO");
}

bool AbrirManual(Entorno& entorno, const std::string& pagina) {
    std::string direccion = entorno.Manual;
    if (!direccion.empty() && !pagina.empty())
        direccion.replace(direccion.find_last_of('/') + 1, std::string::npos, pagina);
    return AbrirAyuda(entorno, direccion);
}
