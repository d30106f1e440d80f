#include "LogicaVentanaProceso.h"

#include <algorithm>
#include <bit>
#include <exception>
#include <new>
#include <numeric>

#include "AjustarApuestasExactas.h"
#include "ContarNumeros.h"
#include "GenerarApuestas.h"
#include "Huecos.h"
#include "InformePorcentajes.h"
#include "Informes.h"
#include "MejorarReduccion.h"
#include "ReducirPorCobertura.h"
#include "ReducirSecuencial.h"
#include "Supervivientes.h"
#include "modGeneral.h"

namespace {

constexpr uint32_t TurnosPorReloj = 64;

} // namespace

void LogicaVentanaProceso::Activar() {
    lblDirecto = sesion.trabajo.cboTipoCombinacion == PronosticoDesdeArchivo ? "Importado" : "En directo";
    Correr();
    if (sesion.trabajo.chkGuardarAutomaticamente) Cerrada = true;
}

void LogicaVentanaProceso::Calcular() {
    if (!Corriendo) Correr();
}

void LogicaVentanaProceso::Detener() {
    detener = true;
    imgDetener = false;
}

void LogicaVentanaProceso::CalculoDefinitivo() {
    sesion.trabajo.chkGuardarAutomaticamente = true;
    Volver();
}

void LogicaVentanaProceso::Volver() {
    if (!Corriendo) Cerrada = true;
}

bool LogicaVentanaProceso::VerGarantias() {
    if (Corriendo) return false;
    if (lblApuestasCondicionadasVP == lblApuestasVP)
        return Fallo(
            entorno,
            "AVISO: No se pueden calcular las garantías, el sistema reducido es igual al sistema condicionado");
    return true;
}

std::string LogicaVentanaProceso::TextoTabla() const {
    std::string tabla;
    for (size_t n = 1; n < lblN.size(); ++n)
        if (!lblN[n].empty()) tabla += std::to_string(n) + "\t" + lblN[n] + "\n";
    return tabla.empty() ? tabla : "Número\tPorcentaje\n" + tabla;
}

void LogicaVentanaProceso::VerPorcentajes() {
    std::string ruta;
    if (EscribirInformePorcentajes(*this, ruta)) entorno.VerInforme(ruta);
}

void LogicaVentanaProceso::Habilitar(bool corriendo) {
    Corriendo = imgDetener = corriendo;
    imgCalcular = imgVolver = imgCalculoDefinitivo = imgVerPorcentajes = imgGarantias = imgMejorar = imgHuecos =
        !corriendo;
}

// However the run ends, the best system found so far stands and the window is idle again.
void LogicaVentanaProceso::Correr() {
    Habilitar(true);
    lblCiclos = "0";
    lblProgressBar = 0;
    lblCota.clear();
    lblHuecos.clear();
    Hallazgos.clear();
    Protegido([this] {
        Reducir();
        Ajustar();
    });
    lblProgressBar = 0;
    detener = true;
    Habilitar(false);
}

// Whatever it has reached when the memory runs out stands.
void LogicaVentanaProceso::Protegido(const std::function<void()>& trabajo) {
    try {
        trabajo();
    } catch (const std::bad_alloc&) {
        Fallo(entorno, "ERROR: no hay memoria suficiente");
    } catch (const std::exception& error) {
        Fallo(entorno, std::string("ERROR: ") + error.what());
    }
}

bool LogicaVentanaProceso::Mejorar() {
    if (Corriendo || !ReduccionMejorable(sesion, entorno)) return false;
    if (sesion.trabajo.Contador.Reducidas == 0)
        return Fallo(entorno, "ERROR: No hay ningún sistema reducido que mejorar");
    Habilitar(true);
    detener = false;
    Mejorando = true;
    lblHuecos.clear();
    SegundosMejora = 0;
    Protegido([this] { MejorarReduccion(*this); });
    Mejorando = false;
    detener = true;
    PorcentajesDespues();
    Habilitar(false);
    return true;
}

void LogicaVentanaProceso::Reducir() {
    EstadoTrabajo& trabajo = sesion.trabajo;
    NApuestasReduccion = trabajo.Contador.Condicionadas;
    MejorApuestas = NApuestasReduccion + 1;
    orden_.clear();
    ReconstruirTablas();
    PorcentajesAntes();
    detener = false;
    CicloActual = 0;
    Segundos = 0;
    comienzo_ = std::chrono::steady_clock::now();
    lblApuestasInicialesVP = FormatoMiles(trabajo.Contador.Iniciales, entorno.SeparadorMiles);
    lblApuestasCondicionadasVP = FormatoMiles(trabajo.Contador.Condicionadas, entorno.SeparadorMiles);
    lblApuestasVP = FormatoMiles(trabajo.Contador.Reducidas, entorno.SeparadorMiles);
    TomarAjustes();
    ElegirRuta();
    Segundos = std::chrono::duration<double>(std::chrono::steady_clock::now() - comienzo_).count();
    lblProgressBar = 0;
    detener = true;
    PorcentajesDespues();
}

// The driver leaves these tables ready; whatever else expands the base meanwhile may not.
void LogicaVentanaProceso::ReconstruirTablas() {
    EstadoTrabajo& trabajo = sesion.trabajo;
    if (trabajo.cboTipoCombinacion == PronosticoDesdeArchivo) {
        trabajo.SinEliminadas = false;
        TraducirImportadas(trabajo, trabajo, 7);
        trabajo.ApuestasEnTabla = static_cast<int32_t>(trabajo.TablaApuestas.Apuestas());
    } else if (trabajo.TablaApuestas.Filas() < 6 || trabajo.TablaApuestas.Apuestas() != trabajo.ApuestasEnTabla ||
               trabajo.TablaApuestas(6, 1) > trabajo.NumerosBase) {
        GenerarApuestas(trabajo, entorno, 6, 6);
    }
}

void LogicaVentanaProceso::TomarAjustes() {
    AjustesReduccion& ajustes = sesion.trabajo.Reduccion;
    if (ajustes.PorcentajeReduccion == 0 || ajustes.PorcentajeReduccion > 100) ajustes.PorcentajeReduccion = 100;
    ajustes.NApuestasExactas = std::max(ajustes.NApuestasExactas, 1);
    Porcentaje = ajustes.PorcentajeReduccion;
    NApuestas = ajustes.NApuestasExactas;
    PorNumero = ajustes.ActivarNumeroApuestas != 0;
    Ciclos = ajustes.ActivarCiclos != 0;
    Azar = ajustes.Aleatorio != 0;
}

// "al 4" changes route at 23 numbers.
void LogicaVentanaProceso::ElegirRuta() {
    const int16_t tipo = sesion.trabajo.Reduccion.TipoReduccion;
    if (tipo < 0 || tipo > 4) return;
    const bool cobertura = tipo <= (sesion.trabajo.NumerosBase <= 22 ? 2 : 1);
    RadioBits = cobertura ? static_cast<int16_t>(2 * tipo) : tipo;
    cobertura ? ReducirPorCobertura(*this) : ReducirSecuencial(*this);
}

void LogicaVentanaProceso::Ajustar() {
    const bool hallado = MejorApuestas <= NApuestasReduccion;
    if (sesion.trabajo.Reduccion.ApuestasExactas != 1 || !hallado) return;
    imgDetener = false;
    AjustarApuestasExactas(sesion.trabajo, [this](double fraccion) {
        lblProgressBar = fraccion;
        entorno.CederTurno();
    });
    MostrarReducidas(static_cast<int32_t>(sesion.trabajo.ApuestasReducidas.Apuestas()));
    PorcentajesDespues();
}

bool LogicaVentanaProceso::Turno(double fraccion) {
    lblProgressBar = fraccion;
    if (!Mejorando && ++turnos_ % TurnosPorReloj == 0)
        Segundos = std::chrono::duration<double>(std::chrono::steady_clock::now() - comienzo_).count();
    entorno.CederTurno();
    if (TopeCiclos > 0 && CicloActual >= TopeCiclos) detener = true;
    if (TopeSegundos > 0 && Segundos >= TopeSegundos && MejorApuestas <= NApuestasReduccion) detener = true;
    return !detener;
}

void LogicaVentanaProceso::ContarCiclo() {
    CicloActual += 1;
    lblCiclos = std::to_string(static_cast<int64_t>(CicloActual));
}

void LogicaVentanaProceso::BarajarOrden() {
    if (orden_.empty()) {
        orden_.resize(NApuestasReduccion);
        std::iota(orden_.begin(), orden_.end(), 1);
    }
    ::Azar azar;
    if (Azar)
        azar.SembrarReloj();
    else
        azar.Sembrar(static_cast<uint64_t>(CicloActual));
    const int32_t n = NApuestasReduccion;
    for (int32_t& actual : orden_) {
        const auto r = static_cast<int32_t>(n * azar.Rnd() + 1);
        std::swap(actual, orden_[r - 1]);
    }
}

void LogicaVentanaProceso::TomarMejor(const std::vector<int32_t>& elegidas, double ciclo, bool ascendentes) {
    EstadoTrabajo& trabajo = sesion.trabajo;
    const auto n = static_cast<int32_t>(elegidas.size());
    if (n == 0 || n >= MejorApuestas) return;
    Tabla nueva(7, n);
    for (int32_t i = 0; i < n; ++i) {
        std::array<uint8_t, 6> apuesta;
        for (int r = 1; r <= 6; ++r)
            apuesta[r - 1] = trabajo.BaseNumeros[trabajo.ApuestasCondicionadas(r, elegidas[i] + 1)];
        if (ascendentes) std::sort(apuesta.begin(), apuesta.end());
        for (int r = 1; r <= 6; ++r) nueva(r, i + 1) = apuesta[r - 1];
    }
    trabajo.ApuestasReducidas = std::move(nueva);
    MejorApuestas = n;
    Hallazgos.push_back({ciclo, n});
    MostrarReducidas(n);
}

void LogicaVentanaProceso::TomarMejorado(const std::vector<uint64_t>& sistema) {
    EstadoTrabajo& trabajo = sesion.trabajo;
    Tabla nueva(7, static_cast<int64_t>(sistema.size()));
    int64_t i = 0;
    for (uint64_t mascara : sistema) {
        ++i;
        for (int r = 1; mascara != 0; ++r, mascara &= mascara - 1)
            nueva(r, i) = trabajo.BaseNumeros[std::countr_zero(mascara) + 1];
    }
    trabajo.ApuestasReducidas = std::move(nueva);
    MejorApuestas = static_cast<int32_t>(sistema.size());
    if (Hallazgos.empty() || MejorApuestas < Hallazgos.back().Apuestas)
        Hallazgos.push_back({CicloActual, MejorApuestas});
    MostrarReducidas(MejorApuestas);
}

void LogicaVentanaProceso::VerHuecos() {
    const EstadoTrabajo& trabajo = sesion.trabajo;
    if (Corriendo) return;
    if (trabajo.Contador.Reducidas == 0) {
        Fallo(entorno, "ERROR: No hay ningún sistema reducido");
        return;
    }
    Protegido([&] {
        std::vector<int32_t> huecos;
        const auto turno = [this] {
            entorno.CederTurno();
            return true;
        };
        HallarHuecos(trabajo, trabajo.ApuestasReducidas, 6 - trabajo.Reduccion.TipoReduccion, turno, huecos);
        lblHuecos = TextoHuecos(static_cast<int64_t>(huecos.size()), trabajo.ApuestasCondicionadas.Apuestas(),
                                entorno.SeparadorDecimal);
        MostrarInforme(entorno, NombreInformeHuecos, InformeHuecos(trabajo, huecos, lblHuecos));
    });
}

bool LogicaVentanaProceso::BastaElMejor() const {
    const bool soloNumero = PorNumero && sesion.trabajo.Reduccion.ApuestasExactas == 0;
    return MejorApuestas == 1 || (soloNumero && MejorApuestas <= NApuestas);
}

int32_t LogicaVentanaProceso::CubiertasParaElegir(int porcentaje) const {
    const int64_t cien = int64_t{NApuestasReduccion} * porcentaje;
    return static_cast<int32_t>(cien <= 0 ? 0 : (cien + 99) / 100);
}

void LogicaVentanaProceso::MostrarReducidas(int32_t apuestas) {
    sesion.trabajo.Contador.Reducidas = apuestas;
    lblApuestasVP = FormatoMiles(apuestas, entorno.SeparadorMiles);
}

// Every number stands in as many bets of a complete system.
void LogicaVentanaProceso::PorcentajesAntes() {
    const EstadoTrabajo& trabajo = sesion.trabajo;
    const int n = trabajo.NumerosBase;
    std::array<int64_t, 256> cuenta{}, porNumero{};
    if (trabajo.SinEliminadas)
        std::fill_n(cuenta.begin() + 1, n, Combinaciones(static_cast<int16_t>(n - 1), 5));
    else
        cuenta = ContarNumeros(trabajo.ApuestasCondicionadas);
    for (int p = 1; p <= n; ++p) porNumero[trabajo.BaseNumeros[p]] = cuenta[p];
    fraPorcentajes = "Porcentajes ANTES de reducir";
    Porcentajes(porNumero, trabajo.ApuestasCondicionadas.Apuestas());
}

void LogicaVentanaProceso::PorcentajesDespues() {
    const Contadores& contador = sesion.trabajo.Contador;
    if (contador.Reducidas == 0 || contador.Reducidas == contador.Condicionadas) return;
    fraPorcentajes = "Porcentajes DESPUES de reducir";
    Porcentajes(ContarNumeros(sesion.trabajo.ApuestasReducidas), sesion.trabajo.ApuestasReducidas.Apuestas());
}

void LogicaVentanaProceso::Porcentajes(const std::array<int64_t, 256>& porNumero, int64_t apuestas) {
    for (int x = 1; x <= NumeroMaximoBoleto; ++x) {
        const double porcentaje = static_cast<double>(porNumero[x]) * 100 / static_cast<double>(apuestas);
        lblNConApuestas[x] = porNumero[x] > 0;
        lblN[x] = x > sesion.trabajo.NumeroMaximo() ? ""
                  : porNumero[x] == 0               ? "0 %"
                                                    : std::to_string(static_cast<int>(RedondearPar(porcentaje))) + "%";
    }
}
