// A bet file as the run of records that it is.
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "Ficheros.h"

/// The file in blocks that stay in the cache. A failure of the disk looks like the file's end and is
/// described in `fallo`.
class RegistrosDeFichero {
  public:
    bool Abrir(const std::string& ruta, std::string& fallo);

    /// Bytes that no record has been taken from yet.
    int64_t Restantes() const { return fichero_.Bytes() - tomados_; }

    /// What is loaded, at least `minimo` bytes of it unless the file ends before. Valid until the next call.
    std::string_view Cargados(size_t minimo, std::string& fallo) {
        if (fin_ - inicio_ < minimo) Rellenar(fallo);
        return {bloque_.data() + inicio_, fin_ - inicio_};
    }

    /// Goes on behind this many of the loaded bytes.
    void Tomar(size_t bytes) {
        inicio_ += bytes;
        tomados_ += static_cast<int64_t>(bytes);
    }

    /// The enciphered bytes of the next record; nothing when the file ends before it does.
    std::optional<std::string_view> Siguiente(std::string& fallo);

  private:
    void Rellenar(std::string& fallo);

    FicheroEntrada fichero_;
    std::vector<char> bloque_;
    size_t inicio_ = 0, fin_ = 0;
    int64_t cargados_ = 0, tomados_ = 0;
};
