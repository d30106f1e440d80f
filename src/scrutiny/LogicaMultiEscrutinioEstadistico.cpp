#include "LogicaMultiEscrutinioEstadistico.h"

#include <algorithm>
#include <cerrno>
#include <cmath>
#include <limits>
#include <new>

#include "ConsultarServicioSorteos.h"
#include "Ficheros.h"
#include "Informes.h"
#include "Mientras.h"
#include "RecorrerSorteos.h"
#include "modGeneral.h"
#include "modImportarASCII.h"

namespace {

constexpr const char* FalloAlCargar = "ERROR AL CARGAR EL FICHERO DE SORTEOS";

// What a window shows of a report, counting two characters a line end.
constexpr int64_t CaracteresVisibles = 65118;
constexpr const char* AvisoInformeGrande =
    "(El informe es demasiado grande para ser mostrado, pulse el botón 'Ver Informe en Bloc de Notas' para "
    "visualizarlo entero)";

std::string RecortarInforme(const std::string& informe) {
    int64_t caracteres = 0;
    for (size_t i = 0; i < informe.size(); ++i) {
        const bool continua = (static_cast<unsigned char>(informe[i]) & 0xC0) == 0x80;
        caracteres += continua ? 0 : informe[i] == '\n' ? 2 : 1;
        if (caracteres > CaracteresVisibles) return informe.substr(0, i) + AvisoInformeGrande;
    }
    return informe;
}

// The service tells euros with two decimals.
PremiosSorteo PremiosDe(const SorteoConPremios& sorteo) {
    const auto premio = [&](CategoriaServicio c) { return std::round(sorteo.categoria[c].premio * 100); };
    return {premio(CAT6), premio(CAT5C), premio(CAT5), premio(CAT4), premio(CAT3)};
}

} // namespace

LogicaMultiEscrutinioEstadistico::LogicaMultiEscrutinioEstadistico(Sesion& s, Entorno& e) : sesion(s), entorno(e) {
    txtTemporadaHASTA = std::to_string(entorno.Ahora().Anio);
    if (sesion.trabajo.cboTipoJuego == BONOLOTO) cboTipoJuego = BONOLOTO;
}

std::string LogicaMultiEscrutinioEstadistico::Titulo() const {
    return "MultiEscrutinio Estadístico (TIPO DE JUEGO SELECCIONADO: " + sesion.trabajo.TipoJuego() + ")";
}

void LogicaMultiEscrutinioEstadistico::ElegirJuego(int juego) {
    if (juego == PRIMITIVA || juego == BONOLOTO) cboTipoJuego = juego;
}

bool LogicaMultiEscrutinioEstadistico::cmdCargar() {
    std::string mensaje;
    bool leida = false;
    {
        const Mientras cargando(Cargando);
        entorno.CederTurno();
        SorteosCargados.clear();
        Premios.clear();
        leida = LeerRespuesta(mensaje);
    }
    if (leida) return true;
    SorteosCargados.clear();
    Premios.clear();
    MostrarSorteos(0);
    return Fallo(entorno, mensaje);
}

bool LogicaMultiEscrutinioEstadistico::LeerRespuesta(std::string& mensaje) {
    const std::string juego(Juegos[static_cast<size_t>(cboTipoJuego)].Nombre);
    RespuestaServicio respuesta;
    std::vector<SorteoConPremios> premiados;
    const auto fallar = [&mensaje](const std::string& descripcion) {
        mensaje = FalloAlCargar + (" (" + descripcion + ")");
        return false;
    };
    try {
        if (!ConsultarServicioSorteos(respuesta, "temporada=todas&juego=" + juego, entorno))
            return fallar(respuesta.Fallo());
        if (!respuesta.Legible()) {
            mensaje = FalloAlCargar + (" - " + respuesta.Motivo());
            return false;
        }
        if (!respuesta.LeerCombinaciones(juego, SorteosCargados) || !respuesta.LeerSorteos(juego, premiados))
            return fallar(respuesta.Fallo());
        std::transform(premiados.begin(), premiados.end(), std::back_inserter(Premios), PremiosDe);
    } catch (const std::bad_alloc&) {
        return fallar(DescripcionFallo(ENOMEM));
    }
    MostrarSorteos(Premios.empty() ? SorteosCargados.size() : Premios.size());
    return true;
}

void LogicaMultiEscrutinioEstadistico::MostrarSorteos(size_t cargados) {
    lblSorteosCargados = FormatoMiles(static_cast<int64_t>(cargados), entorno.SeparadorMiles);
    lblTemporadaDESDE = lblSorteoDESDE = lblTemporadaHASTA = lblSorteoHASTA = "-";
    if (SorteosCargados.empty()) return;
    const Sorteo &primero = SorteosCargados.front(), &ultimo = SorteosCargados.back();
    lblTemporadaDESDE = std::to_string(primero.anio);
    lblSorteoDESDE = std::to_string(primero.sorteo);
    lblTemporadaHASTA = std::to_string(ultimo.anio);
    lblSorteoHASTA = std::to_string(ultimo.sorteo);
}

bool LogicaMultiEscrutinioEstadistico::cmdDesdeFichero() {
    const std::string ruta = entorno.PedirAbrir(PeticionAbrirApuestas());
    return !ruta.empty() && CargarApuestas(ruta);
}

bool LogicaMultiEscrutinioEstadistico::CargarApuestas(const std::string& ruta) {
    Tabla leidas;
    int32_t cuantas = 0;
    {
        const Mientras cargando(Cargando);
        const std::string antes = lblApuCargadas;
        cuantas = LeerApuestas(ruta, false, leidas, &lblApuCargadas, sesion.trabajo.JuegoActual(), entorno);
        lblApuCargadas = antes;
    }
    if (cuantas == 0) return Fallo(entorno, AvisoSinApuestas);
    ApuestasMulti = std::move(leidas);
    txtFicheroASCII = ruta;
    lblApuCargadas = FormatoMiles(cuantas, entorno.SeparadorMiles);
    return true;
}

bool LogicaMultiEscrutinioEstadistico::LeerConsulta(ConsultaSorteos& consulta) {
    const std::pair<const std::string&, int&> campos[] = {{txtTemporadaDESDE, consulta.anioDesde},
                                                          {txtTemporadaHASTA, consulta.anioHasta},
                                                          {txtSorteoDESDE, consulta.sorteoDesde},
                                                          {txtSorteoHASTA, consulta.sorteoHasta}};
    for (const auto& [texto, numero] : campos)
        if (Recortar(texto).empty()) return Fallo(entorno, "ERROR: Algún campo de la consulta esta vacío");
    consulta.dia = cboDia;
    for (const auto& [texto, numero] : campos)
        if (!LeerEntero(texto, numero) || numero < 0 || numero > std::numeric_limits<int16_t>::max())
            return Fallo(entorno, "ERROR: Los campos de la consulta son números enteros del 0 al 32767");
    return true;
}

bool LogicaMultiEscrutinioEstadistico::Validar(ConsultaSorteos& consulta) {
    if (ApuestasMulti.Apuestas() == 0) return Fallo(entorno, "ERROR: No hay ningún fichero cargado para escrutar");
    if (SorteosCargados.empty()) return Fallo(entorno, "ERROR: No hay ningún fichero de sorteos cargado");
    if (!LeerConsulta(consulta)) return false;
    if (consulta.anioDesde > consulta.anioHasta) return Fallo(entorno, "ERROR: Año mínimo mayor que año máximo");
    if (consulta.sorteoDesde > consulta.sorteoHasta)
        return Fallo(entorno, "ERROR: Número de sorteo mínimo mayor que número de sorteo máximo");
    return true;
}

bool LogicaMultiEscrutinioEstadistico::cmdEscrutar() {
    ConsultaSorteos consulta;
    std::string fallo;
    if (!Validar(consulta)) return false;
    if (!EscrutarSorteos(consulta, fallo)) return Fallo(entorno, "ERROR AL ESCRUTAR LOS SORTEOS (" + fallo + ")");
    txtDatos = RecortarInforme(Informe);
    return true;
}

bool LogicaMultiEscrutinioEstadistico::imgVerInforme() {
    ConsultaSorteos consulta;
    std::string fallo;
    if (!Validar(consulta)) return false;
    if (!EscrutarSorteos(consulta, fallo)) return FalloAlGenerarInforme(entorno, fallo);
    return MostrarInforme(entorno, "TOMBOLERA_ESCRUTINIO.txt", Informe);
}

// The draws of the query, as places in the list. A draw beyond the prizes fails before anything runs.
bool LogicaMultiEscrutinioEstadistico::ElegirSorteos(const ConsultaSorteos& consulta, std::vector<size_t>& elegidos,
                                                     std::string& fallo) const {
    for (size_t i = 0; i < SorteosCargados.size(); ++i)
        if (Coincide(SorteosCargados[i], consulta)) elegidos.push_back(i);
    if (elegidos.empty() || elegidos.back() < Premios.size()) return true;
    const auto sinPremios = *std::lower_bound(elegidos.begin(), elegidos.end(), Premios.size());
    const Sorteo& s = SorteosCargados[sinPremios];
    fallo = "faltan los premios desde el sorteo " + std::to_string(s.sorteo) + " de " + std::to_string(s.anio) +
            ": hay " + std::to_string(SorteosCargados.size()) + " combinaciones y sólo " +
            std::to_string(Premios.size()) + " sorteos con premios";
    return false;
}

bool LogicaMultiEscrutinioEstadistico::EscrutarSorteos(const ConsultaSorteos& consulta, std::string& fallo) {
    const Mientras escrutando(Escrutando);
    PararMulti = false;
    lblProgressBar = 0;
    std::vector<size_t> elegidos;
    try {
        if (!ElegirSorteos(consulta, elegidos, fallo)) return false;
        Recorrer(elegidos);
        return true;
    } catch (const std::bad_alloc&) {
        fallo = DescripcionFallo(ENOMEM);
        return false;
    }
}

void LogicaMultiEscrutinioEstadistico::Recorrer(const std::vector<size_t>& elegidos) {
    std::vector<Sorteado> sorteados;
    for (const size_t i : elegidos) sorteados.emplace_back(SorteosCargados[i].numeros, SorteosCargados[i].numeros[6]);
    InformeMultiEscrutinio informe(entorno);
    const PasosRecorrido pasos{[this](double parte) {
                                   lblProgressBar = parte;
                                   entorno.CederTurno();
                                   return !PararMulti;
                               },
                               [&](size_t i, const CuentaAciertos& cuenta) {
                                   informe.Anotar(SorteosCargados[elegidos[i]], cuenta, Premios[elegidos[i]]);
                                   return true;
                               }};
    if (RecorrerSorteos(ApuestasMulti, sorteados, pasos))
        informe.Terminar(static_cast<int32_t>(ApuestasMulti.Apuestas()));
    Informe = informe.Texto();
    Ganado = informe.Sorteos();
}
