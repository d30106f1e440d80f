// A combination from a text file and then one from a bet file, both of the whole ticket shuffled, beside
// reading the text file with dd: importar FOLDER. Minima of the thread's processor time, all files being
// in the cache, and the memory at its most.
#include <algorithm>
#include <ctime>
#include <numeric>
#include <random>
#include <vector>

#include <sys/resource.h>
#include <sys/wait.h>

#include "Copias.h"
#include "ImportarCombinacion.h"
#include "Sesiones.h"
#include "TablasCSN.h"
#include "modEncriptarFichero.h"

namespace {

constexpr int Vueltas = 5;

Tabla Barajado() {
    std::vector<int32_t> csn(ApuestasMaximas);
    std::iota(csn.begin(), csn.end(), 1);
    std::mt19937 azar(1);
    std::shuffle(csn.begin(), csn.end(), azar);
    Tabla tabla(7, ApuestasMaximas);
    CSNaCombinaciones(csn.data(), ApuestasMaximas, tabla, 1);
    return tabla;
}

bool EscribirTexto(const std::string& ruta, const Tabla& tabla) {
    const std::unique_ptr<FILE, int (*)(FILE*)> fichero(std::fopen(ruta.c_str(), "wb"), std::fclose);
    if (!fichero) return false;
    for (int64_t i = 1; i <= tabla.Apuestas(); ++i)
        std::fprintf(fichero.get(), "%02d%02d%02d%02d%02d%02d\r\n", tabla(1, i), tabla(2, i), tabla(3, i), tabla(4, i),
                     tabla(5, i), tabla(6, i));
    return std::fflush(fichero.get()) == 0;
}

// In a process of its own, so that the tables that make the files do not count as memory.
bool EscribirFicheros(const std::string& texto, const std::string& tom) {
    const pid_t hijo = fork();
    if (hijo == 0) {
        Entorno entorno;
        const Tabla tabla = Barajado();
        const bool bien =
            EscribirTexto(texto, tabla) && GuardarFicheroApuestas(tom, "0", ApuestasMaximas, tabla, nullptr, entorno);
        _exit(bien ? 0 : 1);
    }
    int estado = 1;
    return hijo > 0 && waitpid(hijo, &estado, 0) == hijo && estado == 0;
}

double SegundosDeProcesador(const std::function<void()>& que) {
    const auto ahora = [] {
        timespec t{};
        clock_gettime(CLOCK_THREAD_CPUTIME_ID, &t);
        return static_cast<double>(t.tv_sec) + static_cast<double>(t.tv_nsec) * 1e-9;
    };
    const double antes = ahora();
    que();
    return ahora() - antes;
}

} // namespace

int main(int argc, char** argv) {
    if (argc != 2) return std::fputs("importar FOLDER\n", stderr), 2;
    const std::string raiz = std::string(argv[1]) + "/importar-bench", texto = raiz + ".txt", tom = raiz + ".TOM";
    if (!EscribirFicheros(texto, tom)) return std::fputs("cannot write the files\n", stderr), 1;
    Sesion sesion;
    Entorno entorno;
    IniciarSesion(sesion, entorno);
    sesion.trabajo.chkReintegros = false;
    bool bien = true;
    const auto importar = [&](const std::string& ruta) {
        bien &= ImportarFichero(ruta, sesion, entorno) && sesion.trabajo.NApuestasImportadas == ApuestasMaximas;
    };
    const std::vector<std::pair<const char*, std::function<void()>>> medidas{
        {"import text", [&] { importar(texto); }},
        {"import bet file", [&] { importar(tom); }},
        {"dd of the text", [&] { Copiar(texto, "/dev/null"); }},
    };
    std::vector<double> minimos;
    for (const auto& [nombre, medida] : medidas) {
        double minimo = 1e9;
        for (int vuelta = 0; vuelta < Vueltas; ++vuelta) minimo = std::min(minimo, SegundosDeProcesador(medida));
        minimos.push_back(minimo);
        std::printf("%-16s %.3f s\n", nombre, minimo);
    }
    rusage uso{};
    getrusage(RUSAGE_SELF, &uso);
    std::printf("both imports / dd %.1f   at most %ld MB resident   %s\n", (minimos[0] + minimos[1]) / minimos[2],
                uso.ru_maxrss / 1024, bien ? "all bets" : "DIFFERENT");
    unlink(texto.c_str());
    unlink(tom.c_str());
    return bien ? 0 : 1;
}
