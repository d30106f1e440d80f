// Both importers of text files of bets, and the repeated bets among what they read. The first byte
// chooses the game and the importer; the rest is the file.
#include "Difusion.h"
#include "ImportarTXTLiteral.h"
#include "Repetidas.h"
#include "modImportarASCII.h"

namespace {

std::vector<ApuestaLiteral> EnListas(const Tabla& tabla) {
    std::vector<ApuestaLiteral> apuestas(static_cast<size_t>(tabla.Apuestas()));
    for (size_t i = 0; i < apuestas.size(); ++i)
        for (int r = 1; r <= 7; ++r) apuestas[i].push_back(tabla(r, static_cast<int64_t>(i) + 1));
    return apuestas;
}

// Whole bets, ascending as the importers leave them, so that equal bets are equal lists.
int32_t RepetidasLiteral(const std::vector<ApuestaLiteral>& apuestas) {
    std::vector<ApuestaLiteral> numeros = apuestas;
    for (ApuestaLiteral& a : numeros) a.resize(6);
    std::sort(numeros.begin(), numeros.end());
    return static_cast<int32_t>(numeros.end() - std::unique(numeros.begin(), numeros.end()));
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* datos, size_t largo) {
    if (largo == 0) return 0;
    const Juego& juego = Juegos[datos[0] % 3];
    const bool con = datos[0] >= 0x80;
    const std::string bytes(reinterpret_cast<const char*>(datos) + 1, largo - 1);
    std::string caja;
    Entorno entorno;
    entorno.Mensaje = [&](Icono, const std::string& texto) { caja = texto; };
    Tabla tabla;
    const FicheroEnMemoria fichero(bytes);
    const int32_t leidas = con ? ImportarTXTConReintegros(fichero.Ruta(), tabla, nullptr, juego, entorno)
                               : ImportarTXTSinReintegros(fichero.Ruta(), tabla, nullptr, entorno);
    const auto literal = ImportarTXTLiteral(con, std::string(juego.Nombre), juego.NumeroMaximo).Importar(bytes);
    Exigir(tabla.Filas() == 7 && tabla.Apuestas() == leidas, "count and table agree");
    Exigir(EnListas(tabla) == literal.Apuestas, "reads what the literal importer reads");
    Exigir(caja.empty() != literal.Fallo, "fails when the literal importer fails");
    Exigir(caja.find(literal.Detalle) != std::string::npos, "tells the same detail");
    Exigir(QuitarRepetidas(tabla, entorno) == RepetidasLiteral(literal.Apuestas), "drops the repeated bets");
    return 0;
}
