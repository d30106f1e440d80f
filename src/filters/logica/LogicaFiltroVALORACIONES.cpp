#include "LogicaFiltroVALORACIONES.h"

#include <algorithm>
#include <numeric>

#include "FicheroPorcentajes.h"

void LogicaFiltroVALORACIONES::MostrarGrupo() {
    const GrupoValoraciones& grupo = Grupo();
    for (int n = 1; n <= 49; ++n) {
        const int marca = grupo.valoraciones[static_cast<size_t>(n)];
        const bool cabe = Habilitada(n) && marca >= 1 && marca <= MarcaMaxima;
        cboPorcentaje[static_cast<size_t>(n - 1)] = cabe ? marca : 0;
    }
    for (size_t i = 0; i < grupo.intervalos.size(); ++i)
        MostrarIntervalo(grupo.intervalos[i], txtValoracionMinima[i], txtValoracionMaxima[i]);
}

void LogicaFiltroVALORACIONES::cmdMASBloque() {
    if (!bloque.cmdMASBloque() || !GuardarGrupo()) return;
    bloque.Mas();
    MostrarGrupo();
}

void LogicaFiltroVALORACIONES::cmdMENOSBloque() {
    if (!bloque.cmdMENOSBloque() || !GuardarGrupo()) return;
    bloque.Menos();
    MostrarGrupo();
}

bool LogicaFiltroVALORACIONES::Habilitada(int numero) const {
    return numero >= 1 && Visible(numero) && sesion.trabajo.lblNumero[static_cast<size_t>(numero)];
}

void LogicaFiltroVALORACIONES::ElegirPorcentaje(int numero, int item) {
    if (!Habilitada(numero) || item < 0 || item > MarcaMaxima) return;
    cboPorcentaje[static_cast<size_t>(numero - 1)] = item;
    marco.ActivarFiltro();
}

void LogicaFiltroVALORACIONES::CambiarMinima(size_t i, const std::string& texto) {
    CambiarCampo(marco, txtValoracionMinima[i], texto);
}

void LogicaFiltroVALORACIONES::CambiarMaxima(size_t i, const std::string& texto) {
    CambiarCampo(marco, txtValoracionMaxima[i], texto);
}

void LogicaFiltroVALORACIONES::imgININumeros() {
    cboPorcentaje.fill(0);
    marco.ActivarFiltro();
}

std::string LogicaFiltroVALORACIONES::lblSumaPorcentajes() const {
    return std::to_string(std::accumulate(cboPorcentaje.begin(), cboPorcentaje.end(), 0));
}

std::string LogicaFiltroVALORACIONES::lblTitNumeros() const {
    const auto sin = std::count(cboPorcentaje.begin(), cboPorcentaje.end(), 0);
    return std::to_string(std::ssize(cboPorcentaje) - sin) + " Valoraciones Seleccionadas";
}

bool LogicaFiltroVALORACIONES::FalloGrupo(const std::string& texto) {
    return Fallo(entorno, "ERROR GRUPO " + std::to_string(bloque.Actual) + texto);
}

bool LogicaFiltroVALORACIONES::ValidarIntervalo(size_t i) {
    if (EnBlanco(txtValoracionMinima[i]) || EnBlanco(txtValoracionMaxima[i]))
        return FalloGrupo(": No se permiten valores nulos en los intervalos");
    const int32_t minimo = ValorCampo(txtValoracionMinima[i]), maximo = ValorCampo(txtValoracionMaxima[i]);
    if ((minimo > 0 || maximo > 0) && minimo > maximo)
        return FalloGrupo(": El valor mínimo de un intervalo no puede ser mayor que el valor máximo");
    if (maximo > MaximoIntervalo)
        return FalloGrupo(": El valor máximo de un intervalo no puede ser mayor que " +
                          std::to_string(MaximoIntervalo));
    return true;
}

// The marks are stored before the last two checks, so that those of numbers that left the base are
// gone even if the group is refused.
bool LogicaFiltroVALORACIONES::GuardarGrupo() {
    GrupoValoraciones& grupo = Grupo();
    bool hayIntervalos = false;
    for (size_t i = 0; i < grupo.intervalos.size(); ++i) {
        if (!ValidarIntervalo(i)) return false;
        hayIntervalos |= ValorCampo(txtValoracionMinima[i]) > 0 || ValorCampo(txtValoracionMaxima[i]) > 0;
    }
    std::copy(cboPorcentaje.begin(), cboPorcentaje.end(), grupo.valoraciones.begin() + 1);
    const bool hayMarcas =
        std::any_of(cboPorcentaje.begin(), cboPorcentaje.end(), [](int marca) { return marca != 0; });
    if (hayIntervalos && !hayMarcas)
        return FalloGrupo(": Hay intervalos activos y no ha seleccionado ninguna valoración en los números");
    if (hayMarcas && !hayIntervalos)
        return FalloGrupo(": Hay seleccionadas valoraciones de números y no ha activado ningún intervalo");
    Volcar(sesion.condiciones);
    return true;
}

void LogicaFiltroVALORACIONES::Volcar(Condiciones& condiciones) const {
    GrupoValoraciones& grupo = condiciones.VALORACIONES.grupo[bloque.Grupo(0)];
    std::copy(cboPorcentaje.begin(), cboPorcentaje.end(), grupo.valoraciones.begin() + 1);
    for (size_t i = 0; i < grupo.intervalos.size(); ++i)
        LeerIntervalo(txtValoracionMinima[i], txtValoracionMaxima[i], grupo.intervalos[i]);
}

void LogicaFiltroVALORACIONES::cmdAbrirPorcentajes() {
    const std::string ruta = PedirPorcentajesAbrir(entorno);
    if (ruta.empty()) return;
    marco.ActivarFiltro();
    const auto poner = [this](int n, const std::string&, double valor) {
        const int item = valor >= 1 && valor <= MarcaMaxima ? static_cast<int>(valor) : 0;
        if (!Habilitada(n) || item == 0 || item != valor) return false;
        cboPorcentaje[static_cast<size_t>(n - 1)] = item;
        return true;
    };
    if (!LeerPorcentajes(ruta, poner)) Fallo(entorno, "ERROR AL CARGAR ALGUNOS O TODOS LOS VALORES DE LOS PORCENTAJES");
}

void LogicaFiltroVALORACIONES::cmdGuardarPorcentajes() {
    const std::string ruta = PedirPorcentajesGuardar(entorno);
    if (ruta.empty()) return;
    TextosPorcentajes textos;
    std::transform(cboPorcentaje.begin(), cboPorcentaje.end(), textos.begin(), [](int i) { return std::to_string(i); });
    GuardarPorcentajes(entorno, ruta, textos);
}
