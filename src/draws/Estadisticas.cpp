#include "Estadisticas.h"

#include <algorithm>

#include <fmt/format.h>

namespace {

using Numeros = std::array<int, 6>; // ascending

// By the value that is counted, of which a sum is the greatest: 6 x 49.
using Cuentas = std::array<int64_t, 295>;

constexpr int SumaMinima = 21, SumaMaxima = 279, PasoBanda = 10;

int64_t& De(Cuentas& cuentas, int valor) {
    return cuentas[static_cast<size_t>(valor)];
}

bool Alto(int n) {
    return n > 24;
}

bool Par(int n) {
    return n % 2 == 0;
}

// The border of the ticket of ten columns.
bool Exterior(int n) {
    return n <= 10 || n >= 40 || n % 10 == 9 || n % 10 == 0;
}

bool Superior(int n) {
    return n % 10 <= 4;
}

template <bool (*Cumple)(int)>
void Cuantos(const Numeros& numeros, Cuentas& cuentas) {
    ++De(cuentas, static_cast<int>(std::count_if(numeros.begin(), numeros.end(), Cumple)));
}

void CadaNumero(const Numeros& numeros, Cuentas& cuentas) {
    for (const int n : numeros) ++De(cuentas, n);
}

void CadaDecena(const Numeros& numeros, Cuentas& cuentas) {
    for (const int n : numeros) ++De(cuentas, n / 10);
}

void CadaTerminacion(const Numeros& numeros, Cuentas& cuentas) {
    for (const int n : numeros) ++De(cuentas, n % 10);
}

void CadaDistancia(const Numeros& numeros, Cuentas& cuentas) {
    for (size_t i = 1; i < numeros.size(); ++i) ++De(cuentas, numeros[i] - numeros[i - 1]);
}

void MayorSeguida(const Numeros& numeros, Cuentas& cuentas) {
    int seguidos = 1, mayor = 1;
    for (size_t i = 1; i < numeros.size(); ++i) {
        seguidos = numeros[i] == numeros[i - 1] + 1 ? seguidos + 1 : 1;
        mayor = std::max(mayor, seguidos);
    }
    ++De(cuentas, mayor);
}

// A band takes eleven sums and the next one starts ten later: the sum at the seam counts in both, on
// purpose.
void BandasDeSuma(const Numeros& numeros, Cuentas& cuentas) {
    int suma = 0;
    for (const int n : numeros) suma += n;
    if (suma < SumaMinima || suma > SumaMaxima) return;
    const int dentro = (suma - SumaMinima) % PasoBanda;
    ++De(cuentas, suma - dentro);
    if (dentro == 0 && suma > SumaMinima) ++De(cuentas, suma - PasoBanda);
}

// The two figures of a row's head, from its value.
struct Cabeza {
    int Una, Otra;
};

Cabeza Valor(int v) {
    return {v, 0};
}

Cabeza HastaSeis(int v) {
    return {v, 6 - v};
}

Cabeza LimitesDecena(int decena) {
    return {std::max(10 * decena, 1), 10 * decena + 9};
}

// The upper bound that is shown is one more than the band's last sum, on purpose.
Cabeza LimitesBanda(int suma) {
    return {suma, suma + PasoBanda + 1};
}

struct Definicion {
    std::string_view Nombre, Titulo;
    void (*Contar)(const Numeros&, Cuentas&);
    int Primero, Ultimo, Paso; // values of the rows
    bool SoloConVeces;         // a row with no count is left out
    Cabeza (*DeValor)(int);
    const char *Etiqueta, *Linea; // {0} and {1} of the head, {2} the count
};

constexpr std::array<Definicion, NEstadisticas> Definiciones{{
    {"Números", "Número     Apariciones", CadaNumero, 1, 49, 1, true, Valor, "{0:02}", "{0:02} ---> {2}"},
    {"Bajos y Altos", "Bajos  Altos          Apariciones", Cuantos<Alto>, 0, 6, 1, false, HastaSeis, "{1}-{0}",
     "{1}    {0}  ---> {2}"},
    {"Decenas", "Decena            Apariciones", CadaDecena, 0, 4, 1, false, LimitesDecena, "{0:02}-{1:02}",
     "{0:02}-{1:02} ---> {2}"},
    {"Distancias", "Distancias      Veces", CadaDistancia, 1, 44, 1, false, Valor, "{0}", "{0:2}  --->  {2}"},
    {"Pares e Impares", "Pares    Impares       Apariciones", Cuantos<Par>, 6, 0, -1, false, HastaSeis, "{0}-{1}",
     "{0}     {1}  --->  {2}"},
    {"Seguidos", "Seguidos     Apariciones", MayorSeguida, 1, 6, 1, false, Valor, "{0}", "{0}  --->  {2}"},
    {"Sumas", "Sumas                 Apariciones", BandasDeSuma, SumaMinima, SumaMaxima, PasoBanda, true, LimitesBanda,
     "{0:03}-{1:03}", "{0:03}-{1:03} ---> {2}"},
    {"Terminaciones", "Terminados en         Apariciones", CadaTerminacion, 0, 9, 1, false, Valor, "{0}",
     "   {0}    --->   {2}"},
    {"Exteriores/Interiores", "Exteriores Interiores     Apariciones", Cuantos<Exterior>, 6, 0, -1, false, HastaSeis,
     "{0}-{1}", "{0}       {1}  --->  {2}"},
    {"Superiores/Inferiores", "Superiores Inferiores    Apariciones", Cuantos<Superior>, 6, 0, -1, false, HastaSeis,
     "{0}-{1}", "{0}       {1}  --->  {2}"},
}};

constexpr int Decenas = 2;

const Definicion& DefinicionDe(int tipo) {
    return Definiciones.at(static_cast<size_t>(tipo));
}

// A draw's numbers may stand in any order.
Numeros Ordenados(const Sorteo& sorteo) {
    Numeros numeros;
    std::copy_n(sorteo.numeros.begin(), numeros.size(), numeros.begin());
    std::sort(numeros.begin(), numeros.end());
    return numeros;
}

} // namespace

bool Coincide(const Sorteo& sorteo, const ConsultaSorteos& consulta) {
    return sorteo.anio >= consulta.anioDesde && sorteo.anio <= consulta.anioHasta &&
           sorteo.sorteo >= consulta.sorteoDesde && sorteo.sorteo <= consulta.sorteoHasta &&
           (consulta.dia == 0 || consulta.dia == sorteo.dia);
}

int64_t ContarCoincidentes(const Sorteos& sorteos, const ConsultaSorteos& consulta) {
    return std::count_if(sorteos.begin(), sorteos.end(), [&](const Sorteo& s) { return Coincide(s, consulta); });
}

std::string_view NombreEstadistica(int tipo) {
    return DefinicionDe(tipo).Nombre;
}

std::string_view TituloEstadistica(int tipo) {
    return DefinicionDe(tipo).Titulo;
}

std::vector<BarraEstadistica> FigurasEstadistica(int tipo, const Sorteos& sorteos, const ConsultaSorteos& consulta) {
    const Definicion& definicion = DefinicionDe(tipo);
    Cuentas cuentas{};
    for (const Sorteo& sorteo : sorteos)
        if (Coincide(sorteo, consulta)) definicion.Contar(Ordenados(sorteo), cuentas);

    std::vector<BarraEstadistica> figuras;
    const int filas = (definicion.Ultimo - definicion.Primero) / definicion.Paso + 1;
    for (int fila = 0; fila < filas; ++fila) {
        const int valor = definicion.Primero + fila * definicion.Paso;
        const int64_t veces = De(cuentas, valor);
        const Cabeza cabeza = definicion.DeValor(valor);
        if (veces > 0 || !definicion.SoloConVeces)
            figuras.push_back({fmt::format(fmt::runtime(definicion.Etiqueta), cabeza.Una, cabeza.Otra), veces, valor});
    }
    return figuras;
}

std::string TextoEstadistica(int tipo, const std::vector<BarraEstadistica>& figuras) {
    const Definicion& definicion = DefinicionDe(tipo);
    std::string texto;
    for (const BarraEstadistica& figura : figuras) {
        const Cabeza cabeza = definicion.DeValor(figura.valor);
        texto += fmt::format(fmt::runtime(definicion.Linea), cabeza.Una, cabeza.Otra, figura.veces) + "\n";
    }
    // This one alone ends without a line end.
    if (tipo == Decenas) texto.pop_back();
    return texto;
}
