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

/// The foot: the window's commands, the first its main one, and `imgVolver`.
void CrearPieEscrutinio(QBoxLayout& caja, std::initializer_list<QPushButton*> ordenes, QPushButton* imgVolver);

/// A figure in bold, as wide as `masAncho`.
QLabel* CrearCifra(std::string_view nombre, std::string_view accesible, std::string_view masAncho);

/// The foot of a run: what it does, how far it is, and its stop. Keeps its place when nothing runs.
struct PanelMarcha {
    QLabel* lblEstado = nullptr;
    QProgressBar* lblProgressBar = nullptr;
    QPushButton* cmdStop = nullptr;
};

PanelMarcha CrearPanelMarcha(QBoxLayout& donde, std::string_view ayudaStop, std::function<void()> alParar);
void PintarPanelMarcha(const PanelMarcha& panel, const std::string& estado, bool corre, double fraccion);
