// Between the logic's UTF-8 and the toolkit's strings.
#pragma once

#include <QString>

#include <string>
#include <string_view>

inline QString Q(std::string_view texto) {
    return QString::fromUtf8(texto.data(), static_cast<qsizetype>(texto.size()));
}

inline std::string Utf8(const QString& texto) {
    return texto.toStdString();
}

/// The name of element `indice` of a control array: "lblNumero_12".
inline QString NombreIndexado(std::string_view nombre, int indice) {
    return Q(nombre) + QLatin1Char('_') + QString::number(indice);
}
