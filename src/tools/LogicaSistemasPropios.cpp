#include "LogicaSistemasPropios.h"

#include <algorithm>
#include <cerrno>
#include <cmath>
#include <new>

#include "Boleto.h"
#include "Ficheros.h"
#include "GuardarSistema.h"
#include "modGeneral.h"
#include "modImportarASCII.h"

namespace {

using Mapa = std::array<uint8_t, NumeroMaximoBoleto + 1>;

constexpr int64_t ApuestasPorTurno = 6000;

std::vector<int> Marcados(const std::array<bool, NumeroMaximoBoleto + 1>& marcas) {
    std::vector<int> numeros;
    for (int n = 1; n <= NumeroMaximoBoleto; ++n)
        if (marcas[static_cast<size_t>(n)]) numeros.push_back(n);
    return numeros;
}

// Destinations in the order of their origins.
std::string Cabecera(const Mapa& MapaNumeros) {
    std::string cabecera;
    for (const uint8_t destino : MapaNumeros)
        if (destino != 0) cabecera += Formato00(destino);
    return cabecera;
}

} // namespace

std::vector<int> LogicaSistemasPropios::Destinos() const {
    return Marcados(lblNumeroFINAL);
}

std::vector<int> LogicaSistemasPropios::Origenes() const {
    return Marcados(lblNumero);
}

std::string LogicaSistemasPropios::lblTitNumerosORIGEN() const {
    return std::to_string(Origenes().size()) + " Números";
}

std::string LogicaSistemasPropios::lblTitNumerosDESTINO() const {
    return std::to_string(Destinos().size()) + " Números";
}

std::string LogicaSistemasPropios::Porcentaje(int numero) const {
    const int32_t veces = AparicionesNumero[static_cast<size_t>(numero)];
    if (veces == 0) return "";
    const double parte = 100.0 * veces / static_cast<double>(ApuestasOrigen.Apuestas());
    return TextoDecimal(RedondearPar(parte * 100) / 100, entorno.SeparadorDecimal) + " %";
}

std::string LogicaSistemasPropios::txtPorcentajesNumeros() const {
    std::string texto;
    for (const int n : Origenes()) {
        const std::string parte = Porcentaje(n);
        texto += Formato00(n) + "-" + parte.substr(0, parte.size() - 2) + "%\n";
    }
    return texto;
}

std::string LogicaSistemasPropios::TextoTabla() const {
    std::string tabla;
    for (const int n : Origenes()) tabla += std::to_string(n) + "\t" + Porcentaje(n) + "\n";
    return tabla.empty() ? tabla : "Número\tPorcentaje\n" + tabla;
}

void LogicaSistemasPropios::cmdDesdeFichero() {
    const std::string ruta = entorno.PedirAbrir(PeticionAbrirApuestas());
    if (!ruta.empty()) Cargar(ruta);
}

bool LogicaSistemasPropios::Cargar(const std::string& ruta) {
    lblNumero.fill(false);
    AparicionesNumero.fill(0);
    cboOrden.fill(0);
    txtApuCargadas = "0";
    txtFicheroASCII = ruta;
    const int32_t leidas = LeerApuestas(ruta, false, ApuestasOrigen, &lblApuCargadas, trabajo.JuegoActual(), entorno);
    lblApuCargadas.clear();
    if (leidas == 0) {
        ApuestasOrigen.Vaciar();
        return Fallo(entorno, AvisoSinApuestas);
    }
    for (int r = 1; r <= 6; ++r) {
        const uint8_t* fila = ApuestasOrigen.Fila(r);
        for (int64_t i = 0; i < leidas; ++i) ++AparicionesNumero[fila[i]];
    }
    for (size_t n = 1; n < lblNumero.size(); ++n) lblNumero[n] = AparicionesNumero[n] > 0;
    txtApuCargadas = FormatoMiles(leidas, entorno.SeparadorMiles);
    return true;
}

void LogicaSistemasPropios::PulsarDestino(int numero) {
    if (numero < 1 || numero > NumeroMaximoBoleto) return;
    bool& marca = lblNumeroFINAL[static_cast<size_t>(numero)];
    marca = !marca;
    if (!marca) cboOrden[static_cast<size_t>(numero)] = 0;
}

void LogicaSistemasPropios::cmdAlazar() {
    const int maximo = trabajo.NumeroMaximo();
    lblNumeroFINAL = SortearMarcas(maximo, std::clamp(cboNumeros, 1, maximo));
    cboOrden.fill(0);
}

bool LogicaSistemasPropios::ElegirOrigen(int destino, int origen) {
    int& lista = cboOrden[static_cast<size_t>(destino)];
    lista = 0;
    if (origen != 0 && std::find(cboOrden.begin(), cboOrden.end(), origen) != cboOrden.end())
        return Fallo(entorno, "ERROR: Ese número del sistema ORIGEN ya esta seleccionado");
    lista = origen;
    return true;
}

bool LogicaSistemasPropios::chequearCOMBOS() const {
    const std::vector<int> destinos = Destinos();
    return std::all_of(destinos.begin(), destinos.end(),
                       [&](int destino) { return cboOrden[static_cast<size_t>(destino)] != 0; });
}

bool LogicaSistemasPropios::LeerMapa(Mapa& MapaNumeros) const {
    const std::vector<int> NumerosOrigen = Origenes(), destinos = Destinos();
    if (chkElegirOrden && !chequearCOMBOS())
        return Fallo(entorno, "ERROR: Algún número DESTINO no tiene asignado número ORIGEN (Rellene los Combos)");
    for (size_t k = 0; k < destinos.size(); ++k) {
        const int origen = chkElegirOrden ? cboOrden[static_cast<size_t>(destinos[k])] : NumerosOrigen[k];
        MapaNumeros[static_cast<size_t>(origen)] = static_cast<uint8_t>(destinos[k]);
    }
    return true;
}

Tabla LogicaSistemasPropios::Trasladar(const Mapa& MapaNumeros) {
    Tabla apuestas(7, ApuestasOrigen.Apuestas());
    for (int64_t i = 0; i < apuestas.Apuestas(); ++i) {
        std::array<uint8_t, 6> apuesta;
        for (size_t r = 0; r < 6; ++r) apuesta[r] = MapaNumeros[ApuestasOrigen.Fila(static_cast<int>(r) + 1)[i]];
        std::sort(apuesta.begin(), apuesta.end());
        for (size_t r = 0; r < 6; ++r) apuestas.Fila(static_cast<int>(r) + 1)[i] = apuesta[r];
        if (i % ApuestasPorTurno == 0) entorno.CederTurno();
    }
    return apuestas;
}

bool LogicaSistemasPropios::imgCalculoDefinitivo() {
    if (ApuestasOrigen.Apuestas() == 0) return Fallo(entorno, "ERROR: Hay 0 apuestas importadas");
    if (Origenes().size() != Destinos().size())
        return Fallo(entorno, "ERROR: Cantidad de números seleccionados del sistema DESTINO distinto del sistema "
                              "ORIGEN");
    Fallo(entorno, "AVISO: El nuevo Sistema Propio generado se creará con el REINTEGRO igual a 0.");
    Mapa MapaNumeros{};
    if (!LeerMapa(MapaNumeros)) return false;
    try {
        const Tabla apuestas = Trasladar(MapaNumeros);
        const std::string ruta = PedirRutaSistema(NombreSistemaActual(trabajo), entorno);
        return !ruta.empty() && GuardarSistema(ruta, Cabecera(MapaNumeros), apuestas, trabajo, lblProgressBar, entorno);
    } catch (const std::bad_alloc&) {
        return FalloAlGuardar(entorno, DescripcionFallo(ENOMEM));
    }
}
