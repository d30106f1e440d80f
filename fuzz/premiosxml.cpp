// The reader of prize files: a document is taken whole or told and left alone, and what was taken is saved
// and opens again as it was.
#include "Difusion.h"
#include "LogicaCalculadoraPremios.h"
#include "Sesiones.h"

namespace {

struct Calculadora {
    Calculadora() {
        entorno.Mensaje = [this](Icono icono, const std::string&) { errores += icono == Icono::Critico; };
        IniciarSesion(sesion, entorno);
    }
    bool Cargar(std::string_view documento) { return logica.CargarPremiosXML(FicheroEnMemoria(documento).Ruta()); }
    Sesion sesion;
    Entorno entorno;
    int errores = 0;
    LogicaEscrutar escrutar{sesion, entorno};
    LogicaCalculadoraPremios logica{escrutar};
};

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* datos, size_t largo) {
    Calculadora primera;
    const std::string antes = primera.logica.GenerarPremiosXML();
    const bool leido = primera.Cargar({reinterpret_cast<const char*>(datos), largo});
    const std::string despues = primera.logica.GenerarPremiosXML();
    Exigir(leido ? primera.errores == 0 : primera.errores == 1 && despues == antes, "refused means told and unchanged");
    Calculadora segunda;
    Exigir(segunda.Cargar(despues), "what was saved opens");
    Exigir(segunda.logica.GenerarPremiosXML() == despues, "saving and opening settle");
    Exigir(segunda.logica.txtPremiosTOTAL == primera.logica.txtPremiosTOTAL, "the same total");
    return 0;
}
