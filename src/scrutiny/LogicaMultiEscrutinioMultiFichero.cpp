#include "LogicaMultiEscrutinioMultiFichero.h"

#include <cerrno>
#include <new>

#include <fmt/format.h>

#include "FicheroAtomico.h"
#include "Ficheros.h"
#include "Informes.h"
#include "Mientras.h"
#include "RecorrerSorteos.h"
#include "modGeneral.h"
#include "modImportarASCII.h"

namespace {

constexpr int64_t SorteosMaximos = 999999;
constexpr size_t FicherosPorVez = 1000;
constexpr size_t AnchoNombre = 26;
constexpr size_t Tramo = 1 << 16; // characters of a detailed report written at a time

constexpr const char* EstadoLibre = "Ventana de estado : -";
constexpr const char* CabeceraResumen =
    "FICHERO                    APUESTAS   DE6       DE5       DE4       DE3       DE2       DE1       DE0\n";

PeticionFichero PeticionFicheros() {
    PeticionFichero peticion = PeticionAbrirApuestas();
    peticion.FiltroElegido = 0;
    return peticion;
}

PeticionFichero PeticionSorteos() {
    return {"Abrir Fichero",
            {{"Ficheros de Apuestas (*.TXT)", "*.TXT"},
             {"Ficheros de Apuestas (*.ASC)", "*.ASC"},
             {"Todos los archivos (*.*)", "*.*"}},
            "",
            0};
}

// The hit counts from 6 down to 0, each in a column of `ancho` and the blanks behind it.
template <class Cuentas>
void AnadirCuentas(std::string& texto, const Cuentas& aciertos, int ancho, std::string_view blancos) {
    for (size_t h = 7; h-- > 0;) fmt::format_to(std::back_inserter(texto), "{:<{}}{}", aciertos[h], ancho, blancos);
}

// The file in its own column, by characters.
std::string NombreEnColumna(const std::string& nombre) {
    size_t caracteres = 0, fin = 0;
    for (; fin < nombre.size(); ++fin) {
        const bool empieza = (static_cast<unsigned char>(nombre[fin]) & 0xC0) != 0x80;
        if (empieza && caracteres++ == AnchoNombre) return nombre.substr(0, fin);
    }
    return nombre + std::string(AnchoNombre - caracteres, ' ');
}

// The draws of a table of bets.
std::vector<Sorteado> ComoSorteos(const Tabla& tabla) {
    std::vector<Sorteado> sorteos(static_cast<size_t>(tabla.Apuestas()));
    for (size_t i = 0; i < sorteos.size(); ++i)
        sorteos[i].Ganadores = MascaraApuesta(tabla, static_cast<int64_t>(i) + 1);
    return sorteos;
}

} // namespace

std::string LogicaMultiEscrutinioMultiFichero::Titulo() const {
    return "MultiEscrutinio MultiFichero (TIPO DE JUEGO SELECCIONADO: " + sesion.trabajo.TipoJuego() + ")";
}

bool LogicaMultiEscrutinioMultiFichero::cmdADD() {
    return AnadirFicheros(entorno.PedirVarios(PeticionFicheros()));
}

// Only what is added at once has a limit: the list itself may grow beyond it.
bool LogicaMultiEscrutinioMultiFichero::AnadirFicheros(const std::vector<std::string>& rutas) {
    if (rutas.size() > FicherosPorVez) return Fallo(entorno, "SOLO SE PERMITEN CARGAR 1000 FICHEROS PARA ESCRUTAR");
    lstFicheros.insert(lstFicheros.end(), rutas.begin(), rutas.end());
    return !rutas.empty();
}

bool LogicaMultiEscrutinioMultiFichero::cmdDEL() {
    if (Seleccionado < 0 || Seleccionado >= static_cast<int>(lstFicheros.size()))
        return Fallo(entorno, "DEBE SELECCIONAR UN FICHERO DE LA LISTA PARA ELIMINARLO");
    lstFicheros.erase(lstFicheros.begin() + Seleccionado);
    Seleccionado = -1;
    return true;
}

void LogicaMultiEscrutinioMultiFichero::cmdDELALL() {
    if (!entorno.Preguntar("¿ ESTA SEGURO QUE QUIERE BORRAR TODA LA LISTA DE FICHEROS ?")) return;
    lstFicheros.clear();
    Seleccionado = -1;
    lblEstado = EstadoLibre;
}

bool LogicaMultiEscrutinioMultiFichero::cmdDesdeFicheroSORTEOS() {
    const std::string ruta = entorno.PedirAbrir(PeticionSorteos());
    return !ruta.empty() && CargarSorteos(ruta);
}

bool LogicaMultiEscrutinioMultiFichero::CargarSorteos(const std::string& ruta) {
    Tabla leidos;
    int32_t cuantos = 0;
    bool avisado = false;
    {
        const Mientras cargando(Cargando);
        const std::string antes = lblApuCargadas;
        Entorno atento = entorno;
        atento.Mensaje = [&](Icono icono, const std::string& texto) {
            avisado = true;
            entorno.Mensaje(icono, texto);
        };
        cuantos = ImportarTXTSinReintegros(ruta, leidos, &lblApuCargadas, atento);
        lblApuCargadas = antes;
    }
    if (cuantos == 0) return avisado ? false : Fallo(entorno, AvisoSinApuestas);
    SorteosFichero = std::move(leidos);
    txtFicheroASCIISORTEOS = ruta;
    lblApuCargadas = FormatoMiles(cuantos, entorno.SeparadorMiles);
    return true;
}

void LogicaMultiEscrutinioMultiFichero::imgINICombinacionSORTEOS() {
    SorteosFichero.Vaciar();
    txtFicheroASCIISORTEOS.clear();
    lblApuCargadas = "0";
}

bool LogicaMultiEscrutinioMultiFichero::Validar() {
    if (SorteosFichero.Apuestas() == 0) return Fallo(entorno, "ERROR: No hay Fichero de SORTEOS cargado para escrutar");
    if (SorteosFichero.Apuestas() > SorteosMaximos)
        return Fallo(entorno, "ERROR: El Fichero de SORTEOS tienes más de 999.999 apuestas que es el máximo permitido "
                              "para ser escrutado");
    if (lstFicheros.empty()) return Fallo(entorno, "NO HAY NINGUN FICHERO CARGADO PARA ESCRUTAR");
    return true;
}

bool LogicaMultiEscrutinioMultiFichero::imgEscrutar() {
    if (!Validar()) return false;
    const Mientras corriendo(Corriendo);
    lblEstado = EstadoLibre;
    lblImportando = "0";
    txtInforme.clear();
    Resumido = false;
    Escrutados.clear();
    bool bien = true;
    try {
        sorteos_ = ComoSorteos(SorteosFichero);
        for (size_t i = 1; bien && i <= lstFicheros.size(); ++i) bien = TratarFichero(i);
        Resumido = !chkTipoListadoPremios;
        if (Resumido) txtInforme.insert(0, CabeceraResumen);
    } catch (const std::bad_alloc&) {
        bien = Fallo(entorno, "ERROR AL ESCRUTAR LOS FICHEROS (" + DescripcionFallo(ENOMEM) + ")");
    }
    ApuestasActuales.Vaciar();
    sorteos_ = {};
    lblEstado = EstadoLibre;
    lblImportando = "0";
    return bien;
}

// A file that cannot be read, or is stopped, says so in its row. False when the run is to end.
bool LogicaMultiEscrutinioMultiFichero::TratarFichero(size_t i) {
    lblImportando = "0";
    lblEstado = "Ventana de estado : Importando fichero " + std::to_string(i);
    entorno.CederTurno();
    const std::string ruta = lstFicheros[i - 1];
    FicheroEscrutado fichero{NombreSinCarpeta(ruta)};
    fichero.Apuestas =
        LeerApuestas(ruta, false, ApuestasActuales, &lblImportando, sesion.trabajo.JuegoActual(), entorno);
    AnotarCabecera(i, fichero);
    lblImportando = FormatoMiles(fichero.Apuestas, entorno.SeparadorMiles);
    bool seguir = true;
    if (fichero.Apuestas < 1) {
        txtInforme += "(error al leer el fichero)\n";
    } else {
        lblEstado = "Ventana de estado : Escrutando fichero " + std::to_string(i);
        seguir = EscrutarFichero(i, fichero);
        if (PararMultiFichero) txtInforme += "(proceso detenido, fichero no escrutado)\n";
    }
    Escrutados.push_back(std::move(fichero));
    return seguir;
}

void LogicaMultiEscrutinioMultiFichero::AnotarCabecera(size_t i, const FicheroEscrutado& fichero) {
    const std::string apuestas = FormatoMiles(fichero.Apuestas, entorno.SeparadorMiles);
    txtInforme += chkTipoListadoPremios
                      ? fmt::format("Fichero {}: {}\nApuestas Fichero {}: {}\n", i, fichero.Nombre, i, apuestas)
                      : fmt::format("{} {:<10} ", NombreEnColumna(fichero.Nombre), apuestas);
}

// A stop is asked for each file anew, so that it skips the file in hand alone.
bool LogicaMultiEscrutinioMultiFichero::EscrutarFichero(size_t i, FicheroEscrutado& fichero) {
    PararMultiFichero = false;
    const Mientras escrutando(Escrutando);
    lblEscrutando = fmt::format("Escrutando Fichero {} ({} Apu.)", i, fichero.Apuestas);
    if (chkTipoListadoPremios) return EscribirDetalle(i, fichero);
    if (!Recorrer(fichero, [](size_t, const CuentaAciertos&) { return true; })) return true;
    AnadirCuentas(txtInforme, fichero.Aciertos, 9, " ");
    txtInforme += '\n';
    return true;
}

// False when the report cannot be written: the others would not either.
bool LogicaMultiEscrutinioMultiFichero::EscribirDetalle(size_t i, FicheroEscrutado& fichero) {
    const std::string ruta = RutaInforme(entorno, fmt::format("TOMBOLERA_DETALLEPREMIOS_FICHERO{}.txt", i));
    FicheroAtomico informe;
    std::string pendiente;
    const auto anotar = [&](size_t s, const CuentaAciertos& cuenta) {
        std::array<int, 6> n{};
        for (int r = 1; r <= 6; ++r) n[static_cast<size_t>(r) - 1] = SorteosFichero(r, static_cast<int64_t>(s) + 1);
        fmt::format_to(std::back_inserter(pendiente), "{:06}. {:02} = ", s + 1, fmt::join(n, ","));
        AnadirCuentas(pendiente, cuenta.Aciertos, 7, "   ");
        pendiente += "\r\n";
        if (pendiente.size() < Tramo) return true;
        const bool escrito = informe.Escribir(pendiente);
        pendiente.clear();
        return escrito;
    };
    const bool entero = informe.Abrir(ruta) && Recorrer(fichero, anotar);
    if (PararMultiFichero) return true;
    fichero.Escrutado = entero && informe.Escribir(pendiente) && informe.Confirmar();
    if (!fichero.Escrutado) return FalloAlGenerarInforme(entorno, informe.Fallo());
    entorno.VerInforme(ruta);
    return true;
}

bool LogicaMultiEscrutinioMultiFichero::Recorrer(FicheroEscrutado& fichero,
                                                 const std::function<bool(size_t, const CuentaAciertos&)>& alContar) {
    lblProgressBar = 0;
    std::array<int64_t, 7> aciertos{};
    const PasosRecorrido pasos{[this](double parte) {
                                   lblProgressBar = parte;
                                   entorno.CederTurno();
                                   return !PararMultiFichero;
                               },
                               [&](size_t s, const CuentaAciertos& cuenta) {
                                   for (size_t h = 0; h < aciertos.size(); ++h) aciertos[h] += cuenta.Aciertos[h];
                                   return alContar(s, cuenta);
                               }};
    if (!RecorrerSorteos(ApuestasActuales, sorteos_, pasos)) return false;
    fichero.Aciertos = aciertos;
    fichero.Escrutado = true;
    return true;
}

bool LogicaMultiEscrutinioMultiFichero::imgVerInformeResumenPremios() {
    if (txtInforme.empty()) return Fallo(entorno, "NO SE HA GENERADO TODAVIA NINGUN INFORME");
    return MostrarInforme(entorno, "TOMBOLERA_RESUMENPREMIOS.txt", txtInforme);
}

bool LogicaMultiEscrutinioMultiFichero::PuedeCerrar() {
    return !Ocupada() && entorno.Preguntar("Se perderán todos los cálculos, ¿ SEGURO QUE DESEAS VOLVER ?");
}

std::string TablaEscrutados(const std::vector<FicheroEscrutado>& ficheros) {
    std::string texto = "Fichero\tApuestas\tDE6\tDE5\tDE4\tDE3\tDE2\tDE1\tDE0\n";
    for (const FicheroEscrutado& f : ficheros) {
        texto += fmt::format("{}\t{}", f.Nombre, f.Apuestas);
        for (size_t h = 7; h-- > 0;) texto += f.Escrutado ? fmt::format("\t{}", f.Aciertos[h]) : "\t";
        texto += '\n';
    }
    return texto;
}
