#include "frmFiltroPOSICIONES.h"

#include "PanelReparto.h"

frmFiltroPOSICIONES::frmFiltroPOSICIONES(Sesion& sesion, Entorno& entorno, QWidget* padre)
    : QDialog(padre), logica{sesion, entorno} {
    marco =
        CrearMarcoFiltro(*this, "frmFiltroPOSICIONES",
                         "Qué números pueden ir en cada posición de la apuesta, ordenada de menor a mayor; una bola "
                         "sin números admite cualquiera.",
                         logica.marco);
    auto* fila = new QHBoxLayout;
    fila->setSpacing(Paso);
    marco.contenido->addLayout(fila);
    for (size_t i = 0; i < bolas.size(); ++i)
        bolas[i] = CrearPanelMarcas(*fila, entorno,
                                    {.nombreTitulo = "lblTitBola",
                                     .nombreCelda = NombreCeldas(i),
                                     .indice = static_cast<int>(i),
                                     .ayudaInicializar = "Inicializa esta bola",
                                     .titulo = [this, i] { return logica.lblTitBola(i); },
                                     .marcas = [this, i] { return logica.lblNumero(i); },
                                     .alCambiar = [this] { Pintar(); }});
    PonerReparto(marco, *marco.contenido,
                 {.k = kPOSICIONES,
                  .sesion = sesion,
                  .entorno = entorno,
                  .Apaisado = true,
                  .AlPulsar = [this](size_t bola, int32_t numero) { logica.lblNumero(bola).Pulsar(numero), Pintar(); }},
                 160);
    TerminarMarco(marco, *this, logica.marco);
    Pintar();
}

void frmFiltroPOSICIONES::Pintar() {
    PintarMarco(marco, logica.marco);
    for (PanelMarcas& bola : bolas) PintarPanelMarcas(bola);
}
