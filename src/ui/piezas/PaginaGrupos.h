// The page of three groups that GRUPOS and GRUPOSENTRELIMITES share: pager, grids and hit tables.
#pragma once

#include <QDialog>
#include <QLineEdit>

#include <array>
#include <functional>

#include "BarraBloque.h"
#include "FilaAciertos.h"
#include "FiltroTeclas.h"
#include "MarcoFiltro.h"
#include "PanelMarcas.h"
#include "TextoQt.h"
#include "frmAciertos.h"

/// `Logica` has the page's fields and operations under the names of the controls.
template <class Logica>
class PaginaGrupos {
  public:
    PaginaGrupos(Logica& logica, std::function<void()> pintar) : logica_(logica), pintar_(std::move(pintar)) {}

    /// `debajo(i, caja)` adds the dialog's own widgets between the grid and the hits of panel i.
    void Crear(QDialog& dialogo, QBoxLayout& donde, const std::function<void(size_t, QBoxLayout&)>& debajo) {
        barra_ = CrearBarraBloque(donde, logica_.bloque, "Ir Grupo : ",
                                  {.menos = [this] { logica_.cmdMENOSBloque(), pintar_(); },
                                   .mas = [this] { logica_.cmdMASBloque(), pintar_(); },
                                   .ir = [this](const std::string& grupo) { logica_.IrAGrupo(grupo), pintar_(); }});
        auto* fila = new QHBoxLayout;
        fila->setSpacing(2 * Paso);
        donde.addLayout(fila);
        for (size_t i = 0; i < Logica::Paneles; ++i) {
            CrearPanel(*fila, i);
            debajo(i, *paneles_[i].contenido);
            CrearAciertos(dialogo, i);
        }
    }

    void Pintar() {
        PintarBarraBloque(barra_, logica_.bloque,
                          "GRUPOS " + std::to_string(logica_.bloque.Grupo(0) + 1) + " A " +
                              std::to_string(logica_.bloque.Grupo(Logica::Paneles)));
        for (PanelMarcas& panel : paneles_) PintarPanelMarcas(panel);
        for (size_t i = 0; i < Logica::Paneles; ++i) PintarCampo(*txtAciertos_[i], logica_.txtAciertos[i]);
    }

  private:
    void CrearPanel(QBoxLayout& donde, size_t i) {
        paneles_[i] = CrearPanelMarcas(donde, logica_.entorno,
                                       {.nombreTitulo = "lblTitGrupo",
                                        .nombreCelda = NombreCeldas(i),
                                        .indice = static_cast<int>(i),
                                        .ayudaInicializar = "Inicializa este grupo",
                                        .titulo = [this, i] { return logica_.lblTitGrupo(i); },
                                        .marcas = [this, i] { return logica_.lblNumero(i); },
                                        .alCambiar = pintar_});
    }

    void CrearAciertos(QDialog& dialogo, size_t i) {
        const int indice = static_cast<int>(i);
        auto* rejilla = new QGridLayout;
        paneles_[i].contenido->addLayout(rejilla);
        txtAciertos_[i] = CrearFilaAciertos(*rejilla, 0, Q("Aciertos"), NombreIndexado("txtAciertos", indice),
                                            NombreIndexado("cmdModificar", indice), [this, &dialogo, i] {
                                                LogicaAciertos aciertos = logica_.AbrirModificar(i);
                                                ElegirAciertos(aciertos, Q(logica_.lblTitGrupo(i)), &dialogo);
                                                logica_.CerrarModificar(i, aciertos);
                                                pintar_();
                                            });
    }

    Logica& logica_;
    std::function<void()> pintar_;
    BarraBloque barra_;
    std::array<PanelMarcas, Logica::Paneles> paneles_{};
    std::array<QLineEdit*, Logica::Paneles> txtAciertos_{};
};
