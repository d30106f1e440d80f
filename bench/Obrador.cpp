#include "Obrador.h"

#include <fstream>
#include <stdexcept>

#include <fmt/format.h>

#include "AlVuelo.h"
#include "Boleto.h"
#include "CalcularSistema.h"
#include "ComandosFichero.h"
#include "CondicionesEjemplo.h"
#include "GuardarCombinacion.h"
#include "ImportarCombinacion.h"
#include "LogicaAlgebra.h"
#include "LogicaAnalisis.h"
#include "LogicaCoeficienteRentabilidad.h"
#include "LogicaEscrutar.h"
#include "LogicaEstadisticas.h"
#include "LogicaGarantias.h"
#include "LogicaGeneradorApuestas.h"
#include "LogicaGeneradorApuestasXPorcentaje.h"
#include "LogicaMultiEscrutinioEstadistico.h"
#include "LogicaSistemasPropios.h"
#include "LogicaVentanaProceso.h"
#include "Rnd.h"
#include "Sesiones.h"
#include "modCSN.h"

Obrador::Obrador(std::string carpeta) : carpeta_(std::move(carpeta)) {
    entorno.Preguntar = [](const std::string&) { return true; };
    entorno.PedirAbrir = entorno.PedirGuardar = [this](const PeticionFichero&) { return elegido_; };
    entorno.Mensaje = [](Icono icono, const std::string& texto) {
        if (icono == Icono::Critico) throw std::runtime_error(texto);
    };
    entorno.CarpetaInformes = carpeta_;
    entorno.Ahora = AhoraDelSistema;
    IniciarSesion(sesion, entorno);
}

std::string Obrador::Fichero(const std::string& nombre) {
    return elegido_ = carpeta_ + "/" + nombre;
}

void Obrador::MarcarTodo() {
    sesion.trabajo.lblNumero.fill(true);
    sesion.trabajo.lblReintegro[3] = true;
    ActualizarContadores(sesion.trabajo);
}

bool Obrador::Calcular(int32_t esperadas) {
    return CalcularSistema(sesion, entorno) && sesion.trabajo.Contador.Reducidas == esperadas;
}

void Obrador::Nuevo() {
    sesion.trabajo.cboTipoCombinacion = PronosticoManual;
    ReiniciarSesion(sesion, entorno);
}

namespace {

constexpr int32_t N = ApuestasMaximas;

void ActivarCinco(Obrador& o) {
    ElegirCondicionesEjemplo(o.sesion.condiciones);
    for (const int k : {kALTOSBAJOS, kPARESIMPARES, kSUMAS, kSEGUIDOS, kTERMINACIONES})
        o.sesion.condiciones.lstFiltros[static_cast<size_t>(k)].Activo = true;
}

bool CincoCondiciones(Obrador& o) {
    o.MarcarTodo();
    ActivarCinco(o);
    const bool hecho = CalcularSistema(o.sesion, o.entorno);
    LogicaAnalisis analisis(o.sesion, o.entorno);
    analisis.publicApuestasAnalizar = o.sesion.trabajo.Contador.Reducidas;
    analisis.Abrir();
    return hecho && analisis.Numeros[49] > 0;
}

bool AlVuelo(Obrador& o) {
    o.MarcarTodo();
    ActivarCinco(o);
    const auto aparte = ApartarBase(o.sesion);
    ExpandirBase(*aparte, o.entorno);
    CuentaAlVuelo cuenta = ContarAlVuelo(*aparte, o.entorno);
    CostearInactivas(*aparte, o.entorno, cuenta);
    return cuenta.Pasan > 0 && RepartirFiltro(kSUMAS, *aparte, o.entorno).Apartados.size() == 1;
}

// One cycle and, if so, some seconds of the search for a smaller system.
bool Reducir(Obrador& o, int16_t tipo, double mejora = 0) {
    o.MarcarTodo();
    o.sesion.trabajo.Reduccion.TipoReduccion = tipo;
    o.sesion.condiciones.lstFiltros[FilaReduccion].Activo = true;
    o.entorno.MostrarVentanaProceso = [mejora](LogicaVentanaProceso& ventana) {
        ventana.TopeCiclos = 1;
        ventana.Activar();
        ventana.TopeCiclos = 0;
        ventana.finesMejora.Segundos = mejora;
        if (mejora > 0) ventana.Mejorar();
    };
    return CalcularSistema(o.sesion, o.entorno) && o.sesion.trabajo.Contador.Reducidas < N;
}

bool Garantias(Obrador& o) {
    if (!Reducir(o, 3)) return false;
    LogicaGarantias garantias(o.sesion, o.entorno);
    for (const int aciertos : {TodasLasGarantias, SeisAciertos}) {
        garantias.CambiarAciertos(aciertos);
        if (!garantias.Calcular()) return false;
    }
    const auto& casos = garantias.resultados.tabla.CasosClase;
    return casos[0] + casos[1] + casos[2] == 0 && garantias.GarantiasExtendidas();
}

bool Guardar(Obrador& o) {
    o.MarcarTodo();
    o.Fichero("boleto.TOM");
    return o.Calcular(N) && GuardarCombinacion(o.sesion, o.entorno);
}

bool Importar(Obrador& o, const std::string& ruta) {
    return ImportarFichero(ruta, o.sesion, o.entorno) && o.Calcular(N);
}

bool ImportarTom(Obrador& o) {
    return Importar(o, o.Fichero("boleto.TOM")) && VerApuestas(o.sesion, o.entorno);
}

// What the operation before wrote for an editor.
bool ImportarTexto(Obrador& o) {
    o.sesion.trabajo.chkReintegros = false;
    const bool bien = Importar(o, o.Fichero("TOMBOLERA_TEMP.txt"));
    o.sesion.trabajo.chkReintegros = true;
    return bien;
}

Sorteos Historia(size_t cuantos) {
    Azar azar;
    azar.Sembrar(1);
    Sorteos sorteos(cuantos);
    for (size_t i = 0; i < cuantos; ++i) {
        CSNaCombinacion(1 + azar.Entero(N), 6, 49, sorteos[i].numeros.data());
        sorteos[i].anio = static_cast<int16_t>(1985 + i / 300);
        sorteos[i].sorteo = static_cast<uint16_t>(i % 300 + 1);
        sorteos[i].dia = 1;
    }
    return sorteos;
}

bool UnSorteo(Obrador& o) {
    LogicaEscrutar escrutar(o.sesion, o.entorno);
    for (const int n : {4, 11, 23, 30, 38, 47}) escrutar.PulsarNumero(n);
    if (!escrutar.CargarFichero(o.Fichero("boleto.TOM"))) return false;
    return escrutar.txtCalculadoraPremios[0] == "1" && escrutar.imgVerBoletosPremiados();
}

bool MuchosSorteos(Obrador& o) {
    LogicaMultiEscrutinioEstadistico multi(o.sesion, o.entorno);
    multi.SorteosCargados = Historia(300);
    multi.Premios.assign(multi.SorteosCargados.size(), {1e8, 1e6, 1e5, 1e4, 800});
    return multi.CargarApuestas(o.Fichero("boleto.TOM")) && multi.cmdEscrutar() && multi.Ganado.size() == 300;
}

bool Estadisticas(Obrador& o) {
    const std::string ruta = o.Fichero("sorteos.txt");
    std::ofstream fichero(ruta, std::ios::binary);
    fichero << "\r\n";
    for (const Sorteo& s : Historia(100000))
        fichero << fmt::format("{:02},01,0 {} {} L\r\n", fmt::join(s.numeros.begin(), s.numeros.begin() + 6, ","),
                               s.anio, s.sorteo);
    fichero.close();
    LogicaEstadisticas estadisticas(o.sesion.trabajo, o.entorno);
    estadisticas.txtTemporadaHASTA = "32767";
    if (!estadisticas.CargarFicheroSorteos(ruta)) return false;
    for (int tipo = 0; tipo < NEstadisticas; ++tipo) {
        estadisticas.ElegirEstadistica(tipo);
        if (!estadisticas.cmdConsultar()) return false;
    }
    return estadisticas.lblSorteosConsultados == "100000";
}

bool Algebra(Obrador& o) {
    LogicaAlgebra algebra{o.sesion, o.entorno};
    for (const size_t i : {size_t{0}, size_t{1}}) algebra.Cargar(i, o.Fichero("boleto.TOM"));
    for (const int tipo : {OrdenarSistema1, SumaDirecta, SumaSinRepetidas, Resta, Interseccion}) {
        algebra.ElegirTipo(tipo);
        const int32_t esperadas = tipo == Resta ? 0 : tipo == SumaDirecta ? 2 * N : N;
        if (!algebra.imgCalcular() || algebra.NResultado != esperadas) return false;
    }
    o.Fichero("resultado.TOM");
    return algebra.imgGuardar();
}

bool Rentabilidad(Obrador& o) {
    LogicaCoeficienteRentabilidad utilidad{o.sesion, o.entorno};
    utilidad.Abrir();
    if (!utilidad.Cargar(o.Fichero("boleto.TOM")) || !utilidad.imgCalcular()) return false;
    utilidad.Elegidos.fill(true);
    o.Fichero("resultado.TOM");
    return utilidad.imgGrabarApuestasCR();
}

bool SistemaPropio(Obrador& o) {
    LogicaSistemasPropios propios(o.sesion.trabajo, o.entorno);
    if (!propios.Cargar(o.Fichero("boleto.TOM"))) return false;
    for (int n = 1; n <= 49; ++n) propios.PulsarDestino(n);
    o.Fichero("resultado.TOM");
    return propios.imgCalculoDefinitivo();
}

bool Generar(Obrador& o) {
    o.Fichero("resultado.TOM");
    LogicaGeneradorApuestas porNumeros(o.sesion.trabajo, o.entorno);
    porNumeros.lblNumero.fill(true);
    porNumeros.txtApuestas = std::to_string(N);
    LogicaGeneradorApuestasXPorcentaje porPorcentajes(o.sesion.trabajo, o.entorno);
    std::fill_n(porPorcentajes.cboPorcentaje.begin() + 1, 20, 12);
    porPorcentajes.txtApuestas = porNumeros.txtApuestas;
    return porNumeros.cmdGenerar() && porPorcentajes.cmdGenerar();
}

} // namespace

const std::vector<OperacionEntera>& OperacionesEnteras() {
    static const std::vector<OperacionEntera> operaciones{
        {"five conditions, and the analysis", CincoCondiciones},
        {"counts on the fly, the spread of the sums", AlVuelo},
        {"reduction al 5, one cycle", [](Obrador& o) { return Reducir(o, 1); }},
        {"reduction al 4, one cycle", [](Obrador& o) { return Reducir(o, 2); }},
        {"reduction al 2, one cycle", [](Obrador& o) { return Reducir(o, 4); }},
        {"reduction al 3, 5 s of search", [](Obrador& o) { return Reducir(o, 3, 5); }},
        {"guarantees, all of them and the extended", Garantias},
        {"saving", Guardar},
        {"import of a bet file, and its text", ImportarTom},
        {"import of a text file", ImportarTexto},
        {"scrutiny of one draw, and its report", UnSorteo},
        {"scrutiny of 300 draws", MuchosSorteos},
        {"statistics of 100,000 draws", Estadisticas},
        {"algebra, its five operations, and saving", Algebra},
        {"profitability, and saving", Rentabilidad},
        {"own system", SistemaPropio},
        {"both generators", Generar},
    };
    return operaciones;
}
