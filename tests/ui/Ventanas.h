// Finding and driving the widgets of a window by the names of its controls.
//
//     QTest::mouseClick(Hijo<QAbstractButton>(ventana, "lblNumero_11"), Qt::LeftButton);
//     EnModal([](QDialog& dialogo) { Hijo<QLineEdit>(dialogo, "txtSumaMinima_0")->setText(...); dialogo.close(); });
#pragma once

#include <QApplication>
#include <QDialog>
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
