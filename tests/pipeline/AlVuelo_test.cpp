// The counts on the fly against the calculation itself.
#include <gtest/gtest.h>

#include "AlVuelo.h"
#include "Condicionar.h"
#include "DadosFiltros.h"
#include "Guion.h"
#include "ImportarCombinacion.h"
#include "TablaFiltros.h"

namespace {

// Conditions that overlap, some of them off.
void Sortear(Dados& dados, Condiciones& c) {
    dados.LlenarIntervalos(c.SUMAS.intervalos, 30, 120);
    dados.LlenarIntervalos(c.DISTANCIAS.Distancia, 1, 12);
    dados.Llenar(c.PARESIMPARES.ParesActivos);
    dados.Llenar(c.ALTOSBAJOS.Bajos);
    dados.Llenar(c.COLINDANTES.ColindantesAcertados);
    for (const int k : {kSUMAS, kDISTANCIAS, kPARESIMPARES, kALTOSBAJOS, kCOLINDANTES})
        c.lstFiltros[static_cast<size_t>(k)].Activo = !dados.UnaDe(3);
}

// What a whole conditioning of the same base eliminates.
int32_t Eliminadas(const Sesion& sesion) {
    Entorno entorno;
    const auto aparte = ApartarBase(sesion);
    ExpandirBase(*aparte, entorno);
    for (size_t k = 0; k < NFiltros; ++k)
        if (!DisponibleEnJuego(static_cast<int>(k), aparte->trabajo)) aparte->condiciones.lstFiltros[k].Activo = false;
    return Condicionar(*aparte, entorno);
}

void Comprobar(Sesion& sesion) {
    Entorno entorno;
    const auto aparte = ApartarBase(sesion);
    ExpandirBase(*aparte, entorno);
    CuentaAlVuelo cuenta = ContarAlVuelo(*aparte, entorno);
    CostearInactivas(*aparte, entorno, cuenta);
    const int32_t todas = Eliminadas(sesion);
    EXPECT_EQ(cuenta.Total - cuenta.Pasan, todas);
    auto& filas = sesion.condiciones.lstFiltros;
    const auto antes = filas;
    for (size_t k = 0; k < NFiltros; ++k) {
        SCOPED_TRACE(TablaFiltros[k].nombre);
        const bool existe = DisponibleEnJuego(static_cast<int>(k), sesion.trabajo);
        ASSERT_EQ(cuenta.Costes[k].has_value(), existe);
        if (!existe) continue;
        filas[k].Activo = false;
        const int32_t sinElla = Eliminadas(sesion);
        for (FilaFiltro& fila : filas) fila.Activo = false;
        filas[k].Activo = true;
        EXPECT_EQ(cuenta.Costes[k]->Sola, Eliminadas(sesion));
        filas = antes;
        const auto propia = filas[k].Activo ? std::optional(todas - sinElla) : std::nullopt;
        EXPECT_EQ(cuenta.Costes[k]->Propia, propia);
        Tabla conOtras;
        EliminarConOtras(*aparte, entorno, static_cast<int>(k), conOtras);
        filas[k].Activo = true;
        EXPECT_EQ(cuenta.Total - PasanTambien(*aparte, entorno, static_cast<int>(k), conOtras), Eliminadas(sesion));
        filas = antes;
    }
}

} // namespace

TEST(AlVuelo, CuentaLoQueElCalculo) {
    Dados dados;
    for (int vez = 0; vez < 40; ++vez) {
        SCOPED_TRACE(vez);
        Guion guion;
        guion.sesion.trabajo.cboTipoJuego = vez % 3;
        guion.MarcarHasta(dados.Entre(4, 15));
        Sortear(dados, guion.sesion.condiciones);
        Comprobar(guion.sesion);
    }
}

TEST(AlVuelo, CuentaLasImportadasSinSuDigito) {
    const CarpetaTemporal carpeta;
    Dados dados;
    std::string texto;
    for (int i = 0; i < 5000; ++i) {
        const int primero = dados.Entre(1, 24), paso = dados.Entre(1, 5);
        for (int j = 0; j < 6; ++j) texto += std::to_string(100 + primero + j * paso).substr(1);
        texto += "\r\n";
    }
    EscribirTodo(carpeta.Ruta("a.txt"), texto);
    Guion guion;
    guion.sesion.trabajo.chkReintegros = false;
    guion.sesion.trabajo.cboTipoCombinacion = PronosticoDesdeArchivo;
    ASSERT_TRUE(ImportarFichero(carpeta.Ruta("a.txt"), guion.sesion, guion.entorno));
    Sortear(dados, guion.sesion.condiciones);
    Comprobar(guion.sesion);
}
