#include "CalcularSistema.h"

#include <exception>
#include <new>

#include "AsignarReintegros.h"
#include "Bloqueo.h"
#include "Boleto.h"
#include "Condicionar.h"
#include "GenerarApuestas.h"
#include "GuardarCombinacion.h"
#include "LogicaVentanaProceso.h"
#include "Sesiones.h"
#include "Supervivientes.h"
#include "TablaFiltros.h"
#include "modGeneral.h"

namespace {

constexpr const char* AvisoSorteosAnteriores =
    "Está activado el filtro 'SORTEOS ANTERIORES'. Este filtro puede retardar considerablemente el proceso de cálculo "
    "en caso de tratar muchas apuestas en muchos sorteos. Se puede consultar una tabla de tiempos aproximados en la "
    "información de la condición. ¿ Desea continuar ?";

// Clears the calculating flag, the progress text and the wish to save on every way out.
class EnCalculo {
  public:
    explicit EnCalculo(EstadoTrabajo& trabajo) : trabajo_(trabajo) { trabajo_.EstadoCalculando = true; }
    ~EnCalculo() {
        trabajo_.EstadoCalculando = false;
        trabajo_.Contador.Progreso.clear();
    }
    EnCalculo(const EnCalculo&) = delete;
    EnCalculo& operator=(const EnCalculo&) = delete;

  private:
    EstadoTrabajo& trabajo_;
};

bool PuedeCalcular(Sesion& sesion, Entorno& entorno) {
    EstadoTrabajo& trabajo = sesion.trabajo;
    if (ContarBase(trabajo) < 6) return Fallo(entorno, "AVISO: DEBE SELECCIONAR MINIMO 6 NUMEROS");
    if (!ValidarReintegros(trabajo, entorno)) return false;
    return !sesion.condiciones.lstFiltros[kSORTEOSANTERIORES].Activo || entorno.Preguntar(AvisoSorteosAnteriores);
}

// Conditions that the game's ticket does not have are switched off, and stay so.
void ApagarNoDisponibles(Sesion& sesion) {
    for (int k = 0; k < NFiltros; ++k)
        if (!DisponibleEnJuego(k, sesion.trabajo)) sesion.condiciones.lstFiltros[static_cast<size_t>(k)].Activo = false;
}

void PrepararTabla(EstadoTrabajo& trabajo, Entorno& entorno) {
    if (trabajo.cboTipoCombinacion == PronosticoDesdeArchivo) {
        TraducirImportadas(trabajo, trabajo, 7);
    } else {
        GenerarApuestas(trabajo, entorno, 6, 6);
    }
    trabajo.ApuestasEnTabla = static_cast<int32_t>(trabajo.TablaApuestas.Apuestas());
    PrepararEliminadas(trabajo);
}

bool Acondicionar(Sesion& sesion, Entorno& entorno) {
    EstadoTrabajo& trabajo = sesion.trabajo;
    const bool importada = trabajo.cboTipoCombinacion == PronosticoDesdeArchivo;
    if (importada && Recortar(trabajo.txtFicheroASCII).empty())
        return Fallo(entorno, "ERROR: NO HAY NINGUN FICHERO ASCII CARGADO");
    {
        const Bloqueo bloqueo(trabajo);
        entorno.CederTurno();
        PrepararTabla(trabajo, entorno);
        const int32_t eliminadas = Condicionar(sesion, entorno);
        trabajo.SinEliminadas = !importada && eliminadas == 0; // an imported system is never the whole of anything
        trabajo.Contador.Condicionadas = trabajo.ApuestasEnTabla - eliminadas;
        ReiniciarEliminados(sesion);
    }
    if (trabajo.Contador.Condicionadas == 0)
        return Fallo(entorno, "ERROR: Se han generado 0 apuestas después de condicionar, cambie las condiciones");
    CopiarSupervivientes(trabajo);
    return true;
}

bool PideReduccion(const Sesion& sesion) {
    const AjustesReduccion& r = sesion.trabajo.Reduccion;
    return sesion.condiciones.lstFiltros[FilaReduccion].Activo &&
           (r.ActivarNumeroApuestas == 1 || r.TipoReduccion > 0 || r.PorcentajeReduccion != 100);
}

bool Calcular(Sesion& sesion, Entorno& entorno) {
    EstadoTrabajo& trabajo = sesion.trabajo;
    ApagarNoDisponibles(sesion);
    trabajo.CombinacionGuardada = false;
    trabajo.Contador.Reducidas = 0;
    LeerBase(trabajo);
    if (!Acondicionar(sesion, entorno)) return false;
    if (PideReduccion(sesion)) {
        if (trabajo.Reduccion.ApuestasExactas == 1 &&
            trabajo.Reduccion.NApuestasExactas > trabajo.Contador.Condicionadas)
            return Fallo(entorno,
                         "ERROR: Ha elegido reducir con la opción 'Número Exacto de Apuestas' y dicho número "
                         "supera el sistema final condicionado, cambie el número de apuestas pedidas al reducir");
        LogicaVentanaProceso ventana(sesion, entorno);
        entorno.MostrarVentanaProceso(ventana);
        trabajo.ApuestaEliminada.Vaciar();
    } else {
        TraducirCondicionadas(trabajo);
        trabajo.Contador.Reducidas = trabajo.Contador.Condicionadas;
    }
    if (trabajo.JuegoActual().TieneDigito()) AsignarReintegros(trabajo);
    if (trabajo.chkGuardarAutomaticamente) GuardarCombinacion(sesion, entorno);
    return trabajo.Contador.Reducidas > 0;
}

} // namespace

bool CalcularSistema(Sesion& sesion, Entorno& entorno) {
    if (!PuedeCalcular(sesion, entorno)) return false;
    bool hecho = false;
    try {
        const EnCalculo enCalculo(sesion.trabajo);
        hecho = Calcular(sesion, entorno);
    } catch (const std::bad_alloc&) {
        Fallo(entorno, "ERROR: no hay memoria suficiente");
    } catch (const std::exception& error) {
        Fallo(entorno, std::string("ERROR: ") + error.what());
    }
    sesion.trabajo.chkGuardarAutomaticamente = false;
    return hecho;
}
