// The reader of base files: any document leaves a state that can be saved, and what was saved opens
// without a failure. Saving may close the gaps between subgroups once; from then on nothing changes.
#include <memory>

#include "Difusion.h"
#include "Sesiones.h"
#include "modXML.h"

namespace {

struct Apertura {
    explicit Apertura(std::string_view documento) {
        entorno.Mensaje = [this](Icono icono, const std::string&) { errores += icono == Icono::Critico; };
        IniciarSesion(*sesion, entorno);
        leido = AbrirFicheroBase(FicheroEnMemoria(documento).Ruta(), *sesion, entorno);
        texto = GenerarXMLBase(*sesion, entorno);
    }
    std::unique_ptr<Sesion> sesion = std::make_unique<Sesion>();
    Entorno entorno;
    bool leido = false;
    int errores = 0;
    std::string texto;
};

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* datos, size_t largo) {
    const Apertura primera({reinterpret_cast<const char*>(datos), largo});
    Exigir(primera.leido || primera.errores == 1, "what is not read is told");
    const Apertura segunda(primera.texto);
    Exigir(segunda.leido && segunda.errores == 0, "what was saved opens");
    const Apertura tercera(segunda.texto);
    Exigir(tercera.texto == segunda.texto, "saving and opening settle");
    return 0;
}
