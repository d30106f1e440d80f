// escrutar: a system against one draw.
#include "Argumentos.h"
#include "ArgumentosSorteo.h"
#include "Ordenes.h"
#include "Sesiones.h"

namespace {

struct ArgumentosEscrutar : ArgumentosSorteo {
    int32_t Digito = -1; ///< -1 for the game's first
    bool Reintegros = false, Informe = false;
};

// The rules between the rows are no categories.
std::string Resultado(const LogicaEscrutar& escrutar) {
    std::string texto;
    for (const std::string& fila : escrutar.lstPremios)
        if (fila.find('-') == std::string::npos) texto += fila + "\n";
    return texto + "Apuestas\t" + escrutar.lblApuestas + "\nBoletos\t" + escrutar.lblBoletos + "\n";
}

bool Escrutar(Lote& lote, const ArgumentosEscrutar& argumentos) {
    CambiarJuego(lote.sesion, argumentos.Juego);
    LogicaEscrutar escrutar(lote.sesion, lote.entorno);
    if (argumentos.Digito >= 0)
        escrutar.CambiarReintegro(argumentos.Digito - lote.sesion.trabajo.JuegoActual().DigitoMinimo);
    escrutar.chkReintegros = argumentos.Reintegros;
    if (!CargarYMarcar(escrutar, argumentos)) return false;
    if (argumentos.Informe ? !escrutar.imgVerBoletosPremiados() : !escrutar.EscrutarSistema()) return false;
    lote.salida.Escribir(Resultado(escrutar));
    return true;
}

} // namespace

void DeclararEscrutar(CLI::App& programa, Lote& lote) {
    const auto argumentos = std::make_shared<ArgumentosEscrutar>();
    CLI::App* orden = NuevaOrden(programa, lote, "escrutar", "Comprueba un fichero de apuestas con un sorteo",
                                 [argumentos](Lote& l) { return Escrutar(l, *argumentos); });
    DeclararSorteo(orden, *argumentos, [argumentos] {
        const Juego& juego = Juegos[static_cast<size_t>(argumentos->Juego)];
        if (argumentos->Digito >= 0 && juego.TieneDigito())
            ExigirEntre("--digito", argumentos->Digito, juego.DigitoMinimo, juego.DigitoMaximo);
    });
    Entero(orden, "--digito", argumentos->Digito, 0, "Reintegro o sueño premiado; si falta, el primero del juego");
    Bandera(orden, "--reintegros", argumentos->Reintegros, "Carga también los reintegros o los sueños");
    Bandera(orden, "--informe", argumentos->Informe, "Escribe el informe de boletos premiados");
}
