#include "HistoriaInventada.h"

#include <algorithm>
#include <chrono>
#include <numeric>
#include <random>

#include <fmt/format.h>

namespace {

constexpr int PrimerAnio = 1990, SorteosPorAnio = 300;

std::chrono::sys_days DiaDelSorteo(const Sorteo& sorteo) {
    using namespace std::chrono;
    return sys_days(year(sorteo.anio) / January / 1) + days(sorteo.sorteo - 1);
}

uint8_t DiaDeLaSemana(const Sorteo& sorteo) {
    return static_cast<uint8_t>(std::chrono::weekday(DiaDelSorteo(sorteo)).iso_encoding());
}

std::string Fecha(const Sorteo& sorteo) {
    const std::chrono::year_month_day dia(DiaDelSorteo(sorteo));
    return fmt::format("{:02}/{:02}/{:04}", static_cast<unsigned>(dia.day()), static_cast<unsigned>(dia.month()),
                       static_cast<int>(dia.year()));
}

double Euros(std::mt19937& azar, uint32_t centimosMaximos) {
    return static_cast<double>(azar() % centimosMaximos) / 100;
}

std::string Importe(double euros) {
    std::string texto = fmt::format("{:.2f}", euros);
    std::replace(texto.begin(), texto.end(), '.', ',');
    return texto;
}

std::string Numeros(const Sorteo& sorteo) {
    std::string texto;
    for (size_t j = 0; j < sorteo.numeros.size(); ++j)
        texto += fmt::format("{}{:02}", j == 0 ? "" : ",", sorteo.numeros[j]);
    return texto;
}

std::string Momento(const Sorteo& sorteo) {
    return fmt::format("anio=\"{}\" sorteo=\"{}\" dia=\"{}\"", sorteo.anio, sorteo.sorteo,
                       LetrasDia[sorteo.dia - size_t{1}]);
}

std::string Escrutinio(const SorteoConPremios& premios) {
    constexpr std::array<const char*, NCategoriasServicio> nombres{"CAT6R", "CAT6", "CAT5C", "CAT5", "CAT4", "CAT3"};
    std::string texto = "<ESCRUTINIO>";
    for (size_t c = 0; c < nombres.size(); ++c) {
        const PremioServicio& premio = premios.categoria[c];
        texto += fmt::format("<{} premio=\"{}\"", nombres[c], Importe(premio.premio));
        if (c != CAT6R) texto += fmt::format(" acertantes=\"{}\"", premio.acertantes);
        texto += "/>";
    }
    return texto + "</ESCRUTINIO>";
}

} // namespace

Sorteos SorteosInventados(int juego, size_t cuantos, uint32_t semilla) {
    const Juego& j = Juegos[static_cast<size_t>(juego)];
    std::mt19937 azar(semilla);
    std::vector<uint8_t> bombo(static_cast<size_t>(j.NumeroMaximo));
    std::iota(bombo.begin(), bombo.end(), uint8_t{1});
    Sorteos sorteos(cuantos);
    for (size_t i = 0; i < cuantos; ++i) {
        Sorteo& sorteo = sorteos[i];
        sorteo.anio = static_cast<int16_t>(PrimerAnio + i / SorteosPorAnio);
        sorteo.sorteo = static_cast<uint16_t>(i % SorteosPorAnio + 1);
        sorteo.dia = DiaDeLaSemana(sorteo);
        for (size_t k = 0; k < 7; ++k) std::swap(bombo[k], bombo[k + azar() % (bombo.size() - k)]);
        std::sort(bombo.begin(), bombo.begin() + 6);
        std::copy_n(bombo.begin(), 6, sorteo.numeros.begin());
        sorteo.numeros[6] = juego == EURODREAMS ? uint8_t{0} : bombo[6];
        sorteo.numeros[7] = static_cast<uint8_t>(juego == EURODREAMS ? 1 + azar() % 5 : azar() % 10);
    }
    return sorteos;
}

std::vector<SorteoConPremios> PremiosInventados(const Sorteos& sorteos, uint32_t semilla) {
    std::mt19937 azar(semilla);
    std::vector<SorteoConPremios> premios;
    for (const Sorteo& sorteo : sorteos) {
        SorteoConPremios& nuevo = premios.emplace_back();
        nuevo.anio = sorteo.anio;
        nuevo.sorteo = sorteo.sorteo;
        nuevo.dia = sorteo.dia;
        nuevo.fecha = Fecha(sorteo);
        nuevo.recaudacion = Euros(azar, 1'000'000'000);
        nuevo.bote = Euros(azar, 500'000'000);
        uint32_t tope = 1'000'000'000;
        for (size_t c = 0; c < NCategoriasServicio; ++c, tope /= 20) {
            nuevo.categoria[c].premio = Euros(azar, tope);
            nuevo.categoria[c].acertantes = c == CAT6R ? 0 : static_cast<int32_t>(azar() % (1'000'000'000 / tope * 10));
        }
    }
    return premios;
}

std::string RespuestaXML(int juego, const Sorteos& sorteos, const std::vector<SorteoConPremios>& premios) {
    const std::string nombre(Juegos[static_cast<size_t>(juego)].Nombre);
    std::string xml = "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n<respuesta>\n<" + nombre + ">\n<COMBINACIONES>\n";
    for (const Sorteo& sorteo : sorteos)
        xml += fmt::format("<COMBINACION numeros=\"{}\" {}/>\n", Numeros(sorteo), Momento(sorteo));
    xml += "</COMBINACIONES>\n<SORTEOS>\n";
    for (size_t i = 0; i < premios.size(); ++i)
        xml += fmt::format("<SORTEO {} fecha=\"{}\" recaudacion=\"{}\" bote=\"{}\">{}</SORTEO>\n", Momento(sorteos[i]),
                           premios[i].fecha, Importe(premios[i].recaudacion), Importe(premios[i].bote),
                           Escrutinio(premios[i]));
    return xml + "</SORTEOS>\n</" + nombre + ">\n</respuesta>\n";
}

std::string TextoFicheroSorteos(const Sorteos& sorteos) {
    std::string texto = "\r\n";
    for (const Sorteo& sorteo : sorteos)
        texto += fmt::format("{} {} {} {}\r\n", Numeros(sorteo), sorteo.anio, sorteo.sorteo,
                             LetrasDia[sorteo.dia - size_t{1}]);
    return texto;
}
