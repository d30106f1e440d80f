#include "LogicaCoeficienteRentabilidad.h"

#include <algorithm>
#include <cerrno>
#include <new>

#include "Ficheros.h"
#include "GuardarSistema.h"
#include "Mientras.h"
#include "Registros.h"
#include "modGeneral.h"
#include "modImportarASCII.h"

namespace {

constexpr const char* Cabecera = "0"; // these bets have no base
constexpr int64_t ApuestasPorTurnoAlJuntar = 2000;

// The texts have been found to be numbers.
PorcentajesPorNumero Valores(const TextosPorcentajes& textos) {
    PorcentajesPorNumero valores{};
    for (size_t i = 0; i < textos.size(); ++i) LeerDecimal(textos[i], valores[i + 1]);
    return valores;
}

} // namespace

void LogicaCoeficienteRentabilidad::Abrir() {
    const RegistroCOEFICIENTERENTABILIDAD deFabrica;
    for (size_t i = 0; i < txtPorcentajesReales.size(); ++i) {
        txtPorcentajesApostados[i] = TextoDecimal(deFabrica.PorcentajesApostados[i + 1], entorno.SeparadorDecimal);
        txtPorcentajesReales[i] = TextoDecimal(deFabrica.PorcentajesReales[i + 1], entorno.SeparadorDecimal);
    }
}

TextosPorcentajes& LogicaCoeficienteRentabilidad::Textos(TablaCR tabla) {
    return tabla == TablaCR::Apostados ? txtPorcentajesApostados : txtPorcentajesReales;
}

void LogicaCoeficienteRentabilidad::VaciarLista() {
    lstCR.clear();
    Elegidos.fill(false);
    ApuestasPorCR.fill(0);
}

void LogicaCoeficienteRentabilidad::cmdDesdeFichero() {
    if (Trabajando) return;
    const std::string ruta = entorno.PedirAbrir(PeticionAbrirApuestas());
    if (!Recortar(ruta).empty()) Cargar(ruta);
}

bool LogicaCoeficienteRentabilidad::Cargar(const std::string& ruta) {
    if (Trabajando) return false;
    const Mientras ocupado(Trabajando);
    VaciarLista();
    lblApuCargadas = "0";
    txtFicheroASCII = ruta;
    const int32_t cuantas =
        LeerApuestas(ruta, false, ApuestasCR, &lblApuCargadas, sesion.trabajo.JuegoActual(), entorno);
    lblApuCargadas = FormatoMiles(cuantas, entorno.SeparadorMiles);
    return cuantas > 0 || Fallo(entorno, AvisoSinApuestas);
}

void LogicaCoeficienteRentabilidad::CambiarPorcentaje(TablaCR tabla, size_t i, const std::string& texto) {
    Textos(tabla)[i] = SoloDecimales(texto);
}

void LogicaCoeficienteRentabilidad::imgINIPorcentajes(TablaCR tabla) {
    Textos(tabla).fill("0");
}

void LogicaCoeficienteRentabilidad::imgAbrirPorcentajes(TablaCR tabla) {
    const std::string ruta = PedirPorcentajesAbrir(entorno);
    if (!ruta.empty()) CargarPorcentajes(tabla, ruta);
}

bool LogicaCoeficienteRentabilidad::CargarPorcentajes(TablaCR tabla, const std::string& ruta) {
    return AbrirPorcentajesCR(ruta, Textos(tabla), entorno);
}

void LogicaCoeficienteRentabilidad::imgGuardarPorcentajes(TablaCR tabla) {
    GuardarPorcentajesCR(Textos(tabla), tabla, entorno);
}

std::string LogicaCoeficienteRentabilidad::TextoCR(size_t i) const {
    return std::to_string(i / 10) + entorno.SeparadorDecimal + std::to_string(i % 10);
}

void LogicaCoeficienteRentabilidad::Detener() {
    if (Calculando) detener = true;
}

bool LogicaCoeficienteRentabilidad::imgCalcular() {
    if (Trabajando) return false;
    if (ApuestasCR.Apuestas() == 0) return Fallo(entorno, "No hay ningún fichero de apuestas cargado");
    for (const TablaCR tabla : {TablaCR::Apostados, TablaCR::Reales})
        if (!SinBlancos(Textos(tabla), tabla, entorno)) return false;
    for (const TablaCR tabla : {TablaCR::Apostados, TablaCR::Reales})
        if (!SinErrores(Textos(tabla), tabla, entorno)) return false;
    const Mientras ocupado(Trabajando), calculando(Calculando);
    detener = false;
    VaciarLista();
    entorno.CederTurno();
    if (detener || !Repartir()) {
        VaciarLista();
        return detener && Fallo(entorno, "AVISO: El cálculo se ha detenido, no hay coeficientes");
    }
    for (size_t i = 0; i < ValoresCR; ++i) lstCR.push_back(TextoCR(i) + ": " + std::to_string(ApuestasPorCR[i]));
    return true;
}

bool LogicaCoeficienteRentabilidad::Repartir() {
    const auto turno = [this] {
        entorno.CederTurno();
        return !detener;
    };
    try {
        return RepartirPorCR(ApuestasCR, Valores(txtPorcentajesApostados), Valores(txtPorcentajesReales), CoeficienteCR,
                             ApuestasPorCR, turno);
    } catch (const std::bad_alloc&) {
        return Fallo(entorno, "ERROR: NO SE HAN PODIDO CALCULAR LOS COEFICIENTES (" + DescripcionFallo(ENOMEM) + ")");
    }
}

void LogicaCoeficienteRentabilidad::ElegirCR(size_t i, bool elegido) {
    if (!Trabajando && i < lstCR.size()) Elegidos[i] = elegido;
}

int64_t LogicaCoeficienteRentabilidad::Seleccionadas() const {
    int64_t suma = 0;
    for (size_t i = 0; i < ValoresCR; ++i) suma += Elegidos[i] ? ApuestasPorCR[i] : 0;
    return suma;
}

std::string LogicaCoeficienteRentabilidad::lblApuestasSeleccionadasCR() const {
    return "Apuestas: " + FormatoMiles(Seleccionadas(), entorno.SeparadorMiles);
}

Tabla LogicaCoeficienteRentabilidad::JuntarElegidas() const {
    Tabla ApuestasGrabar(7, Seleccionadas());
    std::array<int64_t, ValoresCR> lugar{}; // where the next bet of each row goes
    int64_t siguiente = 1;
    for (size_t i = 0; i < ValoresCR; ++i) {
        lugar[i] = siguiente;
        siguiente += Elegidos[i] ? ApuestasPorCR[i] : 0;
    }
    for (int64_t b = 1; b <= ApuestasCR.Apuestas(); ++b) {
        if (b % ApuestasPorTurnoAlJuntar == 0) entorno.CederTurno();
        const size_t i = CoeficienteCR(1, b);
        if (!Elegidos[i]) continue;
        const int64_t destino = lugar[i]++;
        for (int r = 1; r <= 6; ++r) ApuestasGrabar(r, destino) = ApuestasCR(r, b);
    }
    return ApuestasGrabar;
}

bool LogicaCoeficienteRentabilidad::imgGrabarApuestasCR() {
    if (Trabajando) return false;
    if (lstCR.empty()) {
        entorno.Mensaje(Icono::Critico,
                        "ANTES DE GUARDAR LAS APUESTAS HAY QUE CALCULAR LOS COEFICIENTES DE RENTABILIDAD");
        return false;
    }
    const int64_t cuantas = Seleccionadas();
    if (cuantas == 0)
        return Fallo(entorno, "ERROR: TIENE QUE SELECCIONAR ALGUN COEFICIENTE DE RENTABILIDAD CON APUESTAS, HAY 0 "
                              "SELECCIONADAS");
    const Mientras ocupado(Trabajando);
    const std::string ruta =
        entorno.PedirGuardar({"Guardar Apuestas",
                              {{"Ficheros de Apuestas (*.TOM)", "*.TOM"}, {"Todos los archivos (*.*)", "*.*"}},
                              "Singuardar_" + std::to_string(cuantas) + ".TOM"});
    if (Recortar(ruta).empty()) return false;
    try {
        const Tabla ApuestasGrabar = JuntarElegidas();
        if (!GuardarSistema(RutaConExtension(ruta, ".TOM"), Cabecera, ApuestasGrabar, sesion.trabajo, picVentanaEspera,
                            entorno))
            return false;
    } catch (const std::bad_alloc&) {
        return FalloAlGuardar(entorno, DescripcionFallo(ENOMEM));
    }
    entorno.Mensaje(Icono::Exclamacion,
                    "SE HAN GUARDADO " + FormatoMiles(cuantas, entorno.SeparadorMiles) + " APUESTAS");
    return true;
}

std::string LogicaCoeficienteRentabilidad::Copiar() const {
    std::string tabla = lstCR.empty() ? "" : "Coeficiente\tApuestas\n";
    for (size_t i = 0; i < lstCR.size(); ++i) tabla += TextoCR(i) + "\t" + std::to_string(ApuestasPorCR[i]) + "\n";
    return tabla;
}
