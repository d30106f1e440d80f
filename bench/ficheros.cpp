// Writing and reading a bet file of the whole ticket, beside the same bytes through plain calls of the
// system, which is what dd does: ficheros FOLDER. The four take turns so that all meet the same
// machine; each figure is the minimum of the rounds.
#include <algorithm>
#include <cstdio>
#include <functional>
#include <string>
#include <vector>

#include <unistd.h>

#include "Copias.h"
#include "modEncriptarFichero.h"

namespace {

constexpr int Vueltas = 7;

Tabla TodoElBoleto() {
    Tabla tabla(7, ApuestasMaximas);
    std::array<uint8_t, 6> a{1, 2, 3, 4, 5, 6};
    for (int64_t b = 1; b <= ApuestasMaximas; ++b) {
        for (size_t r = 0; r < 6; ++r) tabla(static_cast<int>(r) + 1, b) = a[r];
        tabla(7, b) = static_cast<uint8_t>(b % 10);
        size_t r = 6;
        while (r > 0 && a[r - 1] == 43 + r) --r;
        if (r == 0) break;
        ++a[r - 1];
        for (; r < a.size(); ++r) a[r] = static_cast<uint8_t>(a[r - 1] + 1);
    }
    return tabla;
}

} // namespace

int main(int argc, char** argv) {
    if (argc != 2) return std::fputs("ficheros FOLDER\n", stderr), 2;
    const std::string ruta = std::string(argv[1]) + "/ficheros-bench.TOM", copia = ruta + ".copia";
    const Tabla boleto = TodoElBoleto();
    Entorno entorno;
    Tabla leida;
    bool bien = true;
    const std::vector<std::pair<const char*, std::function<void()>>> medidas{
        {"write", [&] { bien &= GuardarFicheroApuestas(ruta, "0", ApuestasMaximas, boleto, nullptr, entorno); }},
        {"dd conv=fsync", [&] { Copiar(ruta, copia); }},
        {"read, fresh table",
         [&] {
             leida.Vaciar();
             bien &= LeerFicheroApuestas(ruta, leida, nullptr, Juegos[PRIMITIVA], entorno) == ApuestasMaximas;
         }},
        {"dd to /dev/null", [&] { Copiar(ruta, "/dev/null"); }},
    };
    std::vector<std::vector<double>> tiempos(medidas.size());
    for (int vuelta = 0; vuelta < Vueltas; ++vuelta)
        for (size_t m = 0; m < medidas.size(); ++m) {
            unlink(copia.c_str());
            tiempos[m].push_back(Segundos(medidas[m].second));
        }
    bien &= leida == boleto;
    unlink(ruta.c_str());
    std::vector<double> minimos;
    for (size_t m = 0; m < medidas.size(); ++m) {
        minimos.push_back(*std::min_element(tiempos[m].begin(), tiempos[m].end()));
        std::printf("%-18s %.3f s\n", medidas[m].first, minimos[m]);
    }
    std::printf("write / dd %.2f   read / dd %.2f   %s\n", minimos[0] / minimos[1], minimos[2] / minimos[3],
                bien ? "same table" : "DIFFERENT");
    return bien ? 0 : 1;
}
