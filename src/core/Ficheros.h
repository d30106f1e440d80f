// What every reader and writer of files shares: failures in words, names, whole small files.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

#include "Entorno.h"

/// A short description of a system error, for the brackets of a message.
std::string DescripcionFallo(int error);

/// The whole content of a regular file of at most `maximo` bytes. False with the description of the
/// failure otherwise.
bool LeerFichero(const std::string& ruta, int64_t maximo, std::string& contenido, std::string& fallo);

/// A file open for reading, closed with its owner. Only regular files open, so nothing ever waits on
/// a pipe.
class FicheroEntrada {
  public:
    FicheroEntrada() = default;
    ~FicheroEntrada();
    FicheroEntrada(const FicheroEntrada&) = delete;
    FicheroEntrada& operator=(const FicheroEntrada&) = delete;

    bool Abrir(const std::string& ruta, std::string& fallo);
    int64_t Bytes() const { return bytes_; } ///< length when it was opened

    /// Reads up to `cuantos` bytes, fewer only at the end of the file; -1 on a failure.
    int64_t Leer(char* destino, int64_t cuantos, std::string& fallo);

  private:
    int descriptor_ = -1;
    int64_t bytes_ = 0;
};

/// The path with this extension, the point included: if one of the last six characters of the file's
/// name is a ".", the name is first cut at its last ".".
std::string RutaConExtension(std::string_view ruta, std::string_view extension);

/// Whether the path ends in this extension, the point included and in small letters, in any case.
bool TieneExtension(std::string_view ruta, std::string_view extension);

/// What stands behind the last "/".
std::string NombreSinCarpeta(std::string_view ruta);

/// The critical box of a save that failed. Always false.
bool FalloAlGuardar(Entorno& entorno, const std::string& descripcion);
