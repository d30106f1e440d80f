#include <filesystem>
#include <fstream>

#include "AlgebraLiteral.h"
#include "Copias.h"
#include "EscrutarLiteral.h"
#include "FicheroApuestasLiteral.h"
#include "ImportarTXTLiteral.h"
#include "Materia.h"
#include "OperacionesSistemas.h"
#include "RecorrerSorteos.h"
#include "Registros.h"
#include "RentabilidadLiteral.h"
#include "RepartirPorCR.h"
#include "modEncriptarFichero.h"
#include "modImportarASCII.h"

namespace {

std::string Leer(const std::string& ruta, size_t bytes) {
    std::string texto(bytes, '\0');
    std::ifstream(ruta, std::ios::binary).read(texto.data(), static_cast<std::streamsize>(bytes));
    return texto;
}

Tabla Primeras(const M& m, int64_t n) {
    Tabla tabla = m->todo;
    tabla.Acortar(n);
    return tabla;
}

constexpr std::array<uint8_t, 6> Ganadores{4, 11, 23, 30, 38, 47};

Comparacion DeUnSorteo(const M& m) {
    return {"sorteo", "the whole ticket against one draw",
            [m] {
                const SorteoPorNumero sorteo({Ganadores, 0}, SorteoPorNumero::SinDigito);
                return int64_t{EscrutarTabla(m->todo, N, sorteo, m->aciertos, m->entorno).Aciertos.Aciertos[3]};
            },
            [m] { m->LeerTabla(); },
            [m] {
                const Tabla pocas = Primeras(m, 500000);
                return EnProporcion(500000, [&] { m->suma += EscrutarLiteral{Ganadores}(pocas).Aciertos.Aciertos[3]; });
            }};
}

Comparacion DeMuchosSorteos(const M& m) {
    std::vector<Sorteado> sorteos;
    for (const Sorteo& s : Historia(300)) sorteos.emplace_back(s.numeros, uint8_t{0});
    return {"sorteos", "the whole ticket against 300 draws",
            [m, sorteos] {
                int64_t treses = 0;
                RecorrerSorteos(m->todo, sorteos,
                                {[](double) { return true; },
                                 [&](size_t, const CuentaAciertos& c) {
                                     treses += c.Aciertos[3];
                                     return true;
                                 }});
                return treses;
            },
            [m] { m->LeerTabla(); },
            [m] {
                const Tabla pocas = Primeras(m, 500000);
                return EnProporcion(
                    500000, [&] { m->suma += EscrutarLiteral{Ganadores}(pocas).Aciertos.Aciertos[3]; }, 300);
            }};
}

using Operar = bool (*)(const Tabla&, const Tabla&, Tabla&, const Turno&);

Comparacion DeAlgebra(const M& m, const char* clave, const char* nombre, OperacionLiteral que, Operar operar) {
    const auto literal = [m, que] {
        constexpr int64_t n = 200000;
        std::vector<Apuesta> s1, s2;
        for (int64_t i = 1; i <= n; ++i)
            for (const auto& [tabla, sistema] : {std::pair{&m->uno, &s1}, {&m->otro, &s2}}) {
                sistema->emplace_back();
                for (int r = 1; r <= 6; ++r) sistema->back().push_back((*tabla)(r, i));
            }
        const int64_t tratadas = que == OperacionLiteral::Ordenar ? n : 2 * n;
        return EnProporcion(tratadas, [&] { m->suma += AlgebraLiteral(que, s1, s2).size(); });
    };
    const bool ordena = que == OperacionLiteral::Ordenar;
    return {clave, nombre,
            [m, operar, ordena] {
                operar(ordena ? m->todo : m->uno, m->otro, m->resultado, [] { return true; });
                return m->resultado.Apuestas();
            },
            [m] { m->LeerTabla(); }, literal};
}

Comparacion DeRentabilidad(const M& m) {
    const auto literal = [m] {
        constexpr int64_t n = 200000;
        const RegistroCOEFICIENTERENTABILIDAD tablas;
        std::vector<Apuesta> apuestas(n);
        for (int64_t i = 1; i <= n; ++i)
            for (int r = 1; r <= 6; ++r) apuestas[static_cast<size_t>(i - 1)].push_back(m->todo(r, i));
        return EnProporcion(n, [&] {
            for (const Apuesta& a : apuestas)
                m->suma += FilaLiteral(a, tablas.PorcentajesApostados, tablas.PorcentajesReales);
        });
    };
    return {"rentabilidad", "profitability of the whole ticket",
            [m] {
                const RegistroCOEFICIENTERENTABILIDAD tablas;
                std::array<int32_t, ValoresCR> cuantas{};
                RepartirPorCR(m->todo, tablas.PorcentajesApostados, tablas.PorcentajesReales, m->valores, cuantas,
                              [] { return true; });
                return int64_t{cuantas[10]};
            },
            [m] { m->LeerTabla(); }, literal};
}

Comparacion DeImportar(const M& m) {
    const auto literal = [m] {
        const std::string bytes = Leer(m->texto, 100000 * 19);
        return EnProporcion(
            100000, [&] { m->suma += ImportarTXTLiteral(false, "PRIMITIVA", 49).Importar(bytes).Apuestas.size(); });
    };
    return {"importar", "import of a text file, 266 MB",
            [m] { return int64_t{ImportarTXTSinReintegros(m->texto, m->resultado, nullptr, m->entorno)}; },
            [m] { Copiar(m->texto, "/dev/null"); }, literal};
}

Comparacion DeLeer(const M& m) {
    const auto literal = [m] {
        constexpr int64_t n = 20000;
        // A file of its own, whose count is that of its bets.
        const Tabla pocas = Primeras(m, n);
        const std::string ruta = m->tom + ".pocas";
        GuardarFicheroApuestas(ruta, "0", n, pocas, nullptr, m->entorno);
        const std::string bytes = Leer(ruta, std::filesystem::file_size(ruta));
        std::filesystem::remove(ruta);
        return EnProporcion(n, [&] { m->suma += LeerLiteral(bytes, false)->size(); });
    };
    return {"leer", "reading of a bet file, 308 MB",
            [m] { return int64_t{LeerFicheroApuestas(m->tom, m->resultado, nullptr, Juegos[PRIMITIVA], m->entorno)}; },
            [m] { Copiar(m->tom, "/dev/null"); }, literal};
}

} // namespace

std::vector<Comparacion> ComparacionesDeHerramientas(const M& m) {
    return {DeUnSorteo(m),
            DeMuchosSorteos(m),
            DeAlgebra(m, "unir", "union of two systems of 7,000,000 bets", OperacionLiteral::Unir, SumarSinRepetidas),
            DeAlgebra(m, "comunes", "their intersection", OperacionLiteral::Comunes, Intersecar),
            DeAlgebra(m, "restar", "their difference", OperacionLiteral::Restar, Restar),
            DeAlgebra(m, "ordenar", "sorting of the whole ticket", OperacionLiteral::Ordenar,
                      [](const Tabla& s1, const Tabla&, Tabla& resultado, const Turno& turno) {
                          return OrdenarSistema(s1, false, resultado, turno);
                      }),
            DeRentabilidad(m),
            DeImportar(m),
            DeLeer(m)};
}
