#include "frmFiltroGRUPOSENTRELIMITES.h"

#include "Lista.h"
#include "PanelReparto.h"
#include "TextoQt.h"

frmFiltroGRUPOSENTRELIMITES::frmFiltroGRUPOSENTRELIMITES(Sesion& sesion, Entorno& entorno, QWidget* padre)
    : QDialog(padre), logica{sesion, entorno} {
    marco = CrearMarcoFiltro(*this, "frmFiltroGRUPOSENTRELIMITES",
                             "Cuántos números de cada grupo puede llevar la apuesta, y entre qué límites puede estar "
                             "el número de grupos que se cumplen.",
                             logica.marco);
    pagina.Crear(*this, *marco.contenido, [](size_t, QBoxLayout&) {});
    CrearLimites();
    PonerReparto(marco, *marco.centro,
                 {.k = kGRUPOSENTRELIMITES, .sesion = sesion, .entorno = entorno, .Volcar = [this](Condiciones& c) {
                      logica.Volcar(c);
                  }});
    TerminarMarco(marco, *this, logica.marco);
    logica.Abrir();
    Pintar();
}

void frmFiltroGRUPOSENTRELIMITES::CrearLimites() {
    using L = LogicaFiltroGRUPOSENTRELIMITES;
    QGridLayout* rejilla = CrearCaja(*marco.contenido, "LIMITES DE GRUPOS ACERTADOS");
    cboIntervalo1 = CrearLimite("cboIntervalo1", "Grupos acertados, mínimo", &L::ElegirIntervalo1);
    cboIntervalo2 = CrearLimite("cboIntervalo2", "Grupos acertados, máximo", &L::ElegirIntervalo2);
    rejilla->addWidget(new QLabel(Q("Mínimo")), 0, 0);
    rejilla->addWidget(cboIntervalo1, 0, 1);
    rejilla->addWidget(new QLabel(Q("Máximo")), 0, 2);
    rejilla->addWidget(cboIntervalo2, 0, 3);
    rejilla->setColumnStretch(4, 1);
}

QComboBox* frmFiltroGRUPOSENTRELIMITES::CrearLimite(std::string_view nombre, std::string_view ayuda, Elegir elegir) {
    QComboBox* lista = CrearLista(nombre, ayuda, Enteros(0, RegistroGRUPOSENTRELIMITES::Grupos));
    connect(lista, &QComboBox::currentIndexChanged, this, [this, elegir](int item) {
        (logica.*elegir)(item);
        Pintar();
    });
    return lista;
}

void frmFiltroGRUPOSENTRELIMITES::reject() {
    if (logica.PuedeCerrar()) QDialog::reject();
}

void frmFiltroGRUPOSENTRELIMITES::Pintar() {
    PintarMarco(marco, logica.marco);
    pagina.Pintar();
    for (const auto& [lista, item] :
         {std::pair{cboIntervalo1, logica.cboIntervalo1}, {cboIntervalo2, logica.cboIntervalo2}}) {
        const QSignalBlocker callada(lista);
        lista->setCurrentIndex(item);
    }
}
