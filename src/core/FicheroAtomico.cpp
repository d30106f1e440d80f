#include "FicheroAtomico.h"

#include <cerrno>
#include <cstdio>
#include <cstdlib>

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include "Ficheros.h"

namespace {

constexpr int Creacion = O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC;
constexpr mode_t Permisos = 0666; // less the user's mask
constexpr const char* Descriptores = "/proc/self/fd/";

std::string CarpetaDe(const std::string& ruta) {
    const size_t barra = ruta.find_last_of('/');
    return barra == std::string::npos ? "." : barra == 0 ? "/" : ruta.substr(0, barra);
}

// A link stays a link: what it points at is what is replaced.
std::string SinEnlaces(const std::string& ruta) {
    char* real = realpath(ruta.c_str(), nullptr);
    if (real == nullptr) return ruta;
    std::string resuelta(real);
    std::free(real);
    return resuelta;
}

// Makes the renaming itself last. Some file systems cannot do it, and then nothing is lost by it.
void AsentarCarpeta(const std::string& carpeta) {
    const int descriptor = open(carpeta.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
    if (descriptor < 0) return;
    fsync(descriptor);
    close(descriptor);
}

} // namespace

FicheroAtomico::~FicheroAtomico() {
    if (descriptor_ >= 0) close(descriptor_);
    if (!temporal_.empty()) unlink(temporal_.c_str());
}

bool FicheroAtomico::Fracasar(int error) {
    fallo_ = DescripcionFallo(error);
    return false;
}

bool FicheroAtomico::Abrir(const std::string& ruta) {
    destino_ = SinEnlaces(ruta);
    struct stat datos {};
    const bool existe = stat(destino_.c_str(), &datos) == 0;
    if (existe && S_ISDIR(datos.st_mode)) return Fracasar(EISDIR);
    if (existe && !S_ISREG(datos.st_mode)) {
        enSitio_ = true;
        descriptor_ = open(destino_.c_str(), O_WRONLY | O_CLOEXEC | O_NONBLOCK);
        return descriptor_ >= 0 || Fracasar(errno);
    }
    // Renaming would also replace a file that the user has protected.
    if (existe && access(destino_.c_str(), W_OK) != 0) return Fracasar(errno);
    if (!CrearTemporal()) return false;
    if (existe) fchmod(descriptor_, datos.st_mode & 0777);
    return true;
}

// A file without a name goes with its process, however that ends. Its name it gets through /proc.
bool FicheroAtomico::CrearTemporal() {
    if (access(Descriptores, X_OK) == 0)
        descriptor_ = open(CarpetaDe(destino_).c_str(), O_WRONLY | O_TMPFILE | O_CLOEXEC, Permisos);
    if (descriptor_ >= 0) return true;
    return Nombrar([this](const char* nombre) {
        descriptor_ = open(nombre, Creacion, Permisos);
        return descriptor_ >= 0;
    });
}

// Tries names beside the target until one is free.
bool FicheroAtomico::Nombrar(const std::function<bool(const char*)>& crear) {
    const std::string raiz = CarpetaDe(destino_) + "/.tombolera-" + std::to_string(getpid()) + "-";
    int intento = 0;
    do {
        temporal_ = raiz + std::to_string(intento) + ".tmp";
        if (crear(temporal_.c_str())) return true;
    } while (errno == EEXIST && ++intento < 1000);
    temporal_.clear();
    return Fracasar(errno);
}

bool FicheroAtomico::Escribir(std::string_view bytes) {
    while (!bytes.empty()) {
        const ssize_t escritos = write(descriptor_, bytes.data(), bytes.size());
        if (escritos < 0 && errno == EINTR) continue;
        if (escritos < 0) return Fracasar(errno);
        bytes.remove_prefix(static_cast<size_t>(escritos));
    }
    return true;
}

bool FicheroAtomico::Asentar() {
    if (asentado_) return true;
    // A device may not know how to settle; that is no failure of the save.
    if (fsync(descriptor_) != 0 && errno != EINVAL && errno != EROFS && errno != ENOTSUP) return Fracasar(errno);
    asentado_ = true;
    if (temporal_.empty() && !enSitio_) return true; // without a name it is there only while it is open
    const int cerrado = close(descriptor_);
    descriptor_ = -1;
    return cerrado == 0 || Fracasar(errno);
}

bool FicheroAtomico::Confirmar() {
    if (!Asentar()) return false;
    if (enSitio_) return true;
    const std::string abierto = Descriptores + std::to_string(descriptor_);
    const auto enlazar = [&](const char* nombre) {
        return linkat(AT_FDCWD, abierto.c_str(), AT_FDCWD, nombre, AT_SYMLINK_FOLLOW) == 0;
    };
    if (temporal_.empty() && !Nombrar(enlazar)) return false;
    if (std::rename(temporal_.c_str(), destino_.c_str()) != 0) return Fracasar(errno);
    temporal_.clear();
    AsentarCarpeta(CarpetaDe(destino_));
    return true;
}
