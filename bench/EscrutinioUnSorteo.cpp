// The whole ticket against one draw: the kernel by itself, and the window's own operation.
#include <memory>

#include "Escrutinio.h"
#include "LogicaEscrutar.h"
#include "Sesiones.h"

namespace {

constexpr std::array<uint8_t, 6> Ganadores{4, 11, 23, 30, 38, 47};
constexpr uint8_t Complementario = 8, Digito = 3;

// A number that depends on every count.
int64_t Resumen(const CuentaEscrutinio& cuenta) {
    int64_t suma = cuenta.Digitos + 3LL * cuenta.SeisConDigito + 5LL * cuenta.Aciertos.CincoC;
    for (size_t h = 0; h < 7; ++h) suma = 31 * suma + cuenta.Aciertos.Aciertos[h];
    return suma;
}

struct Ventana {
    explicit Ventana(const Tabla& boleto) {
        IniciarSesion(sesion, entorno);
        sesion.trabajo.ApuestasReducidas = boleto;
        sesion.trabajo.Contador.Reducidas = static_cast<int32_t>(boleto.Apuestas());
        sesion.referencia = {Ganadores, Complementario};
        logica.cboReintegro = Digito;
        logica.Abrir();
    }
    Sesion sesion;
    Entorno entorno;
    LogicaEscrutar logica{sesion, entorno};
};

} // namespace

void AnotarUnSorteo(const Tabla& boleto, std::vector<TrabajoEscrutinio>& trabajos) {
    const auto apuestas = static_cast<int32_t>(boleto.Apuestas());
    const SorteoPorNumero sorteo(Sorteado(Ganadores, Complementario), Digito);
    const auto aciertos = std::make_shared<Tabla>(1, apuestas);
    TramoEscrutinio todo{{}, aciertos->Fila(1), apuestas};
    for (int r = 0; r < 7; ++r) todo.fila[r] = boleto.Fila(r + 1);
    const int64_t esperado = Resumen(NucleoEscrutarEscalar(todo, sorteo));
    trabajos.push_back({"un sorteo, con los aciertos de cada apuesta", 3,
                        [&boleto, apuestas, sorteo, aciertos] {
                            Entorno entorno;
                            return Resumen(EscrutarTabla(boleto, apuestas, sorteo, *aciertos, entorno));
                        },
                        esperado});
    const auto ventana = std::make_shared<Ventana>(boleto);
    trabajos.push_back(
        {"un sorteo, desde la ventana", 3, [ventana] { return int64_t{ventana->logica.EscrutarSistema()}; }, 1});
}
