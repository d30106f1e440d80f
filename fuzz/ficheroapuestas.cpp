// The reader of bet files. The first byte chooses the game and whether the rest is the file itself or
// plain records, one a line, that are enciphered here: else no mutation would ever get past the cipher.
#include "Difusion.h"
#include "FicheroApuestasLiteral.h"
#include "modEncriptarFichero.h"

namespace {

std::string FicheroDeEntrada(std::string_view entrada, bool crudo) {
    if (crudo) return std::string(entrada);
    std::string bytes;
    while (!entrada.empty()) {
        const size_t fin = std::min(entrada.find('\n'), entrada.size());
        bytes += Registro(std::string(entrada.substr(0, std::min<size_t>(fin, 65535))));
        entrada.remove_prefix(std::min(fin + 1, entrada.size()));
    }
    return bytes;
}

std::vector<std::vector<int>> EnListas(const Tabla& tabla) {
    std::vector<std::vector<int>> apuestas(static_cast<size_t>(tabla.Apuestas()));
    for (size_t i = 0; i < apuestas.size(); ++i)
        for (int r = 1; r <= 7; ++r) apuestas[i].push_back(tabla(r, static_cast<int64_t>(i) + 1));
    return apuestas;
}

void ExigirApuestasValidas(const std::vector<std::vector<int>>& apuestas, const Juego& juego) {
    for (const auto& a : apuestas) {
        uint64_t vistos = 0;
        for (size_t r = 0; r < 6; ++r) {
            Exigir(a[r] >= 1 && a[r] <= 49, "number in range");
            Exigir((vistos >> a[r] & 1) == 0, "different numbers");
            vistos |= uint64_t{1} << a[r];
        }
        const bool sueno = juego.Nombre == "EURODREAMS";
        Exigir(a[6] >= (sueno ? 1 : 0) && a[6] <= (sueno ? 5 : 9), "digit in range");
    }
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* datos, size_t largo) {
    if (largo == 0) return 0;
    const Juego& juego = Juegos[datos[0] % 3];
    const std::string_view entrada(reinterpret_cast<const char*>(datos) + 1, largo - 1);
    const std::string bytes = FicheroDeEntrada(entrada, datos[0] >= 0x80);
    int cajas = 0;
    Entorno entorno;
    entorno.Mensaje = [&](Icono, const std::string&) { ++cajas; };
    Tabla tabla;
    const int32_t leidas = LeerFicheroApuestas(FicheroEnMemoria(bytes).Ruta(), tabla, nullptr, juego, entorno);
    Exigir(leidas >= 0 && tabla.Filas() == 7 && tabla.Apuestas() == leidas, "count and table agree");
    Exigir(cajas == 0 || leidas == 0, "a failed reading has no bets");
    const auto apuestas = EnListas(tabla);
    ExigirApuestasValidas(apuestas, juego);
    if (const auto esperadas = LeerLiteral(bytes, juego.Nombre == "EURODREAMS"))
        Exigir(cajas == 0 && apuestas == *esperadas, "reads what the literal reader reads");
    return 0;
}
