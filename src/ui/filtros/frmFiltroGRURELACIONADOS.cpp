#include "frmFiltroGRURELACIONADOS.h"

#include "FilaAciertos.h"
#include "FiltroTeclas.h"
#include "PanelReparto.h"
#include "TextoQt.h"
#include "frmAciertos.h"

frmFiltroGRURELACIONADOS::frmFiltroGRURELACIONADOS(Sesion& sesion, Entorno& entorno, QWidget* padre)
    : QDialog(padre), logica{sesion, entorno} {
    marco = CrearMarcoFiltro(*this, "frmFiltroGRURELACIONADOS",
                             "Cada condición de un grupo ha de cumplirse en un subgrupo distinto, sea cual sea; han de "
                             "cumplirse todos los grupos.",
                             logica.marco);
    CrearBarra();
    CrearSubgrupos();
    auto* abajo = new QHBoxLayout;
    abajo->setSpacing(2 * Paso);
    marco.contenido->addLayout(abajo);
    CrearCondiciones(*abajo);
    PonerReparto(marco, *abajo,
                 {.k = kGRUPOSRELACIONADOS,
                  .sesion = sesion,
                  .entorno = entorno,
                  .Volcar = [this](Condiciones& c) { logica.Volcar(c); }},
                 140);
    TerminarMarco(marco, *this, logica.marco, [this] {
        if (logica.PuedeCerrar()) QDialog::reject();
    });
    logica.Abrir();
    Pintar();
}

void frmFiltroGRURELACIONADOS::CrearBarra() {
    barra = CrearBarraBloque(*marco.contenido, logica.bloque, "Ir al Grupo :",
                             {.menos = [this] { logica.cmdMENOSBloque(), Pintar(); },
                              .mas = [this] { logica.cmdMASBloque(), Pintar(); },
                              .ir = [this](const std::string& grupo) { logica.IrAGrupo(grupo), Pintar(); }});
}

void frmFiltroGRURELACIONADOS::CrearSubgrupos() {
    auto* fila = new QHBoxLayout;
    fila->setSpacing(Paso);
    marco.contenido->addLayout(fila);
    for (size_t i = 0; i < subgrupos.size(); ++i)
        subgrupos[i] = CrearPanelMarcas(*fila, logica.entorno,
                                        {.nombreTitulo = "lblTitGrupo",
                                         .nombreCelda = NombreCeldas(i),
                                         .indice = static_cast<int>(i),
                                         .ayudaInicializar = "Inicializa este subgrupo",
                                         .titulo = [this, i] { return logica.lblTitGrupo(i); },
                                         .marcas = [this, i] { return logica.lblNumero(i); },
                                         .alCambiar = [this] { Pintar(); }});
}

// Not one under each subgroup, as they belong to none.
void frmFiltroGRURELACIONADOS::CrearCondiciones(QBoxLayout& donde) {
    QGridLayout* caja = CrearCaja(donde, "ACIERTOS EN CUALQUIERA DE LOS SUBGRUPOS");
    caja->parentWidget()->setObjectName(Q("lblTitAciertos"));
    caja->setHorizontalSpacing(3 * Paso);
    for (size_t i = 0; i < txtAciertos.size(); ++i) {
        const int indice = static_cast<int>(i);
        auto* fila = new QGridLayout;
        fila->setHorizontalSpacing(Paso);
        caja->addLayout(fila, indice / 2, indice % 2);
        txtAciertos[i] = CrearFilaAciertos(*fila, 0, Q("Condición ") + QString::number(indice + 1),
                                           NombreIndexado("txtAciertos", indice),
                                           NombreIndexado("cmdModificar", indice), [this, i] { Modificar(i); });
    }
}

void frmFiltroGRURELACIONADOS::Modificar(size_t i) {
    LogicaAciertos aciertos = logica.AbrirModificar(i);
    ElegirAciertos(aciertos, Q("Condición ") + QString::number(i + 1), this);
    logica.CerrarModificar(i, aciertos);
    Pintar();
}

void frmFiltroGRURELACIONADOS::Pintar() {
    PintarMarco(marco, logica.marco);
    PintarBarraBloque(barra, logica.bloque, logica.lblNumeroGrupo());
    for (PanelMarcas& subgrupo : subgrupos) PintarPanelMarcas(subgrupo);
    for (size_t i = 0; i < txtAciertos.size(); ++i) PintarCampo(*txtAciertos[i], logica.txtAciertos[i]);
}
