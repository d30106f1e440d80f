#include "Ficheros.h"

#include <algorithm>
#include <cerrno>
#include <cstring>

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

std::string DescripcionFallo(int error) {
    switch (error) {
    case ENOENT:
        return "no existe el fichero o la carpeta";
    case EACCES:
    case EPERM:
        return "permiso denegado";
    case ENOSPC:
    case EDQUOT:
        return "no queda espacio en el disco";
    case EFBIG:
        return "el fichero es demasiado grande";
    case EISDIR:
        return "es una carpeta";
    case ENOTDIR:
        return "la carpeta no es válida";
    case EROFS:
        return "el disco es de sólo lectura";
    case ENAMETOOLONG:
        return "el nombre es demasiado largo";
    case EMFILE:
    case ENFILE:
        return "hay demasiados ficheros abiertos";
    case EIO:
        return "error del disco";
    case ENOMEM:
        return "no hay memoria suficiente";
    default:
        return "error " + std::to_string(error) + " del sistema: " + std::strerror(error);
    }
}

FicheroEntrada::~FicheroEntrada() {
    if (descriptor_ >= 0) close(descriptor_);
}

bool FicheroEntrada::Abrir(const std::string& ruta, std::string& fallo) {
    descriptor_ = open(ruta.c_str(), O_RDONLY | O_CLOEXEC | O_NONBLOCK);
    struct stat datos {};
    if (descriptor_ < 0 || fstat(descriptor_, &datos) != 0) {
        fallo = DescripcionFallo(errno);
        return false;
    }
    if (!S_ISREG(datos.st_mode)) {
        fallo = S_ISDIR(datos.st_mode) ? DescripcionFallo(EISDIR) : "no es un fichero";
        return false;
    }
    bytes_ = datos.st_size;
    posix_fadvise(descriptor_, 0, 0, POSIX_FADV_SEQUENTIAL);
    return true;
}

int64_t FicheroEntrada::Leer(char* destino, int64_t cuantos, std::string& fallo) {
    int64_t leidos = 0;
    while (leidos < cuantos) {
        const ssize_t n = read(descriptor_, destino + leidos, static_cast<size_t>(cuantos - leidos));
        if (n == 0) break;
        if (n < 0 && errno == EINTR) continue;
        if (n < 0) {
            fallo = DescripcionFallo(errno);
            return -1;
        }
        leidos += n;
    }
    return leidos;
}

bool LeerFichero(const std::string& ruta, int64_t maximo, std::string& contenido, std::string& fallo) {
    FicheroEntrada fichero;
    if (!fichero.Abrir(ruta, fallo)) return false;
    if (fichero.Bytes() > maximo) {
        fallo = DescripcionFallo(EFBIG);
        return false;
    }
    contenido.resize(static_cast<size_t>(fichero.Bytes()));
    const int64_t leidos = fichero.Leer(contenido.data(), fichero.Bytes(), fallo);
    contenido.resize(static_cast<size_t>(std::max<int64_t>(leidos, 0)));
    return leidos >= 0;
}

std::string RutaConExtension(std::string_view ruta, std::string_view extension) {
    const size_t punto = ruta.find_last_of('.');
    const size_t carpeta = ruta.find_last_of('/');
    if (punto != std::string_view::npos && (carpeta == std::string_view::npos || punto > carpeta)) {
        // Characters, not bytes: the continuation bytes of UTF-8 do not count.
        const auto caracteres = std::count_if(ruta.begin() + static_cast<std::ptrdiff_t>(punto), ruta.end(),
                                              [](char c) { return (static_cast<unsigned char>(c) & 0xC0) != 0x80; });
        if (caracteres <= 6) ruta = ruta.substr(0, punto);
    }
    return std::string(ruta) + std::string(extension);
}

bool TieneExtension(std::string_view ruta, std::string_view extension) {
    return ruta.size() >= extension.size() &&
           std::equal(extension.begin(), extension.end(), ruta.end() - static_cast<std::ptrdiff_t>(extension.size()),
                      [](char a, char b) { return a == (b >= 'A' && b <= 'Z' ? b - 'A' + 'a' : b); });
}

std::string NombreSinCarpeta(std::string_view ruta) {
    return std::string(ruta.substr(ruta.find_last_of('/') + 1));
}

bool FalloAlGuardar(Entorno& entorno, const std::string& descripcion) {
    return Fallo(entorno, "ERROR AL GUARDAR EL FICHERO, FICHERO NO GUARDADO (" + descripcion + ")");
}
