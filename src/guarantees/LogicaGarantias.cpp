#include "LogicaGarantias.h"

#include <algorithm>
#include <exception>
#include <filesystem>
#include <new>

#include "Informes.h"
#include "MedirGarantias.h"
#include "Supervivientes.h"
#include "modGeneral.h"
#include "modMiniGarantias.h"

namespace {

constexpr std::array<const char*, 3> Medidas{"Garantías sobre el SISTEMA TOTAL", "Garantías sobre el SISTEMA IMPORTADO",
                                             "Garantías sobre el SISTEMA CONDICIONADO"};

std::string NombreInforme(int aciertos) {
    return "TOMBOLERA_GARANTIAS_si" + std::to_string(aciertos) + ".txt";
}

// An imported system that has not been calculated yet is its own conditioned system.
bool SinCalcular(const EstadoTrabajo& trabajo) {
    return trabajo.cboTipoCombinacion == PronosticoDesdeArchivo && trabajo.ApuestasCondicionadas.Apuestas() == 0;
}

} // namespace

std::string LogicaGarantias::TextoAciertos(int indice) {
    return indice == TodasLasGarantias ? "Todas" : "si " + std::to_string(indice) + " Aciertos";
}

int64_t LogicaGarantias::Candidatas() const {
    const EstadoTrabajo& trabajo = sesion.trabajo;
    const Tabla& tabla = SinCalcular(trabajo) ? trabajo.ApuestasImportadas : trabajo.ApuestasCondicionadas;
    return std::min<int64_t>(trabajo.Contador.Condicionadas, tabla.Apuestas());
}

int64_t LogicaGarantias::Apuestas() const {
    return std::min<int64_t>(sesion.trabajo.Contador.Reducidas, sesion.trabajo.ApuestasReducidas.Apuestas());
}

void LogicaGarantias::Abrir() {
    const EstadoTrabajo& trabajo = sesion.trabajo;
    const bool importado = trabajo.cboTipoCombinacion == PronosticoDesdeArchivo;
    optHabilitado = {true, importado, !importado};
    const auto conApuestas = [this](int64_t n) {
        return " (" + FormatoMiles(n, entorno.SeparadorMiles) + " Apuestas)";
    };
    for (int i = 0; i < 3; ++i) lblTitulo[i] = Medidas[i];
    lblTitulo[SobreElTotal] += conApuestas(Combinaciones(trabajo.NumerosBase, 6));
    lblTitulo[importado ? SobreLoImportado : SobreLoCondicionado] += conApuestas(Candidatas());
    lblTituloApuestas = "Apuestas actuales : " + FormatoMiles(Apuestas(), entorno.SeparadorMiles);
}

void LogicaGarantias::CambiarTipo(int indice) {
    if (!Libre() || indice < 0 || indice > 2 || !optHabilitado[indice]) return;
    optTipoGarantias = indice;
    if (indice != SobreElTotal) cboTipoGarantias = SeisAciertos;
    LimpiarGarantias();
}

void LogicaGarantias::CambiarAciertos(int indice) {
    if (!Libre() || indice < TodasLasGarantias || indice > SeisAciertos || indice == cboTipoGarantias) return;
    cboTipoGarantias = indice;
    LimpiarGarantias();
}

std::array<bool, 7> LogicaGarantias::Visibles() const {
    std::array<bool, 7> visibles;
    for (int c = 0; c < 7; ++c) visibles[c] = c <= 1 || cboTipoGarantias == TodasLasGarantias || c <= cboTipoGarantias;
    return visibles;
}

bool LogicaGarantias::Calcular() {
    return Correr("Calculando garantías y porcentajes ...", [this] {
        if (optTipoGarantias == SobreElTotal && cboTipoGarantias == TodasLasGarantias) return MedirTodas();
        Medir(cboTipoGarantias);
        return true;
    });
}

// A folder that takes none of the six reports is told once.
bool LogicaGarantias::MedirTodas() {
    std::string ruta, fallo, primero;
    for (int k = 1; k <= SeisAciertos; ++k) {
        cboTipoGarantias = k;
        Medir(k);
        if (!EscribirInforme(ruta, fallo) && primero.empty()) primero = fallo;
    }
    cboTipoGarantias = TodasLasGarantias;
    return primero.empty() || FalloAlGenerarInforme(entorno, primero);
}

void LogicaGarantias::Medir(int k) {
    EstadoTrabajo& trabajo = sesion.trabajo;
    LimpiarGarantias();
    const std::vector<Mascara> sistema =
        MascarasDelSistema(trabajo.ApuestasReducidas, Apuestas(), 6, trabajo.BaseNumeros, trabajo.NumerosBase);
    const Turno turno = [this](double fraccion) { return Avanzar(fraccion); };
    const PedidoMedida pedido{sistema, trabajo.NumerosBase, turno};
    int64_t total = Combinaciones(trabajo.NumerosBase, static_cast<int16_t>(k));
    bool hecha = false;
    if (optTipoGarantias == SobreElTotal) {
        trabajo.TablaApuestas.Vaciar();
        hecha = MedirTotal(pedido, k, resultados.tabla);
    } else {
        total = Candidatas();
        if (SinCalcular(trabajo)) TraducirImportadas(trabajo, trabajo, 7);
        hecha = MedirCandidatas(pedido, SinCalcular(trabajo) ? trabajo.TablaApuestas : trabajo.ApuestasCondicionadas,
                                total, resultados.tabla);
    }
    if (hecha)
        resultados.Mostrar(total, k, Visibles());
    else
        AnotarParada();
}

bool LogicaGarantias::GarantiasExtendidas() {
    return Correr("Calculando garantías ...", [this] {
        txtMiniGarantias = MiniGarantias(6, sesion.trabajo, [this](int y, double fraccion) {
            lblEspera = "Calculando garantías (x si " + std::to_string(y) + ") ...";
            return Avanzar(fraccion);
        });
        picVisorMiniGarantias = true;
        return true;
    });
}

bool LogicaGarantias::Correr(const std::string& espera, const std::function<bool()>& tarea) {
    if (!Libre()) return false;
    const ResultadosGarantias antes = resultados;
    const int aciertos = cboTipoGarantias;
    picVentanaGarantias = Corriendo = true;
    lblEspera = espera;
    lblProgressBar = 0;
    detener = false;
    const auto fracasar = [&](const std::string& descripcion) {
        resultados = antes;
        cboTipoGarantias = aciertos;
        return Fallo(entorno, "ERROR: " + descripcion);
    };
    bool bien = false;
    try {
        bien = tarea();
    } catch (const std::bad_alloc&) {
        bien = fracasar("no hay memoria suficiente");
    } catch (const std::exception& error) {
        bien = fracasar(error.what());
    }
    picVentanaGarantias = Corriendo = false;
    return bien;
}

bool LogicaGarantias::Avanzar(double fraccion) {
    lblProgressBar = fraccion;
    entorno.CederTurno();
    return !detener;
}

void LogicaGarantias::Detener() {
    if (!Corriendo) return;
    detener = true;
    AnotarParada();
}

void LogicaGarantias::AnotarParada() {
    if (resultados.txtResumen.empty()) resultados.txtResumen = "Proceso de cálculo de porcentajes/garantías detenido";
}

// The tag is that of the first visible class.
bool LogicaGarantias::EscribirInforme(std::string& ruta, std::string& fallo) const {
    const std::array<bool, 7> visibles = Visibles();
    int clase = 6;
    while (!visibles[clase]) --clase;
    ruta = RutaInforme(entorno, NombreInforme(clase));
    return ::EscribirInforme(ruta, resultados.Informe(visibles), fallo);
}

bool LogicaGarantias::InformeGarantias(int abrir) {
    std::string ruta, fallo;
    if (!EscribirInforme(ruta, fallo)) return FalloAlGenerarInforme(entorno, fallo);
    if (abrir != 1) return true;
    if (cboTipoGarantias != TodasLasGarantias) {
        entorno.VerInforme(ruta);
        return true;
    }
    std::error_code ignorado;
    for (int k = SeisAciertos; k >= 1; --k)
        if (const std::string uno = RutaInforme(entorno, NombreInforme(k)); std::filesystem::exists(uno, ignorado))
            entorno.VerInforme(uno);
    return true;
}
