// Replays a corpus, then mutates it a fixed number of times with a fixed seed: CORPUS MUTATIONS. The
// input that breaks something is left in the current folder as fuzz-fallo.
#include <algorithm>
#include <csignal>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <random>
#include <vector>

#include "Difusion.h"

namespace {

constexpr size_t LargoMaximo = 1 << 16;
constexpr const char* Trozos[] = {"0",    "-1",    "50", "255", "256", "70000", "2147483648", "13983817",
                                  ",",    "+",     "-",  "\n",  "'",   "<",     "/>",         "</XML>",
                                  "&#0;", "&amp;", " ",  "x",   "1.5", "\x80"};

std::string enCurso;

void DejarEntrada(int senal) {
    std::ofstream("fuzz-fallo", std::ios::binary) << enCurso;
    std::signal(senal, SIG_DFL);
    std::raise(senal);
}

void Probar(std::string entrada) {
    enCurso = std::move(entrada);
    LLVMFuzzerTestOneInput(reinterpret_cast<const uint8_t*>(enCurso.data()), enCurso.size());
}

class Mutador {
  public:
    explicit Mutador(const std::vector<std::string>& corpus) : corpus_(corpus) {}

    std::string Siguiente() {
        std::string entrada = corpus_[Azar(corpus_.size())];
        for (size_t n = 1 + Azar(6); n > 0; --n) Mutar(entrada);
        entrada.resize(std::min(entrada.size(), LargoMaximo));
        return entrada;
    }

  private:
    size_t Azar(size_t n) { return n == 0 ? 0 : azar_() % n; }

    void Mutar(std::string& e) {
        const size_t lugar = Azar(e.size() + 1), largo = Azar(std::min<size_t>(e.size() - lugar, 40) + 1);
        switch (azar_() % 6) {
        case 0:
            if (lugar < e.size()) e[lugar] = static_cast<char>(e[lugar] ^ (1 << Azar(8)));
            break;
        case 1:
            e.erase(lugar, largo);
            break;
        case 2:
            e.insert(lugar, e.substr(Azar(e.size()), largo));
            break;
        case 3:
            e.replace(lugar, Azar(2) == 0 ? 0 : largo, Trozos[Azar(std::size(Trozos))]);
            break;
        case 4:
            e.resize(lugar);
            break;
        default: {
            const std::string& otra = corpus_[Azar(corpus_.size())];
            e.replace(lugar, largo, otra.substr(Azar(otra.size()), Azar(200)));
        }
        }
    }

    const std::vector<std::string>& corpus_;
    std::mt19937 azar_{20240517};
};

} // namespace

int main(int argc, char** argv) {
    if (argc != 3) return 2;
    std::signal(SIGABRT, DejarEntrada);
    std::signal(SIGSEGV, DejarEntrada);
    std::vector<std::filesystem::path> rutas;
    for (const auto& entrada : std::filesystem::directory_iterator(argv[1])) rutas.push_back(entrada.path());
    std::sort(rutas.begin(), rutas.end()); // the order of a folder is not the same everywhere
    std::vector<std::string> corpus;
    for (const auto& ruta : rutas) {
        std::ifstream fichero(ruta, std::ios::binary);
        corpus.emplace_back(std::istreambuf_iterator<char>(fichero), std::istreambuf_iterator<char>());
        Probar(corpus.back());
    }
    if (corpus.empty()) return 2;
    Mutador mutador(corpus);
    for (long vuelta = std::atol(argv[2]); vuelta > 0; --vuelta) Probar(mutador.Siguiente());
}
