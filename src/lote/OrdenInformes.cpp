// resumen, eliminadas, analisis: the text reports of a base file, printed and written.
#include "Argumentos.h"
#include "CalcularSistema.h"
#include "InformeEliminadas.h"
#include "InformeResumen.h"
#include "Informes.h"
#include "LogicaAnalisis.h"
#include "Ordenes.h"
#include "Reduccion.h"
#include "modXML.h"

namespace {

struct ArgumentosInforme {
    std::string Base;
    bool Porcentajes = false;
};

bool Calcular(Lote& lote, const std::string& base) {
    PrepararReduccion(lote);
    return AbrirFicheroBase(base, lote.sesion, lote.entorno) && CalcularSistema(lote.sesion, lote.entorno);
}

bool Resumen(Lote& lote, const ArgumentosInforme& argumentos) {
    if (!AbrirFicheroBase(argumentos.Base, lote.sesion, lote.entorno)) return false;
    lote.salida.Escribir(TextoResumen(lote.sesion, lote.entorno));
    return VerResumenFiltros(lote.sesion, lote.entorno);
}

bool Eliminadas(Lote& lote, const ArgumentosInforme& argumentos) {
    if (!Calcular(lote, argumentos.Base)) return false;
    lote.salida.Escribir(TextoApuestasEliminadas(lote.sesion, lote.entorno));
    return VerApuestasEliminadas(lote.sesion, lote.entorno);
}

// The window tells no failure to write; here the exit status would be a false one without it.
bool Analisis(Lote& lote, const ArgumentosInforme& argumentos) {
    if (!Calcular(lote, argumentos.Base)) return false;
    LogicaAnalisis analisis(lote.sesion, lote.entorno);
    analisis.publicApuestasAnalizar = lote.sesion.trabajo.Contador.Reducidas;
    analisis.Abrir();
    if (argumentos.Porcentajes) analisis.Cambiar();
    lote.salida.Escribir(analisis.TextoInforme());
    std::string fallo;
    return analisis.Escribir(fallo) || FalloAlGenerarInforme(lote.entorno, fallo);
}

using OrdenInforme = bool (*)(Lote&, const ArgumentosInforme&);

CLI::App* Declarar(CLI::App& programa, Lote& lote, const std::string& nombre, const std::string& descripcion,
                   const std::shared_ptr<ArgumentosInforme>& argumentos, OrdenInforme informe) {
    CLI::App* orden = NuevaOrden(programa, lote, nombre, descripcion,
                                 [argumentos, informe](Lote& l) { return informe(l, *argumentos); });
    Fichero(orden, "BASE.xml", argumentos->Base, "Fichero base que se abre");
    return orden;
}

} // namespace

void DeclararResumen(CLI::App& programa, Lote& lote) {
    Declarar(programa, lote, "resumen", "Escribe el resumen de una base y de sus condiciones",
             std::make_shared<ArgumentosInforme>(), Resumen);
}

void DeclararEliminadas(CLI::App& programa, Lote& lote) {
    Declarar(programa, lote, "eliminadas", "Calcula y escribe las apuestas que elimina cada condición",
             std::make_shared<ArgumentosInforme>(), Eliminadas);
}

void DeclararAnalisis(CLI::App& programa, Lote& lote) {
    const auto argumentos = std::make_shared<ArgumentosInforme>();
    CLI::App* orden = Declarar(programa, lote, "analisis", "Calcula y escribe en cuántas apuestas está cada número",
                               argumentos, Analisis);
    Bandera(orden, "--porcentajes", argumentos->Porcentajes, "En porcentajes, no en número de apuestas");
}
