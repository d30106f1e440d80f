// What the windows of the scrutiny share: lists, feet, fixed-pitch results and the panel of a run.
#pragma once

#include <QBoxLayout>
#include <QComboBox>
#include <QLabel>
#include <QPlainTextEdit>
#include <QProgressBar>
#include <QPushButton>

#include <functional>
#include <initializer_list>
#include <string>
#include <string_view>

/// An empty list.
QComboBox* CrearLista(std::string_view nombre, std::string_view ayuda);

/// The foot: the window's commands, the first its main one, and `imgVolver`.
void CrearPieEscrutinio(QBoxLayout& caja, std::initializer_list<QPushButton*> ordenes, QPushButton* imgVolver);

/// Results of the system as text that can be read and selected.
QPlainTextEdit* CrearTextoFijo(std::string_view nombre, std::string_view accesible);

/// Shows the text, and leaves the view where it is when it has not changed.
void PintarTextoFijo(QPlainTextEdit& texto, const std::string& nuevo);

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

/// Puts a table, lines of cells between tabs, on the clipboard.
void CopiarComoTabla(const std::string& tabla);
