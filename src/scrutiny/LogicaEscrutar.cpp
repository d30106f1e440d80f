#include "LogicaEscrutar.h"

#include <algorithm>
#include <cerrno>
#include <cstring>
#include <new>

#include "Ficheros.h"
#include "modGeneral.h"
#include "modImportarASCII.h"

namespace {

constexpr size_t NumerosDeSorteo = 6;

// Raised while a run is on, whatever way it ends.
class Marcha {
  public:
    Marcha(bool& corriendo, Entorno& entorno) : corriendo_(corriendo) {
        corriendo_ = true;
        entorno.CederTurno(); // what is disabled shows
    }
    ~Marcha() { corriendo_ = false; }
    Marcha(const Marcha&) = delete;
    Marcha& operator=(const Marcha&) = delete;

  private:
    bool& corriendo_;
};

} // namespace

LogicaEscrutar::LogicaEscrutar(Sesion& s, Entorno& e) : sesion(s), entorno(e) {
    chkReintegros = JuegoActual().TieneDigito();
}

std::string LogicaEscrutar::Titulo() const {
    return "ESCRUTAR - " + sesion.trabajo.TipoJuego();
}

std::string LogicaEscrutar::lblTipoCombinacion() const {
    return std::to_string(std::count(lblNumero.begin(), lblNumero.end(), true)) + " Números Seleccionados";
}

std::string LogicaEscrutar::lblApuestasActuales() const {
    return FormatoMiles(sesion.trabajo.Contador.Reducidas, entorno.SeparadorMiles);
}

bool LogicaEscrutar::EnBase(int numero) const {
    return numero >= 1 && numero <= NumeroMaximoBoleto && sesion.trabajo.lblNumero[static_cast<size_t>(numero)];
}

int32_t LogicaEscrutar::Boletos() const {
    return ApuestasATRATAR / ApuestasPorBoleto() + (ApuestasATRATAR % ApuestasPorBoleto() != 0);
}

void LogicaEscrutar::Abrir() {
    const CombinacionReferencia& referencia = sesion.referencia;
    lblNumero.fill(false);
    for (const uint8_t n : referencia.CombinacionGanadora)
        if (n >= 1 && n <= JuegoActual().NumeroMaximo) lblNumero[n] = true;
    cboComplementario = referencia.Complementario <= NumeroMaximoBoleto ? referencia.Complementario : 0;
    ElegirApuestas();
    EscrutarSistema();
}

void LogicaEscrutar::PulsarNumero(int numero) {
    bool& marca = lblNumero[static_cast<size_t>(numero)];
    if (!marca && std::count(lblNumero.begin(), lblNumero.end(), true) >= static_cast<long>(NumerosDeSorteo))
        return entorno.Pitar();
    marca = !marca;
    Pendiente = true;
    GuardarSorteo();
}

void LogicaEscrutar::CambiarComplementario(int indice) {
    cboComplementario = indice;
    Pendiente = true;
    GuardarSorteo();
}

void LogicaEscrutar::imgININumeros() {
    lblNumero.fill(false);
    cboComplementario = 0;
    GuardarSorteo();
    EscrutarSistema();
}

void LogicaEscrutar::PulsarModo(int modo) {
    optModo = modo;
    ElegirApuestas();
    EscrutarSistema();
}

void LogicaEscrutar::CambiarReintegros(bool marcado) {
    chkReintegros = marcado;
    if (marcado) return;
    ApuestasFichero.Vaciar();
    NApuestasFichero = 0;
    txtFicheroASCII.clear();
    lblApuestasFichero = "0";
    PulsarModo(optModo);
}

// The grid is read in the order of the numbers, so that the draw is ascending.
void LogicaEscrutar::GuardarSorteo() {
    CombinacionReferencia& referencia = sesion.referencia;
    referencia.CombinacionGanadora.fill(0);
    size_t j = 0;
    for (size_t n = 1; n < lblNumero.size() && j < NumerosDeSorteo; ++n)
        if (lblNumero[n]) referencia.CombinacionGanadora[j++] = static_cast<uint8_t>(n);
    referencia.Complementario = static_cast<uint8_t>(cboComplementario);
}

// Nothing changes the bets while the window is open, so they stay where they are.
void LogicaEscrutar::ElegirApuestas() {
    const EstadoTrabajo& trabajo = sesion.trabajo;
    const bool nueva = optModo == CombinacionNueva;
    ApuestasEscrutar = nueva ? &ApuestasFichero : &trabajo.ApuestasReducidas;
    const int64_t hay = ApuestasEscrutar->Filas() >= 7 ? ApuestasEscrutar->Apuestas() : 0;
    ApuestasATRATAR =
        static_cast<int32_t>(std::min<int64_t>(nueva ? NApuestasFichero : trabajo.Contador.Reducidas, hay));
}

void LogicaEscrutar::cmdDesdeFichero() {
    const std::string ruta = entorno.PedirAbrir(PeticionAbrirApuestas());
    if (!Recortar(ruta).empty()) CargarFichero(ruta);
}

bool LogicaEscrutar::CargarFichero(const std::string& ruta) {
    optModo = CombinacionNueva;
    lblApuestasFichero = "0";
    txtFicheroASCII = ruta;
    {
        const Marcha marcha(Escrutando, entorno);
        NApuestasFichero =
            LeerApuestas(ruta, chkReintegros, ApuestasFichero, &lblApuestasFichero, JuegoActual(), entorno);
    }
    lblApuestasFichero = FormatoMiles(NApuestasFichero, entorno.SeparadorMiles);
    if (NApuestasFichero == 0) {
        Fallo(entorno, AvisoSinApuestas);
    } else if (!chkReintegros && TieneExtension(ruta, ".tom")) {
        std::memset(ApuestasFichero.Fila(7), 0, static_cast<size_t>(NApuestasFichero));
        Fallo(entorno, "AVISO: Se ha asignado al fichero cargado el REINTEGRO 0.");
    }
    PulsarModo(CombinacionNueva);
    return NApuestasFichero > 0;
}

bool LogicaEscrutar::ComprobarSorteo() {
    const auto& ganadora = sesion.referencia.CombinacionGanadora;
    const uint8_t complementario = sesion.referencia.Complementario;
    if (EsEURODREAMS() || complementario == 0) return true;
    if (std::find(ganadora.begin(), ganadora.end(), complementario) == ganadora.end()) return true;
    return Fallo(entorno, "El número complementario ha de ser distinto de los números elegidos");
}

// EURODREAMS has no complementary: one left over from another game counts for nothing.
Sorteado LogicaEscrutar::SorteoElegido() const {
    const CombinacionReferencia& referencia = sesion.referencia;
    return {referencia.CombinacionGanadora, EsEURODREAMS() ? uint8_t{0} : referencia.Complementario};
}

bool LogicaEscrutar::ContarApuestas(CuentaEscrutinio& cuenta) {
    const uint8_t digito = MuestraReintegros() ? static_cast<uint8_t>(JuegoActual().DigitoMinimo + cboReintegro)
                                               : SorteoPorNumero::SinDigito;
    const Marcha marcha(Escrutando, entorno);
    try {
        cuenta = EscrutarTabla(*ApuestasEscrutar, ApuestasATRATAR, SorteoPorNumero(SorteoElegido(), digito),
                               AciertosApuesta, entorno);
        return true;
    } catch (const std::bad_alloc&) {
        return Fallo(entorno, "ERROR AL ESCRUTAR EL SISTEMA (" + DescripcionFallo(ENOMEM) + ")");
    }
}

bool LogicaEscrutar::EscrutarSistema() {
    GuardarSorteo();
    CuentaEscrutinio cuenta;
    if (!ComprobarSorteo() || !ContarApuestas(cuenta)) return false;
    MostrarResultados(cuenta);
    Pendiente = false;
    if (EsEURODREAMS()) return true;
    const auto premios = cuenta.Aciertos.Premios();
    for (size_t c = 0; c < premios.size(); ++c) txtCalculadoraPremios[c] = std::to_string(premios[c]);
    EscrutinioHecho = true;
    return true;
}

void LogicaEscrutar::MostrarResultados(const CuentaEscrutinio& cuenta) {
    const auto fila = [this](std::string_view categoria, int32_t n) {
        lstPremios.push_back(std::string(categoria) + "\t" + FormatoMiles(n, entorno.SeparadorMiles));
    };
    const auto& aciertos = cuenta.Aciertos.Aciertos;
    const auto premios = cuenta.Aciertos.Premios();
    lstPremios.clear();
    if (EsEURODREAMS()) {
        fila("6+S", cuenta.SeisConDigito);
        for (size_t h = 7; h-- > 0;) fila(std::to_string(h), aciertos[h]);
        lstPremios.emplace_back("\t------------------");
        fila("Sueños:", cuenta.Digitos);
    } else {
        for (size_t c = 0; c < premios.size(); ++c) fila(NombresPremio[c], premios[c]);
        for (size_t h = 3; h-- > 0;) fila(std::to_string(h), aciertos[h]);
    }
    if (sesion.trabajo.cboTipoJuego == PRIMITIVA) {
        lstPremios.emplace_back("--------");
        fila("Reinteg.", cuenta.Digitos);
    }
    lblApuestas = FormatoMiles(ApuestasATRATAR, entorno.SeparadorMiles);
    lblBoletos = FormatoMiles(Boletos(), entorno.SeparadorMiles);
}

bool LogicaEscrutar::imgCalculadoraPremios() {
    if (!EsEURODREAMS()) return true;
    entorno.Mensaje(Icono::Informacion, "CALCULADORA DE PREMIOS NO DISPONIBLE PARA EL JUEGO EURODREAMS");
    return false;
}

std::string LogicaEscrutar::Copiar() const {
    std::string tabla = "Categoría\tApuestas\n";
    for (const std::string& fila : lstPremios)
        if (fila.find('-') == std::string::npos) tabla += fila + "\n";
    return tabla + "Apuestas\t" + lblApuestas + "\nBoletos\t" + lblBoletos + "\n";
}
