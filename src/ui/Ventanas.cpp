#include "Ventanas.h"

#include "Pintores.h"
#include "frmAcercaDe.h"
#include "frmAlgebra.h"
#include "frmAnalisis.h"
#include "frmCoeficienteRentabilidad.h"
#include "frmEscrutar.h"
#include "frmEstadisticas.h"
#include "frmGarantiasTOTAL.h"
#include "frmGeneradorApuestas.h"
#include "frmGeneradorApuestasXPorcentaje.h"
#include "frmMultiEscrutinioEstadistico.h"
#include "frmMultiEscrutinioMultiFichero.h"
#include "frmSistemasPropios.h"
#include "frmVisualizar.h"

namespace {

// A modal window painted during long jobs when it shows them.
template <class Ventana, class... Argumentos>
bool Mostrar(Argumentos&&... argumentos) {
    Ventana ventana(std::forward<Argumentos>(argumentos)...);
    MostrarModal(ventana, [&ventana] {
        if constexpr (requires { ventana.Pintar(); }) ventana.Pintar();
    });
    return true;
}

// One that has closed lives on until the event loop takes it away.
QDialog* EstadisticasAbiertas(const QWidget& padre) {
    for (QDialog* ventana : padre.findChildren<QDialog*>(QStringLiteral("frmEstadisticas"), Qt::FindDirectChildrenOnly))
        if (ventana->isVisible()) return ventana;
    return nullptr;
}

// One alone: opening it again brings it to the front.
bool AbrirEstadisticas(EstadoTrabajo& trabajo, Entorno& entorno, QWidget& padre) {
    QDialog* ventana = EstadisticasAbiertas(padre);
    if (ventana == nullptr) {
        ventana = new frmEstadisticas(trabajo, entorno, &padre);
        ventana->setAttribute(Qt::WA_DeleteOnClose);
    }
    ventana->setWindowState(ventana->windowState() & ~Qt::WindowMinimized);
    ventana->show();
    ventana->raise();
    ventana->activateWindow();
    return true;
}

} // namespace

bool CerrarVentanas(const QWidget& padre) {
    QDialog* ventana = EstadisticasAbiertas(padre);
    return ventana == nullptr || ventana->close();
}

bool AbrirVentana(Orden orden, Sesion& sesion, Entorno& entorno, QWidget* padre) {
    EstadoTrabajo& trabajo = sesion.trabajo;
    switch (orden) {
    case Orden::AcercaDe:
        return Mostrar<frmAcercaDe>(padre);
    case Orden::Estadisticas:
        return AbrirEstadisticas(trabajo, entorno, *padre);
    case Orden::Analisis:
        return Mostrar<frmAnalisis>(sesion, entorno, trabajo.Contador.Reducidas, padre);
    case Orden::Garantias:
        return Mostrar<frmGarantiasTOTAL>(sesion, entorno, padre);
    case Orden::EscrutinioApuestas:
        return Mostrar<frmEscrutar>(sesion, entorno, padre);
    case Orden::MultiEscrutinioEstadistico:
        return Mostrar<frmMultiEscrutinioEstadistico>(sesion, entorno, padre);
    case Orden::MultiEscrutinioMultiFichero:
        return Mostrar<frmMultiEscrutinioMultiFichero>(sesion, entorno, padre);
    case Orden::Algebra:
        return Mostrar<frmAlgebra>(sesion, entorno, padre);
    case Orden::CoeficienteRentabilidad:
        return Mostrar<frmCoeficienteRentabilidad>(sesion, entorno, padre);
    case Orden::SistemasPropios:
        return Mostrar<frmSistemasPropios>(trabajo, entorno, padre);
    case Orden::GeneradorAleatoriasXNumero:
        return Mostrar<frmGeneradorApuestas>(trabajo, entorno, padre);
    case Orden::GeneradorAleatoriasXPorcentaje:
        return Mostrar<frmGeneradorApuestasXPorcentaje>(trabajo, entorno, padre);
    case Orden::VisualizarArchivo:
        return Mostrar<frmVisualizar>(trabajo, entorno, padre);
    default:
        return false;
    }
}
