// What the windows of the scrutiny share: feet, figures and the panel of a run.
#pragma once

#include <QBoxLayout>
#include <QLabel>
#include <QProgressBar>
#include <QPushButton>

#include <functional>
#include <initializer_list>
#include <string>
#include <string_view>

/// A figure in bold, as wide as `masAncho`.
QLabel* CrearCifra(std::string_view nombre, std::string_view accesible, std::string_view masAncho);

/// A run: what it does, how far it is, and its stop. It keeps its place when nothing runs.
struct PanelMarcha {
    QLabel* lblEstado = nullptr;
    QProgressBar* lblProgressBar = nullptr;
    QPushButton* cmdStop = nullptr;
};

PanelMarcha CrearPanelMarcha(std::string_view ayudaStop, std::function<void()> alParar);
void PintarPanelMarcha(const PanelMarcha& panel, const std::string& estado, bool corre, double fraccion);

/// The foot: the window's commands, the first its main one, the run of a window that has one, and
/// `imgVolver`. The box of the commands.
QWidget* CrearPieEscrutinio(QBoxLayout& caja, std::initializer_list<QPushButton*> ordenes, const PanelMarcha& marcha,
                            QPushButton* imgVolver);
