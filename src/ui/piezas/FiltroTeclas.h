// The key filter of every text field of numbers.
#pragma once

#include <QLineEdit>

#include <functional>

/// Lets through to `campo` only the keys that `FiltroTecla` accepts in `modo`; a refused key beeps.
/// `alPulsar` runs on each key that types or deletes, accepted or not. Escape and Tab belong to the
/// dialog, and editing shortcuts to the field.
void InstalarFiltroTeclas(
    QLineEdit& campo, int modo, std::function<void()> alPulsar = [] {});

/// Gives Enter in the field to `alIntro`, with the text, which is then selected; to be installed after
/// the key filter, which swallows it.
void InstalarIntro(QLineEdit& campo, std::function<void(const std::string&)> alIntro);

/// A number field: digits only, aligned to the right, as wide as six figures. `alCambiar` gets the
/// text after each edit and `alPulsar` each key press.
QLineEdit* CrearCampoNumero(const QString& nombre, const QString& ayuda,
                            std::function<void(const std::string&)> alCambiar, std::function<void()> alPulsar);

/// Shows the logic's text in the field; the caret stays where it is when nothing changes.
void PintarCampo(QLineEdit& campo, const std::string& texto);
