#include "RepartosLiterales.h"

#include <algorithm>
#include <functional>
#include <map>
#include <memory>

#include "Figuras.h"
#include "FiltroSorteosLiteral.h"
#include "FiltrosDeBloquesLiterales.h"
#include "TablaFiltros.h"
#include "VisitaLiteral.h"

namespace {

using Numeros = std::array<size_t, 7>; // numbers of a bet, 1 to 6
using Literales = std::vector<ApartadoLiteral>;

template <class Valor>
ApartadoLiteral PorApuesta(const Sesion& sesion, const std::string& nombre, Valor valor) {
    ApartadoLiteral apartado{nombre, {}};
    Sesion todas = sesion;
    for (int32_t i = 1; i <= todas.trabajo.ApuestasEnTabla; ++i) todas.trabajo.ApuestaEliminada(1, i) = 0;
    VisitarVivas<size_t>(todas, [&](const Numeros& n) {
        apartado.Valores.push_back(static_cast<int32_t>(valor(n)));
        return false;
    });
    return apartado;
}

template <class Clase>
std::map<size_t, int> PorClase(const Numeros& n, Clase clase) {
    std::map<size_t, int> cuentas;
    for (size_t r = 1; r <= 6; ++r) ++cuentas[clase(n[r])];
    return cuentas;
}

template <class EsDeClase>
ApartadoLiteral Cuenta(const Sesion& sesion, const std::string& nombre, EsDeClase esDeClase) {
    return PorApuesta(sesion, nombre, [&](const Numeros& n) { return std::count_if(&n[1], &n[1] + 6, esDeClase); });
}

// Place of the figure with these sizes in a list that begins with `primera` of all.
int Figura(std::vector<int> tamanos, int primera) {
    std::sort(tamanos.begin(), tamanos.end(), std::greater<>());
    std::string nombre = std::to_string(tamanos[0]);
    for (size_t i = 1; i < tamanos.size(); ++i) nombre += "-" + std::to_string(tamanos[i]);
    if (tamanos.size() == 1) nombre += "-0";
    const auto lugar = std::find(NombresFiguras.begin(), NombresFiguras.end(), nombre);
    return static_cast<int>(lugar - NombresFiguras.begin()) - primera;
}

template <class Clase>
int FiguraDeClases(const Numeros& n, Clase clase, int primera) {
    std::vector<int> tamanos;
    for (const auto& [c, cuenta] : PorClase(n, clase)) tamanos.push_back(cuenta);
    return Figura(tamanos, primera);
}

std::vector<int> Rachas(const Numeros& n) {
    std::vector<int> rachas{1};
    for (size_t k = 2; k <= 6; ++k) {
        if (n[k] != n[k - 1] + 1) rachas.push_back(0);
        ++rachas.back();
    }
    return rachas;
}

size_t Suma(const Numeros& n, size_t desde, size_t hasta) {
    size_t suma = 0;
    for (size_t r = desde; r <= hasta; ++r) suma += n[r];
    return suma;
}

bool SeTocan(size_t a, size_t b) {
    const auto cerca = [](size_t x, size_t y) { return x <= y + 1 && y <= x + 1; };
    return a != b && cerca(a / 10, b / 10) && cerca(a % 10, b % 10);
}

// How many of the groups in use a bet satisfies, each asked of the literal filter with nothing else chosen:
// `elegir` chooses group g and says whether it is in use.
Literales GruposQueSeCumplen(const Sesion& sesion, size_t grupos, int32_t (*filtrar)(Sesion&),
                             const std::function<bool(size_t g, Condiciones&)>& elegir) {
    ApartadoLiteral apartado = PorApuesta(sesion, "Grupos que se cumplen", [](const Numeros&) { return 0; });
    for (size_t g = 0; g < grupos; ++g) {
        auto una = std::make_unique<Sesion>();
        if (!elegir(g, una->condiciones)) continue;
        una->trabajo = sesion.trabajo;
        for (int32_t i = 1; i <= una->trabajo.ApuestasEnTabla; ++i) una->trabajo.ApuestaEliminada(1, i) = 0;
        filtrar(*una);
        for (int32_t i = 1; i <= una->trabajo.ApuestasEnTabla; ++i)
            apartado.Valores[static_cast<size_t>(i - 1)] += una->trabajo.ApuestaEliminada(1, i) == 0;
    }
    return {apartado};
}

Literales DeGRUPOS(const Sesion& sesion) {
    return GruposQueSeCumplen(sesion, 210, LiteralGRUPOS, [&](size_t g, Condiciones& c) {
        c.GRUPOS.grupo[0] = sesion.condiciones.GRUPOS.grupo[g];
        return EnVigor(c.GRUPOS.grupo[0].numeros);
    });
}

Literales DeGRUPOSENTRELIMITES(const Sesion& sesion) {
    return GruposQueSeCumplen(sesion, 210, LiteralGRUPOSENTRELIMITES, [&](size_t g, Condiciones& c) {
        c.GRUPOSENTRELIMITES.grupo[0] = sesion.condiciones.GRUPOSENTRELIMITES.grupo[g];
        c.GRUPOSENTRELIMITES.aciertosMinimoGRUPOSENTRELIMITES = 1;
        return EnVigor(c.GRUPOSENTRELIMITES.grupo[0].numeros);
    });
}

Literales DeGRUPOSRELACIONADOS(const Sesion& sesion) {
    return GruposQueSeCumplen(sesion, 60, LiteralGRUPOSRELACIONADOS, [&](size_t g, Condiciones& c) {
        const RegistroGRUPOSRELACIONADOS& registro = sesion.condiciones.GRUPOSRELACIONADOS;
        bool enUso = false;
        for (size_t i = 0; i < 6; ++i) {
            c.GRUPOSRELACIONADOS.subgrupos[i] = registro.subgrupos[6 * g + i];
            c.GRUPOSRELACIONADOS.condiciones[i] = registro.condiciones[6 * g + i];
            enUso |= EnVigor(registro.subgrupos[6 * g + i]);
        }
        return enUso;
    });
}

Literales DeDECENAS(const Sesion& s) {
    const auto decena = [](size_t x) { return x / 10; };
    Literales apartados;
    for (size_t c = 0; c < 5; ++c)
        apartados.push_back(Cuenta(s,
                                   "Decena " + std::to_string(c == 0 ? 1 : 10 * c) + "-" + std::to_string(10 * c + 9),
                                   [&](size_t x) { return decena(x) == c; }));
    apartados.push_back(PorApuesta(s, "Figuras", [&](const Numeros& n) { return FiguraDeClases(n, decena, 0); }));
    return apartados;
}

Literales DeTERMINACIONES(const Sesion& s) {
    const auto digito = [](size_t x) { return x % 10; };
    Literales apartados;
    for (size_t c = 0; c < 10; ++c)
        apartados.push_back(Cuenta(s, "Terminados en " + std::to_string(c), [&](size_t x) { return digito(x) == c; }));
    apartados.push_back(PorApuesta(s, "Suma de terminaciones", [&](const Numeros& n) {
        size_t suma = 0;
        for (size_t r = 1; r <= 6; ++r) suma += digito(n[r]);
        return suma;
    }));
    apartados.push_back(PorApuesta(s, "Figuras", [&](const Numeros& n) { return FiguraDeClases(n, digito, 1); }));
    return apartados;
}

Literales DeSEGUIDOS(const Sesion& s) {
    return {PorApuesta(s, "Racha más larga",
                       [](const Numeros& n) {
                           const auto rachas = Rachas(n);
                           return *std::max_element(rachas.begin(), rachas.end());
                       }),
            PorApuesta(s, "Figuras", [](const Numeros& n) { return Figura(Rachas(n), 0); })};
}

Literales DeHOMOLOGOS(const Sesion& s) {
    return {PorApuesta(s, "Mayor grupo", [](const Numeros& n) {
        int mayor = 0;
        for (const auto& [grupo, cuenta] : PorClase(n, [](size_t x) { return (x - 1) % 9; }))
            mayor = std::max(mayor, cuenta);
        return mayor;
    })};
}

Literales DeCOLINDANTES(const Sesion& s) {
    return {PorApuesta(s, "Colindantes", [](const Numeros& n) {
        return std::count_if(&n[1], &n[1] + 6, [&](size_t a) {
            return std::any_of(&n[1], &n[1] + 6, [&](size_t b) { return SeTocan(a, b); });
        });
    })};
}

Literales DeDISTANCIAS(const Sesion& s) {
    const auto entre = [&](size_t a, size_t b) {
        return PorApuesta(s, "Distancia " + std::to_string(a) + "-" + std::to_string(b),
                          [=](const Numeros& n) { return static_cast<int>(n[b]) - static_cast<int>(n[a]); });
    };
    return {entre(1, 2), entre(2, 3), entre(3, 4), entre(4, 5), entre(5, 6), entre(1, 6)};
}

Literales DePOSICIONES(const Sesion& s) {
    Literales apartados;
    for (size_t k = 1; k <= 6; ++k)
        apartados.push_back(PorApuesta(s, "Bola " + std::to_string(k), [&](const Numeros& n) { return n[k]; }));
    return apartados;
}

Literales DeVALORACIONES(const Sesion& s) {
    Literales apartados;
    for (size_t g = 0; g < RegistroVALORACIONES::Grupos; ++g) {
        const GrupoValoraciones& grupo = s.condiciones.VALORACIONES.grupo[g];
        bool enUso = false;
        for (const int16_t marca : grupo.valoraciones) enUso |= marca != 0;
        for (const Intervalo& i : grupo.intervalos) enUso |= i.Minimo != 0 || i.Maximo != 0;
        if (!enUso) continue;
        apartados.push_back(PorApuesta(s, "Grupo " + std::to_string(g + 1), [&](const Numeros& n) {
            int32_t suma = 0;
            for (size_t r = 1; r <= 6; ++r) suma += grupo.valoraciones[n[r]];
            return suma;
        }));
    }
    return apartados;
}

Literales DeSORTEOSANTERIORES(const Sesion& s) {
    Literales apartados;
    for (size_t g = 0; g < RegistroSORTEOSANTERIORES::Grupos; ++g) {
        const BloqueSorteos& bloque = s.condiciones.SORTEOSANTERIORES.grupo[g];
        if (!EnVigor(bloque.acertarEN)) continue;
        const Sorteos sorteos = SorteosDeBloqueLiteral(s.condiciones.SorteosFiltro, bloque);
        apartados.push_back(PorApuesta(s, "Grupo " + std::to_string(g + 1), [&](const Numeros& n) {
            std::array<uint8_t, 7> apuesta{};
            for (size_t r = 1; r <= 6; ++r) apuesta[r] = static_cast<uint8_t>(n[r]);
            return SorteosAcertados(sorteos, bloque, apuesta);
        }));
    }
    return apartados;
}

} // namespace

std::vector<ApartadoLiteral> ApartadosLiterales(int k, const Sesion& s) {
    switch (k) {
    case kALTOSBAJOS:
        return {Cuenta(s, "Bajos", [](size_t x) { return x <= 24; }),
                Cuenta(s, "Altos", [](size_t x) { return x >= 25; })};
    case kDECENAS:
        return DeDECENAS(s);
    case kDISTANCIAS:
        return DeDISTANCIAS(s);
    case kGRUPOS:
        return DeGRUPOS(s);
    case kGRUPOSRELACIONADOS:
        return DeGRUPOSRELACIONADOS(s);
    case kHOMOLOGOS:
        return DeHOMOLOGOS(s);
    case kPARESIMPARES:
        return {Cuenta(s, "Pares", [](size_t x) { return x % 2 == 0; })};
    case kSEGUIDOS:
        return DeSEGUIDOS(s);
    case kSUMAS:
        return {PorApuesta(s, "Suma", [](const Numeros& n) { return Suma(n, 1, 6); })};
    case kTERMINACIONES:
        return DeTERMINACIONES(s);
    case kPOSICIONES:
        return DePOSICIONES(s);
    case kEXTERIORESINTERIORES:
        return {
            Cuenta(s, "Exteriores", [](size_t x) { return x / 10 == 0 || x / 10 == 4 || x % 10 == 0 || x % 10 == 9; })};
    case kSUPERIORESINFERIORES:
        return {Cuenta(s, "Superiores", [](size_t x) { return x % 10 <= 4; })};
    case kCOLINDANTES:
        return DeCOLINDANTES(s);
    case kSORTEOSANTERIORES:
        return DeSORTEOSANTERIORES(s);
    case kSUMASPORTRIOS:
        return {PorApuesta(s, "Tres primeros", [](const Numeros& n) { return Suma(n, 1, 3); }),
                PorApuesta(s, "Tres últimos", [](const Numeros& n) { return Suma(n, 4, 6); })};
    case kVALORACIONES:
        return DeVALORACIONES(s);
    case kCOEFICIENTERENTABILIDAD:
        return {PorApuesta(s, "Coeficiente",
                           [&](const Numeros& n) { return ClaseLiteralCR(s.condiciones.COEFICIENTERENTABILIDAD, n); })};
    default:
        return DeGRUPOSENTRELIMITES(s);
    }
}
