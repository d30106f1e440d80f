// Saving without ever leaving half a file behind.
//
//     FicheroAtomico fichero;
//     if (!fichero.Abrir(ruta) || !fichero.Escribir(texto) || !fichero.Confirmar())
//         return FalloAlGuardar(entorno, fichero.Fallo());
#pragma once

#include <functional>
#include <string>
#include <string_view>

/// Writes beside the target and renames over it once everything is on the disk; until then the target
/// keeps its old content, and an owner that goes away without `Confirmar` leaves no trace; nor does a
/// process that is killed, where the file system has files without a name. A target that is no regular
/// file, such as a device, is written in place.
class FicheroAtomico {
  public:
    FicheroAtomico() = default;
    ~FicheroAtomico();
    FicheroAtomico(const FicheroAtomico&) = delete;
    FicheroAtomico& operator=(const FicheroAtomico&) = delete;

    /// Each returns false on a failure, which `Fallo` describes.
    bool Abrir(const std::string& ruta);
    bool Escribir(std::string_view bytes);
    /// Brings everything to the disk, and so finds a full one, without touching the target yet: for
    /// two files that go together.
    bool Asentar();
    /// Puts the new content in the target's place.
    bool Confirmar();

    const std::string& Fallo() const { return fallo_; }

  private:
    bool CrearTemporal();
    bool Nombrar(const std::function<bool(const char*)>& crear);
    bool Fracasar(int error);

    std::string destino_;  // symbolic links resolved
    std::string temporal_; // empty while what is written has no name, and in place
    std::string fallo_;
    int descriptor_ = -1;
    bool enSitio_ = false, asentado_ = false;
};
