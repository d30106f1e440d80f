#include "InformePorcentajes.h"

#include <fstream>

#include "LogicaVentanaProceso.h"
#include "Texto8bits.h"
#include "modGeneral.h"

namespace {

constexpr size_t AnchoCelda = 12;

std::string Rellena(std::string texto) {
    if (texto.size() < AnchoCelda) texto.resize(AnchoCelda, ' ');
    return texto;
}

std::string Celda(const std::string& numero, const std::string& texto) {
    return numero + " " + (texto.empty() ? "--" : texto);
}

// Tens in columns, as on the ticket of 49; a row's last cell has no blanks behind it.
std::string FilaBoleto(const LogicaVentanaProceso& ventana, int r) {
    std::string fila = r == 0 ? std::string(AnchoCelda, ' ') : Rellena(Celda(std::to_string(r), ventana.lblN[r]));
    for (int x = r + 10; x < 50; x += 10) {
        const std::string celda = Celda(std::to_string(x), ventana.lblN[x]);
        fila += x + 10 < 50 ? Rellena(celda) : celda;
    }
    return fila + "\r\n";
}

std::string FilaDeCinco(const LogicaVentanaProceso& ventana, int primero) {
    std::string fila;
    for (int x = primero; x < primero + 5; ++x)
        fila += (x == primero ? "" : " -- ") + Formato00(x) + " " + ventana.lblN[x];
    return fila + "\r\n";
}

} // namespace

bool EscribirInformePorcentajes(const LogicaVentanaProceso& ventana, std::string& ruta) {
    std::string texto = "TOMBOLERA " + ventana.fraPorcentajes + ":\r\n\r\nNUMEROS\r\n\r\n";
    if (ventana.sesion.trabajo.cboTipoJuego == EURODREAMS)
        for (int r = 0; r < 8; ++r) texto += FilaDeCinco(ventana, 5 * r + 1);
    else
        for (int r = 0; r < 10; ++r) texto += FilaBoleto(ventana, r);
    ruta = ventana.entorno.CarpetaInformes + "/TOMBOLERA_ANALISIS.txt";
    std::ofstream fichero(ruta, std::ios::binary);
    const std::string bytes = Utf8ACodigo8(texto);
    fichero.write(bytes.data(), static_cast<std::streamsize>(bytes.size()));
    return fichero.flush().good();
}
