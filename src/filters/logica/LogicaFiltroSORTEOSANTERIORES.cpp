#include "LogicaFiltroSORTEOSANTERIORES.h"

#include <algorithm>
#include <cerrno>
#include <new>

#include "ConsultarServicioSorteos.h"
#include "Ficheros.h"
#include "SorteosDeBloque.h"
#include "modGeneral.h"

namespace {

constexpr const char* FalloAlAbrir = "ERROR AL ABRIR EL FICHERO DE SORTEOS";

bool Cabe(const std::string& campo) {
    int32_t valor = 0;
    return LeerEntero(campo, valor);
}

// A draw beyond what a group can name in 16 bits with a sign; empty if there is none.
std::string FalloDeSorteos(const Sorteos& sorteos) {
    const auto hay =
        std::find_if(sorteos.begin(), sorteos.end(), [](const Sorteo& s) { return s.sorteo > MaximoIntervalo; });
    return hay == sorteos.end() ? "" : "el valor '" + std::to_string(hay->sorteo) + "' de 'sorteo' no cabe en su campo";
}

} // namespace

void LogicaFiltroSORTEOSANTERIORES::Abrir() {
    MostrarCargados();
    MostrarGrupo();
}

std::string LogicaFiltroSORTEOSANTERIORES::lblNumeroGrupo() const {
    return "GRUPO " + std::to_string(bloque.Actual) + bloque.TextoMaximo();
}

void LogicaFiltroSORTEOSANTERIORES::MostrarGrupo() {
    const BloqueSorteos& grupo = Grupo();
    cboAnioINI = grupo.DESDE.anio;
    cboSorteoINI = grupo.DESDE.numero;
    cboAnioFIN = grupo.HASTA.anio;
    cboSorteoFIN = grupo.HASTA.numero;
    cboDia = grupo.sorteoDIAS;
    txtSorteoMINIMO = std::to_string(grupo.aciertosMinimoSORTEOS);
    txtSorteoMAXIMO = std::to_string(grupo.aciertosMaximoSORTEOS);
    txtAciertos = TextoLista(grupo.acertarEN);
    Recontar();
}

void LogicaFiltroSORTEOSANTERIORES::MostrarCargados() {
    const Sorteos& sorteos = sesion.condiciones.SorteosFiltro;
    lblSorteosCargados = std::to_string(sorteos.size());
    lblSorteoDESDE = lblTemporadaDESDE = lblSorteoHASTA = lblTemporadaHASTA = "-";
    if (sorteos.empty()) return;
    lblSorteoDESDE = std::to_string(sorteos.front().sorteo);
    lblTemporadaDESDE = std::to_string(sorteos.front().anio);
    lblSorteoHASTA = std::to_string(sorteos.back().sorteo);
    lblTemporadaHASTA = std::to_string(sorteos.back().anio);
}

// The group as its controls show it. What the boxes offer, and what a file can bring, fits 16 bits.
BloqueSorteos LogicaFiltroSORTEOSANTERIORES::EnPantalla() const {
    BloqueSorteos grupo = Grupo();
    grupo.DESDE = {static_cast<int16_t>(cboAnioINI), static_cast<int16_t>(cboSorteoINI)};
    grupo.HASTA = {static_cast<int16_t>(cboAnioFIN), static_cast<int16_t>(cboSorteoFIN)};
    grupo.sorteoDIAS = static_cast<int16_t>(cboDia);
    return grupo;
}

void LogicaFiltroSORTEOSANTERIORES::Recontar() {
    const TramoDeSorteos tramo(EnPantalla());
    const Sorteos& sorteos = sesion.condiciones.SorteosFiltro;
    lblSorteosConsultados = std::to_string(
        std::count_if(sorteos.begin(), sorteos.end(), [&](const Sorteo& s) { return tramo.Contiene(s); }));
}

bool LogicaFiltroSORTEOSANTERIORES::cmdCargar() {
    if (Cargando) return false;
    Cargando = true;
    entorno.CederTurno();
    bool cargados = false;
    try {
        cargados = Cargar();
    } catch (const std::bad_alloc&) {
        FalloDeCarga(DescripcionFallo(ENOMEM));
    }
    Cargando = false;
    return cargados;
}

bool LogicaFiltroSORTEOSANTERIORES::Cargar() {
    Sorteos& sorteos = sesion.condiciones.SorteosFiltro;
    const std::string juego = sesion.trabajo.TipoJuego();
    RespuestaServicio respuesta;
    if (!ConsultarServicioSorteos(respuesta, "temporada=todas&juego=" + juego, entorno))
        return FalloDeCarga(respuesta.Fallo());
    if (!respuesta.Legible()) return Fallo(entorno, std::string(FalloAlAbrir) + " - " + respuesta.Motivo());
    sorteos.clear();
    const bool leidos = respuesta.LeerCombinaciones(juego, sorteos);
    const std::string fallo = leidos ? FalloDeSorteos(sorteos) : respuesta.Fallo();
    if (!fallo.empty()) {
        sorteos.clear();
        Recontar();
        return FalloDeCarga(fallo);
    }
    MostrarCargados();
    PonerMaximos();
    Recontar();
    return true;
}

bool LogicaFiltroSORTEOSANTERIORES::FalloDeCarga(const std::string& descripcion) {
    lblSorteosCargados = "0";
    lblSorteoDESDE = lblTemporadaDESDE = lblSorteoHASTA = lblTemporadaHASTA = "-";
    return Fallo(entorno, std::string(FalloAlAbrir) + " (" + descripcion + ")");
}

void LogicaFiltroSORTEOSANTERIORES::PonerMaximos() {
    if (!EnBlanco(txtSorteoMAXIMO) && ValorCampo(txtSorteoMAXIMO) == 0) txtSorteoMAXIMO = lblSorteosCargados;
    for (BloqueSorteos& grupo : sesion.condiciones.SORTEOSANTERIORES.grupo)
        if (grupo.aciertosMaximoSORTEOS == 0)
            grupo.aciertosMaximoSORTEOS = static_cast<int32_t>(sesion.condiciones.SorteosFiltro.size());
}

void LogicaFiltroSORTEOSANTERIORES::ElegirEnCaja(int LogicaFiltroSORTEOSANTERIORES::*caja, int valor) {
    this->*caja = valor;
    Recontar();
}

void LogicaFiltroSORTEOSANTERIORES::CambiarMinimo(const std::string& texto) {
    txtSorteoMINIMO = TextoDeCampo(texto);
}

void LogicaFiltroSORTEOSANTERIORES::CambiarMaximo(const std::string& texto) {
    txtSorteoMAXIMO = TextoDeCampo(texto);
}

void LogicaFiltroSORTEOSANTERIORES::CerrarModificar(const LogicaAciertos& aciertos) {
    CerrarAciertos(aciertos, marco, Grupo().acertarEN, txtAciertos);
}

void LogicaFiltroSORTEOSANTERIORES::imgINIGrupo() {
    Grupo() = {};
    Grupo().DESDE.anio = Grupo().HASTA.anio = static_cast<int16_t>(UltimoAnio());
    MostrarGrupo();
}

void LogicaFiltroSORTEOSANTERIORES::cmdMASBloque() {
    if (!bloque.cmdMASBloque() || !GuardarGrupo()) return;
    bloque.Mas();
    MostrarGrupo();
}

void LogicaFiltroSORTEOSANTERIORES::cmdMENOSBloque() {
    if (!bloque.cmdMENOSBloque() || !GuardarGrupo()) return;
    bloque.Menos();
    MostrarGrupo();
}

bool LogicaFiltroSORTEOSANTERIORES::FalloGrupo(const std::string& texto) {
    return Fallo(entorno, "ERROR en GRUPO " + std::to_string(bloque.Actual) + texto);
}

bool LogicaFiltroSORTEOSANTERIORES::ValidarGrupo() {
    if (cboAnioINI > cboAnioFIN) return FalloGrupo(": El número de año inicial es mayor que el final");
    if (cboAnioINI == cboAnioFIN && cboSorteoINI > cboSorteoFIN)
        return FalloGrupo(": El número de sorteo inicial es mayor que el final");
    if (ValorCampo(txtSorteoMINIMO) > ValorCampo(txtSorteoMAXIMO))
        return FalloGrupo(": El condición de mínimo de sorteos es mayor que el máximo de sorteos");
    if (lblSorteosCargados == "0") return FalloGrupo(": No se ha cargado el fichero general de sorteos");
    return true;
}

bool LogicaFiltroSORTEOSANTERIORES::GuardarGrupo() {
    for (std::string* campo : {&txtSorteoMINIMO, &txtSorteoMAXIMO})
        if (EnBlanco(*campo)) *campo = "0";
    if (!Cabe(txtSorteoMINIMO) || !Cabe(txtSorteoMAXIMO))
        return FalloGrupo(": El número de sorteos no puede ser mayor que " + std::to_string(INT32_MAX));
    if (!txtAciertos.empty() && !ValidarGrupo()) return false;
    Volcar(sesion.condiciones);
    return true;
}

void LogicaFiltroSORTEOSANTERIORES::Volcar(Condiciones& condiciones) const {
    BloqueSorteos grupo = EnPantalla();
    if (Cabe(txtSorteoMINIMO) && Cabe(txtSorteoMAXIMO)) {
        grupo.aciertosMinimoSORTEOS = ValorCampo(txtSorteoMINIMO);
        grupo.aciertosMaximoSORTEOS = ValorCampo(txtSorteoMAXIMO);
    }
    condiciones.SORTEOSANTERIORES.grupo[bloque.Grupo(0)] = grupo;
}
