#include "FilaAciertos.h"

#include <QLabel>
#include <QPushButton>

#include "MarcoFiltro.h"
#include "TextoQt.h"

QLineEdit* CrearFilaAciertos(QGridLayout& rejilla, int fila, const QString& etiqueta, const QString& texto,
                             const QString& boton, std::function<void()> alModificar) {
    auto* campo = new QLineEdit;
    campo->setObjectName(texto);
    campo->setReadOnly(true);
    campo->setFocusPolicy(Qt::NoFocus);
    campo->setAccessibleName(etiqueta);
    campo->setToolTip(QStringLiteral("Aciertos permitidos; en blanco, cualquiera"));
    campo->setMinimumWidth(campo->fontMetrics().horizontalAdvance(QLatin1String("0,1,2,3,4,5,6")) + 24);
    auto* modificar = CrearBoton(Utf8(boton), "Modificar", "Elegir los aciertos permitidos", std::move(alModificar));
    modificar->setAccessibleName(QStringLiteral("Modificar ") + etiqueta);
    rejilla.addWidget(new QLabel(etiqueta), fila, 0);
    rejilla.addWidget(campo, fila, 1);
    rejilla.addWidget(modificar, fila, 2);
    rejilla.setColumnStretch(1, 1);
    return campo;
}
