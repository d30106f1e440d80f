#include "BarraOrdenes.h"

#include <QMenuBar>
#include <QShortcut>
#include <QToolBar>

#include "TextoQt.h"
#include "tema.h"

namespace {

void CrearMenus(QMainWindow* ventana, BarraOrdenes& barra, const std::function<void(Orden)>& hacer) {
    for (const auto nombre : NombresMenus) {
        QMenu* menu = ventana->menuBar()->addMenu(Q(nombre));
        menu->setToolTipsVisible(true);
        for (const EntradaMenu& entrada : EntradasMenu) {
            if (entrada.Menu != nombre) continue;
            if (entrada.orden == Orden::Salir) menu->addSeparator();
            QAction* accion = menu->addAction(Q(entrada.Texto));
            accion->setObjectName(Q(entrada.nombre));
            accion->setShortcut(QKeySequence(Q(entrada.Atajo)));
            QObject::connect(accion, &QAction::triggered, ventana, [hacer, orden = entrada.orden] { hacer(orden); });
            barra.menus.push_back(accion);
        }
    }
}

QToolButton* CrearBoton(QMainWindow* ventana, size_t indice, const std::function<void(Orden)>& hacer) {
    const EntradaBarra& entrada = lblMenu[indice];
    auto* boton = new QToolButton(ventana);
    boton->setObjectName(NombreIndexado("lblMenu", static_cast<int>(indice)));
    boton->setText(Q(entrada.Texto));
    boton->setAccessibleName(Q(entrada.Texto));
    boton->setToolButtonStyle(Qt::ToolButtonTextBesideIcon);
    boton->setIconSize(QSize(24, 24));
    boton->setAutoRaise(true);
    boton->setFocusPolicy(Qt::TabFocus);
    QString consejo = Q(entrada.Consejo);
    if (!entrada.Atajo.empty()) consejo += Q(" (") + Q(entrada.Atajo) + Q(")");
    boton->setToolTip(consejo);
    QObject::connect(boton, &QToolButton::clicked, ventana, [hacer, orden = entrada.orden] { hacer(orden); });
    if (!entrada.Atajo.empty()) {
        // The button's own shortcut would wait to show it pressed.
        auto* atajo = new QShortcut(QKeySequence(Q(entrada.Atajo)), ventana);
        QObject::connect(atajo, &QShortcut::activated, boton, [boton] { boton->click(); });
    }
    return boton;
}

} // namespace

BarraOrdenes CrearBarraOrdenes(QMainWindow* ventana, std::function<void(Orden)> hacer) {
    BarraOrdenes barra;
    CrearMenus(ventana, barra, hacer);
    QToolBar* caja = ventana->addToolBar(Q("Órdenes"));
    caja->setObjectName(Q("barraOrdenes"));
    caja->setMovable(false);
    caja->toggleViewAction()->setEnabled(false);
    caja->setContextMenuPolicy(Qt::PreventContextMenu);
    for (size_t i = 0; i < barra.botones.size(); ++i) {
        if (lblMenu[i].orden == Orden::ValidarOnLine) caja->addSeparator();
        if (lblMenu[i].orden == Orden::CalculoPrueba) {
            auto* hueco = new QWidget(caja);
            hueco->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Preferred);
            caja->addWidget(hueco);
        }
        barra.botones[i] = CrearBoton(ventana, i, hacer);
        caja->addWidget(barra.botones[i]);
    }
    ColorearBarraOrdenes(barra, ventana->palette());
    return barra;
}

void PintarBarraOrdenes(const BarraOrdenes& barra, bool habilitada) {
    for (QAction* accion : barra.menus) accion->setEnabled(habilitada);
    for (QToolButton* boton : barra.botones) boton->setEnabled(habilitada);
}

void ColorearBarraOrdenes(const BarraOrdenes& barra, const QPalette& paleta) {
    for (size_t i = 0; i < barra.botones.size(); ++i) {
        const bool principal = lblMenu[i].orden == Orden::CalculoPrueba;
        QPalette colores = paleta;
        if (principal) {
            // The one primary action stands in the highlight colour.
            colores.setColor(QPalette::Active, QPalette::ButtonText, paleta.color(QPalette::HighlightedText));
            barra.botones[i]->setStyleSheet(
                Q("QToolButton { background: ") + Resalte(paleta).name() +
                Q("; color: palette(highlighted-text);"
                  " border: 1px solid transparent; border-radius: 4px; padding: 4px 10px; font-weight: bold; }"
                  "QToolButton:hover { border-color: palette(highlighted-text); }"
                  "QToolButton:focus { border: 2px solid palette(window-text); }"
                  "QToolButton:disabled { background: palette(midlight); color: palette(placeholder-text); }"));
        }
        barra.botones[i]->setIcon(IconoLinea(lblMenu[i].Icono, colores));
    }
}
