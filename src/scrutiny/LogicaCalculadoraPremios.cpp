#include "LogicaCalculadoraPremios.h"

#include <algorithm>
#include <cerrno>
#include <chrono>
#include <cmath>
#include <new>

#include <fmt/format.h>

#include "Ficheros.h"
#include "FormatoImporte.h"
#include "modGeneral.h"

namespace {

constexpr std::array<CategoriaServicio, NCategoriasPremio> CategoriasDelSorteo{CAT6, CAT5C, CAT5, CAT4, CAT3};

// A whole number of one to four figures, as in a date; 0 for anything else.
int ParteDeFecha(std::string_view texto) {
    const bool cifras = std::all_of(texto.begin(), texto.end(), [](char c) { return c >= '0' && c <= '9'; });
    int32_t n = 0;
    return cifras && texto.size() <= 4 && LeerEntero(texto, n) ? n : 0;
}

std::chrono::year_month_day Fecha(int anio, int mes, int dia) {
    return std::chrono::year(anio) / std::chrono::month(static_cast<unsigned>(mes)) /
           std::chrono::day(static_cast<unsigned>(dia));
}

// Monday is 0.
int DiaDeLaSemana(const FechaHora& hoy) {
    const std::chrono::weekday dia{std::chrono::sys_days(Fecha(hoy.Anio, hoy.Mes, hoy.Dia))};
    return static_cast<int>(dia.iso_encoding()) - 1;
}

// "50,00" as "50" and "33,30" as "33,3".
std::string SinCerosFinales(std::string importe) {
    while (importe.ends_with('0')) importe.pop_back();
    if (importe.back() < '0' || importe.back() > '9') importe.pop_back();
    return importe;
}

// The product of one category. False where a box holds no number.
bool Importe(const std::string& premios, const std::string& euros, double& importe) {
    int32_t cuantos = 0;
    double cada = 0;
    if (!LeerEntero(premios, cuantos) || Recortar(euros).empty() || !LeerImporte(euros, cada)) return false;
    importe = cuantos * cada;
    return std::isfinite(importe);
}

} // namespace

LogicaCalculadoraPremios::LogicaCalculadoraPremios(const LogicaEscrutar& origen)
    : escrutar(origen), entorno(origen.entorno) {
    const FechaHora hoy = entorno.Ahora();
    txtDia = Formato00(hoy.Dia);
    txtMes = Formato00(hoy.Mes);
    txtAnio = fmt::format("{:04}", hoy.Anio);
    cboDia = DiaDeLaSemana(hoy);
    txtCalculadoraPremios = escrutar.txtCalculadoraPremios;
    Recalcular();
}

std::string LogicaCalculadoraPremios::Titulo() const {
    return "Calculadora de Premios : " + escrutar.sesion.trabajo.TipoJuego();
}

void LogicaCalculadoraPremios::CambiarPremios(size_t categoria, const std::string& texto) {
    txtCalculadoraPremios[categoria] = texto;
    Recalcular();
}

void LogicaCalculadoraPremios::CambiarEuros(size_t categoria, const std::string& texto) {
    txtCalculadoraEuros[categoria] = texto;
    Recalcular();
}

void LogicaCalculadoraPremios::cmdIniCalculadoraPremios() {
    txtCalculadoraEuros.fill("0");
    Recalcular();
}

double LogicaCalculadoraPremios::CalcularTotal() const {
    double total = 0, importe = 0;
    for (size_t c = 0; c < NCategoriasPremio; ++c) {
        if (!Importe(txtCalculadoraPremios[c], txtCalculadoraEuros[c], importe)) break;
        total += importe;
    }
    return std::isfinite(total) ? total : 0;
}

// A bet costs one euro in either game.
void LogicaCalculadoraPremios::Recalcular() {
    const double total = CalcularTotal();
    const int32_t apuestas = escrutar.ApuestasATRATAR;
    txtPremiosTOTAL = FormatoImporte(total, entorno.SeparadorDecimal);
    const double porcentaje = apuestas == 0 ? 0 : total * 100 / apuestas;
    Rentable = std::round(porcentaje * 100) >= 100 * 100;
    txtPorcentajeTOTAL = SinCerosFinales(FormatoImporte(porcentaje, entorno.SeparadorDecimal)) + "%";
}

bool LogicaCalculadoraPremios::FalloAlCargar(const std::string& descripcion) {
    txtRecaudacion = txtBote = txtNumeroSorteo = "0";
    txtSorteoPremios.fill("0");
    txtSorteoAciertos.fill("0");
    return Fallo(entorno, "ERROR AL CARGAR EL FICHERO DE SORTEOS (" + descripcion + ")");
}

bool LogicaCalculadoraPremios::ConsultarSorteos(std::vector<SorteoConPremios>& sorteos) {
    const std::string juego = escrutar.sesion.trabajo.TipoJuego();
    RespuestaServicio respuesta;
    if (!ConsultarServicioSorteos(respuesta, "temporada=todas&combinaciones=0&juego=" + juego, entorno))
        return FalloAlCargar(respuesta.Fallo());
    if (!respuesta.Legible()) return Fallo(entorno, "ERROR AL CARGAR EL FICHERO DE SORTEOS - " + respuesta.Motivo());
    return respuesta.LeerSorteos(juego, sorteos) || FalloAlCargar(respuesta.Fallo());
}

bool LogicaCalculadoraPremios::cmdConsultarSorteo() {
    std::vector<SorteoConPremios> sorteos;
    Consultando = true;
    entorno.CederTurno();
    bool leidos = false;
    try {
        leidos = ConsultarSorteos(sorteos);
    } catch (const std::bad_alloc&) {
        FalloAlCargar(DescripcionFallo(ENOMEM));
    }
    Consultando = false;
    if (!leidos) return false;
    const std::string dia(Recortar(txtDia)), mes(Recortar(txtMes)), anio(Recortar(txtAnio));
    const int numero = ParteDeFecha(anio);
    if (numero == 0 || !Fecha(numero, ParteDeFecha(mes), ParteDeFecha(dia)).ok())
        return Fallo(entorno, "ERROR: FECHA DE SORTEO INCORRECTA");
    // Character for character: the leading zeros are those of the service.
    const std::string fecha = dia + "/" + mes + "/" + anio;
    const auto sorteo =
        std::find_if(sorteos.begin(), sorteos.end(), [&](const SorteoConPremios& s) { return s.fecha == fecha; });
    if (sorteo == sorteos.end()) return Fallo(entorno, "ERROR: SORTEO NO ENCONTRADO");
    MostrarSorteo(*sorteo);
    return true;
}

void LogicaCalculadoraPremios::MostrarSorteo(const SorteoConPremios& sorteo) {
    txtRecaudacion = FormatoImporte(sorteo.recaudacion, entorno.SeparadorDecimal, entorno.SeparadorMiles);
    txtBote = FormatoImporte(sorteo.bote, entorno.SeparadorDecimal, entorno.SeparadorMiles);
    txtNumeroSorteo = std::to_string(sorteo.sorteo);
    cboDia = sorteo.dia - 1;
    for (size_t c = 0; c < NCategoriasPremio; ++c) {
        const PremioServicio& premio = sorteo.categoria[CategoriasDelSorteo[c]];
        txtSorteoPremios[c] = TextoDecimal(premio.premio, entorno.SeparadorDecimal);
        txtSorteoAciertos[c] = FormatoMiles(premio.acertantes, entorno.SeparadorMiles);
    }
    txtCalculadoraEuros = txtSorteoPremios;
    Recalcular();
}

std::string LogicaCalculadoraPremios::Copiar() const {
    std::string tabla = "Categoría\tNºPremios\tEuros\n";
    for (size_t c = 0; c < NCategoriasPremio; ++c)
        tabla += fmt::format("{}\t{}\t{}\n", NombresPremio[c], txtCalculadoraPremios[c], txtCalculadoraEuros[c]);
    return tabla + "Total Cobrado\t" + txtPremiosTOTAL + "\nPorcentaje Recuperado\t" + txtPorcentajeTOTAL + "\n";
}
