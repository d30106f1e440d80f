// Finding and driving the widgets of a window by the names of its controls.
//
//     Pulsar(ventana, "lblNumero_11");
//     EnModal([](QDialog& dialogo) { Hijo<QLineEdit>(dialogo, "txtSumaMinima_0")->setText(...); dialogo.close(); });
#pragma once

#include <QAbstractButton>
#include <QApplication>
#include <QDialog>
#include <QLabel>
#include <QLineEdit>
#include <QTimer>
#include <QWidget>

#include <functional>
#include <stdexcept>
#include <string>

#include <gtest/gtest.h>

#include "TextoQt.h"

/// The names of the T under `padre`, for the message of a miss.
template <class T>
std::string NombresPresentes(const QWidget& padre) {
    std::string nombres;
    for (const T* hijo : padre.findChildren<T*>())
        if (!hijo->objectName().isEmpty()) nombres += "\n  " + Utf8(hijo->objectName());
    return nombres;
}

/// The child of this type and name; a miss lists the names that are there and ends the test.
template <class T>
T* Hijo(const QWidget& padre, const std::string& nombre) {
    T* const hijo = padre.findChild<T*>(Q(nombre));
    if (hijo == nullptr)
        throw std::runtime_error("no hay " + nombre + " en " + Utf8(padre.objectName()) +
                                 "; hay:" + NombresPresentes<T>(padre));
    return hijo;
}

inline void Pulsar(const QWidget& ventana, const std::string& boton) {
    Hijo<QAbstractButton>(ventana, boton)->click();
}

/// The text of a label or of a line to type in.
inline std::string Texto(const QWidget& ventana, const std::string& nombre) {
    auto* const control = Hijo<QWidget>(ventana, nombre);
    if (const auto* linea = qobject_cast<QLineEdit*>(control)) return Utf8(linea->text());
    return Utf8(Hijo<QLabel>(ventana, nombre)->text());
}

/// Runs `accion` on the next modal dialog to open and closes the dialog if it is still open after it.
/// To be called before what opens it; fails if none opens within two seconds.
inline void EnModal(std::function<void(QDialog&)> accion, int intentos = 400) {
    QTimer::singleShot(5, qApp, [accion = std::move(accion), intentos] {
        auto* dialogo = qobject_cast<QDialog*>(QApplication::activeModalWidget());
        if (dialogo == nullptr) {
            ASSERT_GT(intentos, 0) << "no modal dialog has opened";
            return EnModal(accion, intentos - 1);
        }
        try {
            accion(*dialogo);
        } catch (const std::exception& error) {
            ADD_FAILURE() << error.what();
        }
        if (dialogo->isVisible()) dialogo->done(QDialog::Rejected);
    });
}
