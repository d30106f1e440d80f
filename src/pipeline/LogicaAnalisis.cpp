#include "LogicaAnalisis.h"

#include <algorithm>

#include "ContarNumeros.h"
#include "Informes.h"
#include "RejillaInforme.h"
#include "modGeneral.h"

namespace {

// As the head of a line.
std::string_view NombreDigito(const Juego& juego) {
    return juego.DigitoMinimo == 0 ? "Reintegro" : "Sueño";
}

} // namespace

void LogicaAnalisis::Abrir() {
    const EstadoTrabajo& trabajo = sesion.trabajo;
    TituloDigitos = trabajo.cboTipoJuego == PRIMITIVA    ? "Análisis de los Reintegros"
                    : trabajo.cboTipoJuego == EURODREAMS ? "Análisis de los Sueños"
                                                         : "";
    const CuentaValores numeros = ContarValores(trabajo.ApuestasReducidas, 1, 6, publicApuestasAnalizar);
    const CuentaValores digitos = ContarValores(trabajo.ApuestasReducidas, 7, 7, publicApuestasAnalizar);
    for (size_t n = 1; n < Numeros.size(); ++n) Numeros[n] = static_cast<int32_t>(numeros[n]);
    for (size_t d = 0; d < Digitos.size(); ++d) Digitos[d] = static_cast<int32_t>(digitos[d]);
    menor_ = mayor_ = 0;
    for (int n = 1; n <= trabajo.NumeroMaximo(); ++n) {
        const int32_t apuestas = Numeros[static_cast<size_t>(n)];
        mayor_ = std::max(mayor_, apuestas);
        if (apuestas > 0 && (menor_ == 0 || apuestas < menor_)) menor_ = apuestas;
    }
    EnPorcentajes = false;
    Rotular();
}

void LogicaAnalisis::Cambiar() {
    EnPorcentajes = !EnPorcentajes;
    Rotular();
}

std::string LogicaAnalisis::Rotulo(int32_t apuestas) const {
    return apuestas < 1 ? "" : EnPorcentajes ? Porcentaje(apuestas) : std::to_string(apuestas);
}

void LogicaAnalisis::Rotular() {
    for (size_t n = 1; n < lblN.size(); ++n) {
        const bool seMuestra = static_cast<int>(n) <= sesion.trabajo.NumeroMaximo();
        lblNConApuestas[n] = seMuestra && Numeros[n] > 0;
        lblN[n] = seMuestra ? Rotulo(Numeros[n]) : "";
    }
    for (size_t d = 0; d < lblR.size(); ++d) {
        lblRConApuestas[d] = Digitos[d] > 0;
        lblR[d] = Rotulo(Digitos[d]);
    }
    lblMenor = Rotulo(menor_);
    lblMayor = Rotulo(mayor_);
}

std::optional<double> LogicaAnalisis::Calor(int numero) const {
    const int32_t apuestas = Numeros[static_cast<size_t>(numero)];
    if (apuestas < 1) return {};
    if (mayor_ == menor_) return 0.5;
    return static_cast<double>(apuestas - menor_) / (mayor_ - menor_);
}

std::string LogicaAnalisis::ConsejoNumero(int numero) const {
    return Consejo("Número", numero, Numeros[static_cast<size_t>(numero)]);
}

std::string LogicaAnalisis::ConsejoDigito(int digito) const {
    return Consejo(NombreDigito(sesion.trabajo.JuegoActual()), digito, Digitos[static_cast<size_t>(digito)]);
}

std::string LogicaAnalisis::Consejo(std::string_view que, int cual, int32_t apuestas) const {
    return std::string(que) + " " + std::to_string(cual) + ": " + FormatoMiles(apuestas, entorno.SeparadorMiles) +
           (apuestas == 1 ? " apuesta, " : " apuestas, ") + Porcentaje(apuestas);
}

// Hundredths in whole numbers, halves up, so that no double comes between.
std::string LogicaAnalisis::Porcentaje(int32_t apuestas) const {
    const int64_t todas = publicApuestasAnalizar;
    if (todas <= 0) return "";
    const int64_t centesimas = (int64_t{apuestas} * 20000 + todas) / (2 * todas);
    return TextoDecimal(static_cast<double>(centesimas) / 100, entorno.SeparadorDecimal) + "%";
}

std::string LogicaAnalisis::TextoInforme() const {
    const Juego& juego = sesion.trabajo.JuegoActual();
    std::string texto = "TOMBOLERA ANALISIS:\n\n" + TextoRejillaInforme(lblN, sesion.trabajo.cboTipoJuego);
    if (!juego.TieneDigito()) return texto;
    texto += "\n" + std::string(juego.TituloReintegros) + "\n";
    for (int d = juego.DigitoMinimo; d <= juego.DigitoMaximo; ++d)
        texto += CeldaInforme(std::to_string(d), lblR[static_cast<size_t>(d)]) + "\n";
    return texto;
}

bool LogicaAnalisis::Escribir(std::string& fallo) const {
    return EscribirInforme(RutaInforme(entorno, NombreInformeAnalisis), TextoInforme(), fallo);
}

void LogicaAnalisis::VerAnalisis() const {
    std::string fallo;
    if (Escribir(fallo)) entorno.VerInforme(RutaInforme(entorno, NombreInformeAnalisis));
}

std::string LogicaAnalisis::TextoTabla() const {
    const Juego& juego = sesion.trabajo.JuegoActual();
    const auto fila = [this](int valor, int32_t apuestas) {
        return std::to_string(valor) + "\t" + std::to_string(apuestas) + "\t" + Porcentaje(apuestas) + "\n";
    };
    std::string tabla = "Número\tApuestas\tPorcentaje\n";
    for (int n = 1; n <= juego.NumeroMaximo; ++n) tabla += fila(n, Numeros[static_cast<size_t>(n)]);
    if (!juego.TieneDigito()) return tabla;
    tabla += std::string(NombreDigito(juego)) + "\tApuestas\tPorcentaje\n";
    for (int d = juego.DigitoMinimo; d <= juego.DigitoMaximo; ++d) tabla += fila(d, Digitos[static_cast<size_t>(d)]);
    return tabla;
}
