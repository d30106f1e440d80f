#include "LogicaAlgebra.h"

#include <algorithm>
#include <cerrno>
#include <cstring>
#include <new>

#include "CuentaBytes.h"
#include "Ficheros.h"
#include "GuardarSistema.h"
#include "Mientras.h"
#include "OperacionesSistemas.h"
#include "TablasCSN.h"
#include "modGeneral.h"
#include "modImportarASCII.h"

namespace {

constexpr const char* Cabecera = "0"; // a result has no base

std::array<int32_t, 50> ContarNumeros(const Tabla& apuestas) {
    CuentaBytes cuenta;
    for (int r = 1; r <= 6; ++r) cuenta.Contar(apuestas.Fila(r), apuestas.Apuestas());
    std::array<int32_t, 50> apariciones{};
    for (size_t n = 1; n < apariciones.size(); ++n) apariciones[n] = cuenta.De(n);
    return apariciones;
}

} // namespace

std::string SistemaCargado::lblTipoCombinacion() const {
    return std::to_string(std::count(lblNumero.begin(), lblNumero.end(), true)) + " Números";
}

void LogicaAlgebra::Abrir() {
    for (SistemaCargado& s : Sistema) s.txtApuCargadas = "0";
}

std::string LogicaAlgebra::Titulo() const {
    return "ALGEBRA DE COMBINACIONES (TIPO DE JUEGO SELECCIONADO: " + sesion.trabajo.TipoJuego() + ")";
}

std::string LogicaAlgebra::TextoTipo(int tipo) {
    static const std::array<const char*, 5> Textos{
        "Ordenar sistema 1:", "Sumar Sistemas (directo)", "Sumar Sistemas (quitando repetidas)",
        "Intersección Sistemas (apu. comunes)", "Restar Sistemas (sistema 1-sistema 2)"};
    return Textos[static_cast<size_t>(tipo)];
}

std::string LogicaAlgebra::TextoOrdenacion(int orden) {
    return orden == 0 ? "Ascendente" : "Descendente";
}

std::string LogicaAlgebra::Miles(int64_t n) const {
    return FormatoMiles(n, entorno.SeparadorMiles);
}

void LogicaAlgebra::cmdDesdeFichero(size_t i) {
    if (Trabajando) return;
    const std::string ruta = entorno.PedirAbrir(PeticionAbrirApuestas());
    if (!Recortar(ruta).empty()) Cargar(i, ruta);
}

void LogicaAlgebra::Cargar(size_t i, const std::string& ruta) {
    if (Trabajando) return;
    const Mientras ocupado(Trabajando);
    txtVentanaResultados.clear();
    SistemaCargado& s = Sistema[i];
    s = {};
    s.txtApuCargadas = "0";
    s.txtFicheroASCII = ruta;
    LeerApuestas(ruta, false, s.Apuestas, &s.txtApuCargadas, sesion.trabajo.JuegoActual(), entorno);
    if (s.N() > 0) {
        OrdenarNumeros(s.Apuestas);
        s.AparicionesNumero = ContarNumeros(s.Apuestas);
    }
    for (size_t n = 1; n < s.lblNumero.size(); ++n) s.lblNumero[n] = s.AparicionesNumero[n] > 0;
    s.txtApuCargadas = Miles(s.N());
}

void LogicaAlgebra::Soltar(const std::vector<std::string>& rutas) {
    if (rutas.size() == 1) return Cargar(Sistema[0].N() > 0 && Sistema[1].N() == 0 ? 1 : 0, rutas.front());
    for (size_t i = 0; i < std::min(rutas.size(), Sistema.size()); ++i) Cargar(i, rutas[i]);
}

void LogicaAlgebra::imgINICombinacion(size_t i) {
    if (Trabajando) return;
    Sistema[i] = {};
    Sistema[i].txtApuCargadas = "0";
}

void LogicaAlgebra::ElegirTipo(int tipo) {
    if (Trabajando) return;
    optTipo = tipo;
    txtVentanaResultados.clear();
}

void LogicaAlgebra::Detener() {
    if (Calculando) detener = true;
}

bool LogicaAlgebra::imgCalcular() {
    if (Trabajando) return false;
    if (Sistema[0].N() == 0) return Fallo(entorno, "ERROR: NO ESTA CARGADO EL SISTEMA 1");
    if (optTipo != OrdenarSistema1 && Sistema[1].N() == 0) return Fallo(entorno, "ERROR: NO ESTA CARGADO EL SISTEMA 2");
    const Mientras ocupado(Trabajando), calculando(Calculando);
    detener = false;
    txtVentanaResultados = {"Calculando ..."};
    entorno.CederTurno();
    const bool hecho = !detener && OperarConMemoria();
    txtVentanaResultados.clear();
    if (!hecho) {
        SistemaResultado.Vaciar();
        NResultado = 0;
        return detener && Fallo(entorno, "AVISO: El cálculo se ha detenido, no hay sistema resultante");
    }
    NResultado = static_cast<int32_t>(SistemaResultado.Apuestas());
    Anotar();
    return true;
}

bool LogicaAlgebra::OperarConMemoria() {
    try {
        return Operar();
    } catch (const std::bad_alloc&) {
        return Fallo(entorno,
                     "ERROR: NO SE HA PODIDO CALCULAR EL SISTEMA RESULTANTE (" + DescripcionFallo(ENOMEM) + ")");
    }
}

bool LogicaAlgebra::Operar() {
    const Tabla &s1 = Sistema[0].Apuestas, &s2 = Sistema[1].Apuestas;
    const Turno turno = [this] {
        entorno.CederTurno();
        return !detener;
    };
    switch (optTipo) {
    case OrdenarSistema1:
        return OrdenarSistema(s1, cboTipoOrdenacion == 1, SistemaResultado, turno);
    case SumaDirecta:
        return SumarDirecto(s1, s2, SistemaResultado, turno);
    case SumaSinRepetidas:
        return SumarSinRepetidas(s1, s2, SistemaResultado, turno);
    case Interseccion:
        return Intersecar(s1, s2, SistemaResultado, turno);
    default:
        return Restar(s1, s2, SistemaResultado, turno);
    }
}

void LogicaAlgebra::Anotar() {
    const int64_t sumadas = int64_t{Sistema[0].N()} + Sistema[1].N();
    const std::string cuantas = Miles(NResultado);
    auto& log = txtVentanaResultados;
    switch (optTipo) {
    case OrdenarSistema1:
        log = {"Proceso de ORDENACION (" + TextoOrdenacion(cboTipoOrdenacion) + ") terminado CORRECTAMENTE",
               "Nº Apuestas Ordenadas : " + cuantas};
        return;
    case SumaDirecta:
        log = {"Proceso de SUMA de Sistemas (directo) terminado CORRECTAMENTE",
               "Nº Apuestas Sistema Resultante : " + cuantas};
        return;
    case SumaSinRepetidas:
        log = {"Proceso de SUMA de sistemas (quitar repetidas) terminado CORRECTAMENTE",
               "Nº Apuestas Sistema Sumado : " + Miles(sumadas),
               "Nº Apuestas repetidas : " + Miles(sumadas - NResultado), "Nº Apuestas FINALES : " + cuantas};
        return;
    case Interseccion:
        log = {"Proceso de INTERSECCION de sistemas (coger comunes) terminado CORRECTAMENTE",
               "Nº Apuestas Sistema Sumado : " + Miles(sumadas), "Nº Apuestas COMUNES : " + cuantas};
        return;
    default:
        log = {"Proceso de RESTA de sistemas (sistema 1 - sistema 2) terminado CORRECTAMENTE",
               "Nº Apuestas Sistema Resultante : " + cuantas};
    }
}

bool LogicaAlgebra::imgGuardar() {
    if (Trabajando) return false;
    if (txtVentanaResultados.empty()) return Fallo(entorno, "ERROR: NO HAY NINGUN SISTEMA GENERADO PARA GUARDARLO");
    if (NResultado == 0) return Fallo(entorno, "ERROR: NO SE PUEDE GUARDAR, EL SISTEMA RESULTANTE TIENE 0 APUESTAS");
    const std::string ruta = PedirRutaSistema("singuardar.TOM", entorno);
    if (ruta.empty()) return false;
    const Mientras ocupado(Trabajando);
    std::memset(SistemaResultado.Fila(7), 0, static_cast<size_t>(NResultado));
    return GuardarSistema(ruta, Cabecera, SistemaResultado, sesion.trabajo, picVentanaEspera, entorno);
}

std::string LogicaAlgebra::Copiar() const {
    std::string tabla;
    for (std::string linea : txtVentanaResultados) {
        if (const size_t punto = linea.rfind(" : "); punto != std::string::npos) linea.replace(punto, 3, "\t");
        tabla += linea + "\n";
    }
    return tabla;
}
