#include "Proceso.h"

#include <array>
#include <cstdlib>
#include <stdexcept>

#include <fcntl.h>
#include <poll.h>
#include <sys/wait.h>
#include <unistd.h>

namespace {

// A pipe, or a terminal that is written at one end and read at the other.
struct Tuberia {
    int Lectura = -1, Escritura = -1;
    explicit Tuberia(bool terminal) {
        std::array<int, 2> extremos{};
        if (!terminal && pipe2(extremos.data(), O_CLOEXEC) != 0) throw std::runtime_error("pipe2");
        Lectura = terminal ? posix_openpt(O_RDWR | O_NOCTTY | O_CLOEXEC) : extremos[0];
        if (terminal && (grantpt(Lectura) != 0 || unlockpt(Lectura) != 0)) throw std::runtime_error("posix_openpt");
        Escritura = terminal ? open(ptsname(Lectura), O_RDWR | O_NOCTTY | O_CLOEXEC) : extremos[1];
    }
    ~Tuberia() {
        CerrarLectura();
        CerrarEscritura();
    }
    Tuberia(const Tuberia&) = delete;
    Tuberia& operator=(const Tuberia&) = delete;
    void CerrarLectura() { Cerrar(Lectura); }
    void CerrarEscritura() { Cerrar(Escritura); }

  private:
    static void Cerrar(int& extremo) {
        if (extremo >= 0) close(extremo);
        extremo = -1;
    }
};

[[noreturn]] void SerElPrograma(std::vector<char*> argv, const ComoCorrer& como, int salida, int errores) {
    const int nada = open("/dev/null", O_RDONLY | O_CLOEXEC);
    if (!como.SalidaEn.empty()) salida = open(como.SalidaEn.c_str(), O_WRONLY | O_CREAT | O_CLOEXEC, 0644);
    const bool listo = nada >= 0 && salida >= 0 && (como.Carpeta.empty() || chdir(como.Carpeta.c_str()) == 0) &&
                       dup2(nada, STDIN_FILENO) >= 0 && dup2(salida, STDOUT_FILENO) >= 0 &&
                       dup2(errores, STDERR_FILENO) >= 0;
    if (listo) execv(TOMBOLERA_LOTE, argv.data());
    _exit(126);
}

// Adds what there is to read; closes the end at the end of the stream.
void Recoger(Tuberia& tuberia, std::string& texto) {
    std::array<char, 4096> trozo{};
    const ssize_t n = read(tuberia.Lectura, trozo.data(), trozo.size());
    if (n > 0)
        texto.append(trozo.data(), static_cast<size_t>(n));
    else
        tuberia.CerrarLectura();
}

void RecogerTodo(Tuberia& salida, Tuberia& errores, Resultado& resultado, pid_t hijo, const ComoCorrer& como) {
    bool pendiente = como.AlLeerErrores != nullptr;
    while (salida.Lectura >= 0 || errores.Lectura >= 0) {
        std::array<pollfd, 2> esperas{{{salida.Lectura, POLLIN, 0}, {errores.Lectura, POLLIN, 0}}};
        if (poll(esperas.data(), esperas.size(), -1) < 0) throw std::runtime_error("poll");
        if (esperas[0].revents != 0) Recoger(salida, resultado.Salida);
        if (esperas[1].revents != 0) Recoger(errores, resultado.Errores);
        if (pendiente) pendiente = !como.AlLeerErrores(hijo, resultado.Errores);
    }
}

int EstadoDe(pid_t hijo) {
    int estado = 0;
    if (waitpid(hijo, &estado, 0) != hijo) throw std::runtime_error("waitpid");
    return WIFEXITED(estado) ? WEXITSTATUS(estado) : 128 + WTERMSIG(estado);
}

} // namespace

Resultado Correr(const std::vector<std::string>& argumentos, const ComoCorrer& como) {
    std::vector<std::string> textos{TOMBOLERA_LOTE};
    textos.insert(textos.end(), argumentos.begin(), argumentos.end());
    std::vector<char*> argv;
    for (std::string& texto : textos) argv.push_back(texto.data());
    argv.push_back(nullptr);

    Tuberia salida(false), errores(como.Terminal);
    const pid_t hijo = fork();
    if (hijo < 0) throw std::runtime_error("fork");
    if (hijo == 0) SerElPrograma(argv, como, salida.Escritura, errores.Escritura);
    salida.CerrarEscritura();
    errores.CerrarEscritura();
    if (como.SinLector) salida.CerrarLectura();
    if (como.AlEscribir) {
        pollfd espera{salida.Lectura, POLLIN, 0};
        poll(&espera, 1, -1);
        como.AlEscribir(hijo);
    }
    Resultado resultado;
    RecogerTodo(salida, errores, resultado, hijo, como);
    resultado.Estado = EstadoDe(hijo);
    return resultado;
}
