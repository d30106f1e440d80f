// The three figures of the program in a row, and the panel that waits for a file to be written.
#pragma once

#include <QFrame>
#include <QHBoxLayout>
#include <QLabel>
#include <QProgressBar>

#include "EstadoTrabajo.h"

struct PanelContadores {
    QWidget* panel = nullptr;
    QLabel *lblApuestasIniciales = nullptr, *lblApuestasCondicionadas = nullptr, *lblApuestasReducidas = nullptr;
    QLabel* lblAlVuelo = nullptr; ///< what the conditions would let through now; not a counter
    QLabel* lblTipoCombinacion = nullptr;
    QProgressBar* actividad = nullptr; ///< moves while a calculation runs
};

PanelContadores CrearPanelContadores(QWidget* padre);

/// Shows the line of the count on the fly, fainter while it is behind the settings.
void PintarAlVuelo(const PanelContadores& panel, const QString& texto, bool alDia);

/// Shows the texts of the counters. `progreso`: the conditioned one tells what runs, in smaller letters.
void PintarPanelContadores(const PanelContadores& panel, const QString& iniciales, const QString& condicionadas,
                           const QString& reducidas, const QString& base, bool progreso, bool calculando);

/// One large figure under its title, added to `fila`, and the arrow between two of them.
QLabel* CrearContador(QWidget* panel, QHBoxLayout* fila, const QString& nombre, const QString& titulo);
void PonerFlecha(QWidget* panel, QHBoxLayout* fila);

struct PanelEspera {
    QFrame* picVentanaEspera = nullptr;
    QProgressBar* lblProgressBar = nullptr;
};

/// A panel over the middle of `padre`, hidden at first.
PanelEspera CrearPanelEspera(QWidget* padre, std::string_view texto = "Guardando por favor espere ...");

/// Shows or hides the panel and puts it in the middle of its parent.
void PintarPanelEspera(const PanelEspera& panel, const Espera& espera);
