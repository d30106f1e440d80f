#include "ImportarCombinacion.h"

#include <algorithm>
#include <cstring>
#include <new>

#include "Bloqueo.h"
#include "Boleto.h"
#include "Ficheros.h"
#include "Repetidas.h"
#include "modGeneral.h"
#include "modImportarASCII.h"

namespace {

constexpr uint8_t DigitoPorDefecto = 1;

// Flags by value of a cell.
using Vistos = std::array<bool, 256>;

void Ver(const Tabla& apuestas, int fila, Vistos& vistos) {
    const uint8_t* celda = apuestas.Fila(fila);
    for (int64_t i = 0; i < apuestas.Apuestas(); ++i) vistos[celda[i]] = true;
}

// Clears what belongs to the former combination; the conditions stay as they are.
void Empezar(const std::string& ruta, Sesion& sesion) {
    EstadoTrabajo& trabajo = sesion.trabajo;
    trabajo.cboTipoCombinacion = PronosticoDesdeArchivo;
    trabajo.cboTipoReintegro = AlDirecto;
    trabajo.CombinacionGuardada = false;
    trabajo.txtFicheroASCII = ruta;
    trabajo.ApuestasImportadas.Vaciar();
    ++trabajo.Importacion;
    trabajo.ApuestasCondicionadas.Vaciar();
    trabajo.NApuestasImportadas = 0;
    LimpiarMarcas(trabajo);
    LeerBase(trabajo);
    sesion.condiciones.EliminadasPorFiltro.fill(0);
    for (FilaFiltro& fila : sesion.condiciones.lstFiltros) fila.Eliminadas.reset();
}

void MostrarCuenta(EstadoTrabajo& trabajo) {
    Contadores& contador = trabajo.Contador;
    contador.Iniciales = contador.Condicionadas = contador.Reducidas = trabajo.NApuestasImportadas;
}

std::string AvisoVariosDigitos(const Juego& juego) {
    const std::string que = juego.Nombre == Juegos[PRIMITIVA].Nombre ? "REINTEGRO" : "SUEÑO";
    return "AVISO: LA COMBINACION IMPORTADA TIENE MAS DE 1 " + que + ". AL CALCULAR, FILTRAR O REDUCIR SE GENERARAN " +
           que + "S ALEATORIAMENTE EN BASE A LOS " + que + "S IMPORTADOS";
}

std::string AvisoSinDigitos(const Juego& juego) {
    const bool primitiva = juego.Nombre == Juegos[PRIMITIVA].Nombre;
    return std::string("AVISO: La combinación importada no tiene ") + (primitiva ? "reintegros" : "sueños") +
           ", se le ha asignado a la combinación el " + (primitiva ? "REINTEGRO" : "SUEÑO") + " 1 por defecto.";
}

// Without digits of its own the combination gets the default one, in its bets too.
void MarcarDigitos(EstadoTrabajo& trabajo, Entorno& entorno) {
    const Juego& juego = trabajo.JuegoActual();
    if (!juego.TieneDigito()) return;
    Tabla& apuestas = trabajo.ApuestasImportadas;
    if (!trabajo.chkReintegros) {
        Fallo(entorno, AvisoSinDigitos(juego));
        std::memset(apuestas.Fila(7), DigitoPorDefecto, static_cast<size_t>(apuestas.Apuestas()));
    }
    Vistos digitos{};
    Ver(apuestas, 7, digitos);
    if (std::count(digitos.begin(), digitos.end(), true) > 1) Fallo(entorno, AvisoVariosDigitos(juego));
    std::copy_n(digitos.begin(), trabajo.lblReintegro.size(), trabajo.lblReintegro.begin());
}

void MarcarNumeros(EstadoTrabajo& trabajo) {
    Vistos numeros{};
    for (int r = 1; r <= 6; ++r) Ver(trabajo.ApuestasImportadas, r, numeros);
    std::copy_n(numeros.begin(), trabajo.lblNumero.size(), trabajo.lblNumero.begin());
    LeerBase(trabajo);
}

// The bets that stay are at once the final system.
void Analizar(EstadoTrabajo& trabajo, Entorno& entorno) {
    trabajo.Contador.Progreso = "Analizando ...";
    const int32_t repetidas = QuitarRepetidas(trabajo.ApuestasImportadas, entorno);
    trabajo.ApuestasReducidas = trabajo.ApuestasImportadas;
    trabajo.NApuestasImportadas -= repetidas;
    trabajo.Contador.Progreso.clear();
    if (repetidas > 0)
        Fallo(entorno, "AVISO: El sistema importado tiene apuestas repetidas y estas han sido eliminadas\n"
                       "TOTAL apuestas repetidas: " +
                           std::to_string(repetidas));
}

bool Importar(const std::string& ruta, Sesion& sesion, Entorno& entorno) {
    EstadoTrabajo& trabajo = sesion.trabajo;
    std::string& etiqueta = trabajo.Contador.Progreso;
    ++trabajo.Importacion;
    trabajo.NApuestasImportadas = LeerApuestas(ruta, trabajo.chkReintegros, trabajo.ApuestasImportadas, &etiqueta,
                                               trabajo.JuegoActual(), entorno);
    trabajo.Contador.Iniciales = trabajo.NApuestasImportadas;
    if (trabajo.NApuestasImportadas == 0) return Fallo(entorno, AvisoSinApuestas);
    MarcarDigitos(trabajo, entorno);
    MarcarNumeros(trabajo);
    Analizar(trabajo, entorno);
    return true;
}

bool SeAbre(const std::string& ruta) {
    std::string ignorado;
    return FicheroEntrada().Abrir(ruta, ignorado);
}

} // namespace

bool ImportarCombinacion(Sesion& sesion, Entorno& entorno) {
    const std::string ruta = entorno.PedirAbrir(PeticionAbrirApuestas());
    return !Recortar(ruta).empty() && ImportarFichero(ruta, sesion, entorno);
}

bool ImportarFichero(const std::string& ruta, Sesion& sesion, Entorno& entorno) {
    EstadoTrabajo& trabajo = sesion.trabajo;
    if (!SeAbre(ruta)) {
        Tabla ninguna;
        LeerApuestas(ruta, trabajo.chkReintegros, ninguna, nullptr, trabajo.JuegoActual(), entorno);
        return Fallo(entorno, AvisoSinApuestas);
    }
    const Bloqueo bloqueo(trabajo);
    Empezar(ruta, sesion);
    bool importado = false;
    try {
        importado = Importar(ruta, sesion, entorno);
    } catch (const std::bad_alloc&) {
        Empezar(ruta, sesion);
        Fallo(entorno, "ERROR AL IMPORTAR EL FICHERO, FICHERO NO IMPORTADO (no hay memoria suficiente )");
    }
    trabajo.Contador.Progreso.clear();
    MostrarCuenta(trabajo);
    return importado;
}
