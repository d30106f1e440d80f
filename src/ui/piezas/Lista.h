// The drop-down list of every window.
#pragma once

#include <QComboBox>

#include <string_view>

/// A list called `nombre`, whose accessible name and tip are `ayuda`.
QComboBox* CrearLista(std::string_view nombre, std::string_view ayuda, const QStringList& textos = {});

/// The numbers `primero` to `ultimo` as texts.
QStringList Enteros(int primero, int ultimo);

/// "Todos" and the days from Monday to Saturday; called cboDia.
QComboBox* CrearListaDias();
