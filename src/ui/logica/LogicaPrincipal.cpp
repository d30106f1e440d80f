#include "LogicaPrincipal.h"

#include <algorithm>

#include "AyudaVentanas.h"
#include "Boleto.h"
#include "CalcularSistema.h"
#include "ComandosFichero.h"
#include "Ficheros.h"
#include "GuardarCombinacion.h"
#include "ImportarCombinacion.h"
#include "InformeEliminadas.h"
#include "InformeResumen.h"
#include "NumerosTexto.h"
#include "Sesiones.h"
#include "modGeneral.h"
#include "modXML.h"

namespace {

constexpr const char* PreguntaContinuar =
    "NO HA GUARDADO LA COMBINACION ACTUAL EN XML, ¿ DESEA CONTINUAR DE TODAS FORMAS ?";
constexpr const char* PreguntaSalir = "NO HA GUARDADO LA COMBINACION ACTUAL EN XML, ¿ DESEA SALIR DE TODAS FORMAS ?";

} // namespace

void LogicaPrincipal::Hacer(Orden orden) {
    if (Bloqueada()) return;
    switch (orden) {
    case Orden::Nuevo:
        return Nuevo();
    case Orden::Abrir:
        if (!PuedeDescartar()) return;
        AbrirBaseXML(sesion, entorno);
        historia.Olvidar();
        return;
    case Orden::Guardar:
        GuardarBaseXML(sesion, entorno);
        return;
    case Orden::VerResumenFiltros:
        VerResumenFiltros(sesion, entorno);
        return;
    case Orden::InformeApuestasEliminadas:
        VerApuestasEliminadas(sesion, entorno);
        return;
    case Orden::VerApuestas:
        VerApuestas(sesion, entorno);
        return;
    case Orden::ValidarOnLine:
        ValidarOnLine(sesion, entorno);
        return;
    case Orden::AyudaOnline:
        return AyudaOnline();
    case Orden::CalculoPrueba:
        return CalculoPrueba();
    case Orden::CalculoDefinitivo:
        GuardarCombinacion(sesion, entorno);
        return;
    default:
        return;
    }
}

bool LogicaPrincipal::PuedeAbrir(Orden orden) {
    if (Bloqueada()) return false;
    if ((orden == Orden::Garantias || orden == Orden::Analisis) && sesion.trabajo.Contador.Reducidas == 0)
        return Fallo(entorno, "ERROR: No hay apuestas generadas");
    return true;
}

bool LogicaPrincipal::PuedeCerrar() {
    if (Bloqueada()) return false;
    return sesion.trabajo.CombinacionGuardada || entorno.Preguntar(PreguntaSalir);
}

bool LogicaPrincipal::PuedeDescartar() {
    return sesion.trabajo.CombinacionGuardada || entorno.Preguntar(PreguntaContinuar);
}

void LogicaPrincipal::Nuevo() {
    if (!PuedeDescartar()) return;
    sesion.trabajo.cboTipoCombinacion = PronosticoManual;
    ReiniciarSesion(sesion, entorno);
    historia.Olvidar();
}

void LogicaPrincipal::Deshacer() {
    if (!Bloqueada()) historia.Deshacer(sesion);
}

void LogicaPrincipal::Rehacer() {
    if (!Bloqueada()) historia.Rehacer(sesion);
}

void LogicaPrincipal::CalculoPrueba() {
    sesion.trabajo.chkGuardarAutomaticamente = false;
    CalcularSistema(sesion, entorno);
}

void LogicaPrincipal::AyudaOnline() {
    AbrirAyuda(entorno, entorno.Sitio.empty() ? entorno.Manual : entorno.Sitio);
}

void LogicaPrincipal::Soltar(const std::string& ruta) {
    if (Bloqueada() || ruta.empty() || !PuedeDescartar()) return;
    if (TieneExtension(ruta, ".xml"))
        AbrirFicheroBase(ruta, sesion, entorno);
    else
        ImportarFichero(ruta, sesion, entorno);
    historia.Olvidar();
}

void LogicaPrincipal::CambiarJuego(int juego) {
    if (Bloqueada() || juego < 0 || juego >= static_cast<int>(Juegos.size())) return;
    if (juego != sesion.trabajo.cboTipoJuego) ::CambiarJuego(sesion, juego);
}

void LogicaPrincipal::CambiarTipoReintegro(int indice) {
    if (!Bloqueada()) sesion.trabajo.cboTipoReintegro = indice;
}

void LogicaPrincipal::CambiarReintegros(bool marcado) {
    if (!Bloqueada()) sesion.trabajo.chkReintegros = marcado;
}

bool LogicaPrincipal::CambiarTipoCombinacion(int indice) {
    EstadoTrabajo& trabajo = sesion.trabajo;
    const int anterior = trabajo.cboTipoCombinacion;
    if (Bloqueada() || (indice == PronosticoManual && anterior == PronosticoManual)) return false;
    if (indice == PronosticoAleatorio) {
        trabajo.cboTipoCombinacion = PronosticoAleatorio;
        trabajo.txtFicheroASCII.clear();
        trabajo.cboTipoReintegro = AlDirecto;
        return true;
    }
    if (indice == PronosticoDesdeArchivo) ImportarCombinacion(sesion, entorno);
    if (indice == PronosticoManual) {
        const bool descartar = PuedeDescartar();
        // Refused, an imported base stays imported; a random one is a manual one from here on.
        if (descartar || anterior != PronosticoDesdeArchivo) trabajo.cboTipoCombinacion = PronosticoManual;
        if (descartar) ReiniciarSesion(sesion, entorno);
    }
    return false;
}

void LogicaPrincipal::PulsarNumero(int numero) {
    if (BoletoHabilitado() && numero >= 1 && numero <= sesion.trabajo.NumeroMaximo())
        ::PulsarNumero(sesion.trabajo, numero);
}

void LogicaPrincipal::PulsarReintegro(int digito) {
    const Juego& juego = sesion.trabajo.JuegoActual();
    if (BoletoHabilitado() && digito >= juego.DigitoMinimo && digito <= juego.DigitoMaximo)
        ::PulsarReintegro(sesion.trabajo, digito);
}

void LogicaPrincipal::PulsarFila(int r) {
    if (BoletoHabilitado()) ::PulsarFila(sesion.trabajo, r);
}

void LogicaPrincipal::PulsarColumna(int c) {
    if (BoletoHabilitado()) ::PulsarColumna(sesion.trabajo, c);
}

void LogicaPrincipal::MarcarDesmarcarTODOS() {
    if (BoletoHabilitado()) ::MarcarDesmarcarTODOS(sesion.trabajo);
}

void LogicaPrincipal::Pegar(const std::string& texto) {
    if (!BoletoHabilitado()) return;
    EstadoTrabajo& trabajo = sesion.trabajo;
    PegarNumeros(entorno, texto, trabajo.NumeroMaximo(), [&](int n) {
        if (!trabajo.lblNumero[static_cast<size_t>(n)]) ::PulsarNumero(trabajo, n);
    });
}

std::string LogicaPrincipal::Copiar() const {
    std::vector<int> numeros;
    for (int n = 1; n <= sesion.trabajo.NumeroMaximo(); ++n)
        if (sesion.trabajo.lblNumero[static_cast<size_t>(n)]) numeros.push_back(n);
    return TextoNumeros(numeros);
}

void LogicaPrincipal::AlternarFila(int k) {
    if (!Bloqueada() && k >= 0 && k < NFilas) ::AlternarFila(sesion, k);
}

bool LogicaPrincipal::BoletoHabilitado() const {
    return !Bloqueada() && sesion.trabajo.cboTipoCombinacion != PronosticoDesdeArchivo;
}

bool LogicaPrincipal::HayMarcas() const {
    const auto& marcas = sesion.trabajo.lblNumero;
    return std::find(marcas.begin(), marcas.end(), true) != marcas.end();
}

std::string LogicaPrincipal::cmdCuadroApuDirecto() const {
    return sesion.trabajo.cboTipoCombinacion == PronosticoDesdeArchivo ? "Apuestas Importadas" : "Apuestas en Directo";
}

std::string LogicaPrincipal::lblTipoCombinacion() const {
    return TextoTipoCombinacion(sesion.trabajo);
}

std::string LogicaPrincipal::lblApuestasIniciales() const {
    return FormatoMiles(sesion.trabajo.Contador.Iniciales, entorno.SeparadorMiles);
}

std::string LogicaPrincipal::lblApuestasCondicionadas() const {
    const Contadores& contador = sesion.trabajo.Contador;
    return contador.Progreso.empty() ? FormatoMiles(contador.Condicionadas, entorno.SeparadorMiles) : contador.Progreso;
}

std::string LogicaPrincipal::lblApuestasReducidas() const {
    return FormatoMiles(sesion.trabajo.Contador.Reducidas, entorno.SeparadorMiles);
}
