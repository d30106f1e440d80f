#include <algorithm>

#include "CasosFiltros.h"
#include "Evaluadores.h"
#include "FiltroSorteosLiteral.h"

namespace {

constexpr int16_t Anio = 2023;

// Numbers as they were drawn, a few of them what only a broken answer could bring.
Sorteo SorteoAlAzar(Dados& s) {
    Sorteo sorteo;
    const bool raro = s.UnaDe(12);
    for (size_t j = 0; j < sorteo.numeros.size(); ++j) {
        do {
            sorteo.numeros[j] =
                static_cast<uint8_t>(raro ? s.UnaDe(3) ? s.Entre(0, 255) : s.Entre(0, 3) * 7 : s.Entre(1, 49));
        } while (!raro && std::count(sorteo.numeros.begin(), sorteo.numeros.begin() + static_cast<std::ptrdiff_t>(j),
                                     sorteo.numeros[j]) > 0);
    }
    sorteo.anio = s.UnaDe(30) ? s.Entre(-3, 3) : static_cast<int16_t>(Anio - s.Entre(0, 2));
    sorteo.sorteo = static_cast<uint16_t>(s.UnaDe(20) ? s.Entre(0, 1) * 65535 : s.Entre(1, 120));
    sorteo.dia = static_cast<uint8_t>(s.Entre(0, 7));
    return sorteo;
}

BloqueSorteos BloqueAlAzar(Dados& s, int32_t sorteos) {
    BloqueSorteos b;
    b.DESDE = {static_cast<int16_t>(Anio - s.Entre(0, 2)), s.Entre(1, 110)};
    b.HASTA = {static_cast<int16_t>(Anio - s.Entre(0, 1)), s.Entre(50, 120)};
    if (s.UnaDe(5)) b.DESDE = {-32768, 1};
    if (s.UnaDe(5)) b.HASTA = {32767, 32767};
    if (s.UnaDe(12)) b.DESDE.numero = s.Entre(-32768, 0);
    if (s.UnaDe(3)) b.sorteoDIAS = s.UnaDe(6) ? s.Entre(-2, 300) : s.Entre(1, 7);
    for (uint8_t& marca : b.acertarEN) marca = static_cast<uint8_t>(s.UnaDe(15) ? 2 : s.UnaDe(2));
    b.aciertosMinimoSORTEOS = s.UnaDe(8) ? -5 : s.azar.Entero(sorteos / 3 + 1);
    b.aciertosMaximoSORTEOS = s.UnaDe(10)  ? -1
                              : s.UnaDe(4) ? INT32_MAX
                                           : b.aciertosMinimoSORTEOS + s.azar.Entero(sorteos / 2 + 1);
    if (s.UnaDe(8)) b.aciertosMinimoSORTEOS = b.aciertosMaximoSORTEOS = 0;
    return b;
}

void SortearSORTEOSANTERIORES(Dados& s, Condiciones& c) {
    const size_t n = s.UnaDe(3) ? 1 + s.UnaDe(2) : static_cast<size_t>(s.Entre(3, 700));
    c.SorteosFiltro = HistoriaAlAzar(s, n);
    for (int32_t usados = s.Entre(1, 2); usados > 0; --usados)
        c.SORTEOSANTERIORES.grupo[static_cast<size_t>(s.Entre(0, 19))] = BloqueAlAzar(s, static_cast<int32_t>(n));
}

} // namespace

Sorteos HistoriaAlAzar(Dados& s, size_t n) {
    Sorteos sorteos;
    while (sorteos.size() < n)
        sorteos.push_back(!sorteos.empty() && s.UnaDe(6)
                              ? sorteos[static_cast<size_t>(s.azar.Entero(static_cast<int32_t>(sorteos.size())))]
                              : SorteoAlAzar(s));
    return sorteos;
}

const CasoEvaluador& CasoSorteos() {
    static const CasoEvaluador caso{"SORTEOSANTERIORES", FiltrarSORTEOSANTERIORES, LiteralSORTEOSANTERIORES,
                                    SortearSORTEOSANTERIORES};
    return caso;
}
