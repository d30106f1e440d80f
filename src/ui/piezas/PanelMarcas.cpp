#include "PanelMarcas.h"

#include <QAction>
#include <QApplication>
#include <QClipboard>
#include <QPushButton>

#include "CopiarTabla.h"
#include "MarcoFiltro.h"
#include "TextoQt.h"

namespace {

QAction* CrearAccion(QWidget& papel, const QString& texto, QKeySequence::StandardKey tecla) {
    auto* accion = new QAction(texto, &papel);
    accion->setShortcut(tecla);
    accion->setShortcutContext(Qt::WidgetWithChildrenShortcut);
    papel.addAction(accion);
    return accion;
}

void CrearPortapapeles(QWidget& papel, Entorno& entorno, const PeticionPanelMarcas& p) {
    papel.setContextMenuPolicy(Qt::ActionsContextMenu);
    QAction* copiar = CrearAccion(papel, Q("Copiar números"), QKeySequence::Copy);
    QAction* pegar = CrearAccion(papel, Q("Pegar números"), QKeySequence::Paste);
    QObject::connect(copiar, &QAction::triggered, &papel, [marcas = p.marcas] { AlPortapapeles(marcas().Copiar()); });
    QObject::connect(pegar, &QAction::triggered, &papel, [&entorno, marcas = p.marcas, alCambiar = p.alCambiar] {
        marcas().Pegar(entorno, Utf8(QApplication::clipboard()->text()));
        alCambiar();
    });
}

} // namespace

std::string NombreCeldas(size_t panel) {
    return panel == 0 ? "lblNumero" : "lblNumero_G" + std::to_string(panel + 1);
}

PanelMarcas CrearPanelMarcas(QBoxLayout& donde, Entorno& entorno, PeticionPanelMarcas p) {
    PanelMarcas panel;
    panel.textoTitulo = p.titulo;
    panel.marcas = p.marcas;
    panel.caja = new QFrame;
    panel.contenido = new QVBoxLayout(panel.caja);
    panel.contenido->setContentsMargins(0, 0, 0, 0);
    panel.contenido->setSpacing(Paso);

    auto* cabeza = new QHBoxLayout;
    panel.titulo = new QLabel;
    panel.titulo->setObjectName(NombreIndexado(p.nombreTitulo, p.indice));
    QFont letra = panel.titulo->font();
    letra.setBold(true);
    panel.titulo->setFont(letra);
    cabeza->addWidget(panel.titulo, 1);
    cabeza->addWidget(CrearBoton(Utf8(NombreIndexado("imgININumeros", p.indice)), "Borrar", p.ayudaInicializar,
                                 [marcas = p.marcas, alCambiar = p.alCambiar] {
                                     marcas().imgININumeros();
                                     alCambiar();
                                 }));
    panel.contenido->addLayout(cabeza);

    panel.rejilla = CrearRejillaNumeros(panel.caja, p.nombreCelda,
                                        {.numero =
                                             [marcas = p.marcas, alCambiar = p.alCambiar](int n) {
                                                 marcas().Pulsar(n);
                                                 alCambiar();
                                             },
                                         .fila = {},
                                         .columna = {}});
    panel.contenido->addWidget(panel.rejilla.papel);
    CrearPortapapeles(*panel.rejilla.papel, entorno, p);
    donde.addWidget(panel.caja, 1);
    PintarPanelMarcas(panel);
    // Room for the numbers of later pages.
    panel.titulo->setMinimumWidth(panel.titulo->sizeHint().width() +
                                  panel.titulo->fontMetrics().horizontalAdvance(Q("00")));
    return panel;
}

void PintarPanelMarcas(PanelMarcas& panel) {
    const MarcasDeRejilla marcas = panel.marcas();
    panel.titulo->setText(Q(panel.textoTitulo()));
    std::array<bool, NumeroMaximoBoleto + 1> marcados{};
    for (size_t n = 1; n < marcados.size(); ++n) marcados[n] = marcas.marcas[n] == 1;
    PintarRejillaNumeros(panel.rejilla, marcados, marcas.NumeroMaximo(), true);
}
