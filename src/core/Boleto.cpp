#include "Boleto.h"

#include <algorithm>
#include <numeric>

#include "Rnd.h"
#include "modGeneral.h"

namespace {

// One rule for rows and columns: the first number's mark decides for all.
void PulsarSerie(EstadoTrabajo& trabajo, int decide, int primero, int paso, int cuantos) {
    const bool marca = !trabajo.lblNumero[static_cast<size_t>(decide)];
    for (int i = 0; i < cuantos; ++i) {
        const int numero = primero + i * paso;
        if (numero >= 1 && numero <= NumeroMaximoBoleto) trabajo.lblNumero[static_cast<size_t>(numero)] = marca;
    }
    trabajo.CombinacionGuardada = false;
    ActualizarContadores(trabajo);
}

// An imported base holds whatever numbers its file has, also those that the game's ticket lacks.
int UltimoNumero(const EstadoTrabajo& trabajo) {
    return trabajo.cboTipoCombinacion == PronosticoDesdeArchivo ? NumeroMaximoBoleto : trabajo.NumeroMaximo();
}

} // namespace

int16_t ContarBase(const EstadoTrabajo& trabajo) {
    const auto desde = trabajo.lblNumero.begin() + 1;
    return static_cast<int16_t>(std::count(desde, desde + UltimoNumero(trabajo), true));
}

void LeerBase(EstadoTrabajo& trabajo) {
    trabajo.NumerosBase = 0;
    trabajo.BaseNumeros.fill(0);
    for (int n = 1; n <= UltimoNumero(trabajo); ++n)
        if (trabajo.lblNumero[static_cast<size_t>(n)])
            trabajo.BaseNumeros[static_cast<size_t>(++trabajo.NumerosBase)] = static_cast<uint8_t>(n);
}

void ActualizarContadores(EstadoTrabajo& trabajo) {
    trabajo.Contador.Iniciales = static_cast<int32_t>(Combinaciones(ContarBase(trabajo), 6));
    trabajo.Contador.Condicionadas = trabajo.Contador.Iniciales;
    trabajo.Contador.Reducidas = 0;
}

std::string TextoTipoCombinacion(const EstadoTrabajo& trabajo) {
    return std::to_string(ContarBase(trabajo)) + " Números";
}

void PulsarNumero(EstadoTrabajo& trabajo, int numero) {
    PulsarSerie(trabajo, numero, numero, 0, 1);
}

void PulsarReintegro(EstadoTrabajo& trabajo, int digito) {
    bool& marca = trabajo.lblReintegro[static_cast<size_t>(digito)];
    marca = !marca;
    trabajo.CombinacionGuardada = false;
    trabajo.Contador.Reducidas = 0;
}

void PulsarFila(EstadoTrabajo& trabajo, int r) {
    PulsarSerie(trabajo, r + 1, r + 1, 10, 5);
}

void PulsarColumna(EstadoTrabajo& trabajo, int c) {
    PulsarSerie(trabajo, 10 * c + 1, 10 * c, 1, 10);
}

void MarcarDesmarcarTODOS(EstadoTrabajo& trabajo) {
    const bool alguno = std::find(trabajo.lblNumero.begin(), trabajo.lblNumero.end(), true) != trabajo.lblNumero.end();
    if (alguno) {
        LimpiarMarcas(trabajo);
        trabajo.cboTipoReintegro = AlDirecto;
        return;
    }
    std::fill(trabajo.lblNumero.begin() + 1, trabajo.lblNumero.end(), true);
    trabajo.CombinacionGuardada = false;
    ActualizarContadores(trabajo);
}

void LimpiarMarcas(EstadoTrabajo& trabajo) {
    trabajo.lblNumero.fill(false);
    trabajo.lblReintegro.fill(false);
    ActualizarContadores(trabajo);
}

std::array<bool, NumeroMaximoBoleto + 1> SortearMarcas(int maximo, int cuantos) {
    std::array<int, NumeroMaximoBoleto> lista;
    std::iota(lista.begin(), lista.end(), 1);
    Azar azar;
    azar.SembrarReloj();
    for (int i = 0; i < maximo; ++i)
        std::swap(lista[static_cast<size_t>(i)], lista[static_cast<size_t>(azar.Entero(maximo))]);
    std::array<bool, NumeroMaximoBoleto + 1> marcas{};
    for (int i = 0; i < cuantos; ++i) marcas[static_cast<size_t>(lista[static_cast<size_t>(i)])] = true;
    return marcas;
}

void MarcarAlazar(EstadoTrabajo& trabajo, int cuantos) {
    trabajo.lblNumero = SortearMarcas(trabajo.NumeroMaximo(), cuantos);
    trabajo.CombinacionGuardada = false;
    ActualizarContadores(trabajo);
}

bool ValidarReintegros(const EstadoTrabajo& trabajo, Entorno& entorno) {
    const Juego& juego = trabajo.JuegoActual();
    if (!juego.TieneDigito() || trabajo.cboTipoCombinacion == PronosticoDesdeArchivo) return true;
    const auto digitos = trabajo.lblReintegro.begin();
    const auto marcados = std::count(digitos + juego.DigitoMinimo, digitos + juego.DigitoMaximo + 1, true);
    const std::string palabra(juego.Palabra);
    if (marcados == 0) return Fallo(entorno, "AVISO: Hay que seleccionar mínimo 1 " + palabra);
    if (trabajo.cboTipoReintegro == AlDirecto && marcados > 1)
        return Fallo(entorno,
                     "ERROR: Con el tipo de " + palabra + " 'Al directo' sólo se puede seleccionar 1 " + palabra);
    return true;
}
