#include "Escenario.h"

#include <cstring>
#include <stdexcept>

#include <hwy/targets.h>

#include "Boleto.h"
#include "CalcularSistema.h"
#include "CasosBloques.h"
#include "CondicionesEjemplo.h"
#include "GenerarApuestas.h"
#include "Lectura.h"
#include "Sesiones.h"
#include "Supervivientes.h"
#include "TablaFiltros.h"

namespace {

int64_t Bytes(const Tabla& tabla) {
    int64_t suma = 0;
    for (int r = 1; r <= tabla.Filas(); ++r)
        suma += static_cast<int64_t>(SumarBytes(tabla.Fila(r), tabla.Apuestas())) * r;
    return suma;
}

} // namespace

Escenario::Escenario() {
    IniciarSesion(sesion_, entorno_);
    sesion_.trabajo.lblNumero.fill(true);
    sesion_.trabajo.lblReintegro[3] = true;
    ActualizarContadores(sesion_.trabajo);
    LeerBase(sesion_.trabajo);
    ElegirCondicionesEjemplo(sesion_.condiciones);
    sesion_.trabajo.ApuestasEnTabla = ApuestasMaximas;
    GenerarApuestas(sesion_.trabajo, entorno_, 6, 6);
    ReponerApuestas();
    Anotar(
        "expansión", 2, [this] { sesion_.trabajo.TablaApuestas.Vaciar(); },
        [this] {
            GenerarApuestas(sesion_.trabajo, entorno_, 6, 6);
            return sesion_.trabajo.TablaApuestas.Apuestas();
        });
    trabajos_.back().patron = Patron::MemoriaFresca;
    AnotarFiltros();
    AnotarFiltrosDeBloques();
    AnotarTraslados();
    AnotarNumeracion();
}

// The expected answer is that of the scalar twins.
void Escenario::Anotar(std::string nombre, double permitido, std::function<void()> preparar,
                       std::function<int64_t()> hacer) {
    hwy::SetSupportedTargetsForTest(HWY_SCALAR);
    preparar();
    const int64_t esperado = hacer();
    hwy::SetSupportedTargetsForTest(0);
    trabajos_.push_back(
        {std::move(nombre), Patron::Lectura, permitido, std::move(preparar), std::move(hacer), esperado});
}

void Escenario::AnotarFiltros() {
    const auto reponer = [this] { ReponerApuestas(); };
    const auto anotar = [&](int k, double permitido) {
        const DescripcionFiltro& filtro = TablaFiltros[static_cast<size_t>(k)];
        Anotar(std::string(filtro.nombre), permitido, reponer,
               [this, &filtro] { return int64_t{filtro.Filtrar(sesion_, entorno_)}; });
    };
    for (const int k : {kALTOSBAJOS, kPARESIMPARES, kEXTERIORESINTERIORES, kSUPERIORESINFERIORES}) anotar(k, 2.5);
    for (const int k : {kSUMAS, kSUMASPORTRIOS, kDISTANCIAS, kHOMOLOGOS, kDECENAS, kSEGUIDOS, kTERMINACIONES})
        anotar(k, 4);
    anotar(kCOLINDANTES, 5);
}

void Escenario::AnotarFiltrosDeBloques() {
    for (const CasoBloques& caso : CasosBloques())
        Anotar(
            caso.nombre, caso.permitido,
            [this, &caso] {
                caso.elegir(sesion_.condiciones);
                ReponerApuestas();
            },
            [this, &caso] { return int64_t{TablaFiltros[caso.k].Filtrar(sesion_, entorno_)}; });
}

void Escenario::AnotarTraslados() {
    Anotar(
        "copia de supervivientes (80 %)", 12, [this] { EliminarUnaDeCinco(); },
        [this] {
            CopiarSupervivientes(sesion_.trabajo);
            return sesion_.trabajo.ApuestasCondicionadas.Apuestas();
        });
    Anotar(
        "de las marcas al sistema, cuatro filtros", 30,
        [this] {
            Condicionar({kALTOSBAJOS, kDECENAS, kSEGUIDOS, kSUMAS});
        },
        [this] {
            if (!CalcularSistema(sesion_, entorno_)) throw std::runtime_error("CalcularSistema failed");
            return int64_t{sesion_.trabajo.Contador.Reducidas};
        });
}

void Escenario::ReponerApuestas() {
    PrepararEliminadas(sesion_.trabajo);
}

void Escenario::EliminarUnaDeCinco() {
    EstadoTrabajo& trabajo = sesion_.trabajo;
    ReponerApuestas();
    uint8_t* eliminada = trabajo.ApuestaEliminada.Fila(1);
    uint32_t azar = 1;
    int32_t quedan = 0;
    for (int32_t i = 0; i < trabajo.ApuestasEnTabla; ++i) {
        azar = azar * 1664525u + 1013904223u;
        eliminada[i] = azar >> 16 < 65536 / 5;
        quedan += eliminada[i] == 0;
    }
    trabajo.Contador.Condicionadas = quedan;
}

void Escenario::Condicionar(const std::vector<int>& filtros) {
    for (FilaFiltro& fila : sesion_.condiciones.lstFiltros) fila.Activo = false;
    for (const int k : filtros) sesion_.condiciones.lstFiltros[static_cast<size_t>(k)].Activo = true;
}

int64_t Escenario::LeerTabla() const {
    return Bytes(sesion_.trabajo.TablaApuestas);
}

int64_t Escenario::LlenarMemoriaFresca() {
    fresca_.DimensionarSinLimpiar(6, ApuestasMaximas);
    for (int r = 1; r <= 6; ++r) std::memset(fresca_.Fila(r), r, ApuestasMaximas);
    return fresca_(6, ApuestasMaximas);
}
