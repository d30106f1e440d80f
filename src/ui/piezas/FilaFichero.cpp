#include "FilaFichero.h"

#include <QFileInfo>

#include "MarcoFiltro.h"
#include "TextoQt.h"

namespace {

constexpr int AnchoNombre = 280;

} // namespace

FilaFichero CrearFilaFichero(QBoxLayout& donde, PeticionFilaFichero peticion) {
    FilaFichero f;
    auto* fila = new QHBoxLayout;
    fila->setSpacing(Paso);
    f.boton = CrearBoton(peticion.boton, peticion.texto, peticion.ayuda, std::move(peticion.alPulsar));
    f.nombre = new QLabel;
    f.nombre->setObjectName(Q(peticion.nombre));
    f.nombre->setMinimumWidth(AnchoNombre);
    f.cuenta = new QLabel;
    f.cuenta->setObjectName(Q(peticion.cuenta));
    f.cuenta->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
    f.cuenta->setMinimumWidth(f.cuenta->fontMetrics().horizontalAdvance(Q("13.983.816 Apuestas")));
    fila->addWidget(f.boton);
    fila->addWidget(f.nombre, 1);
    fila->addWidget(f.cuenta);
    donde.addLayout(fila);
    return f;
}

void PintarFilaFichero(const FilaFichero& f, const std::string& ruta, const std::string& cuenta) {
    const QString nombre = ruta.empty() ? Q("—") : QFileInfo(Q(ruta)).fileName();
    f.nombre->setText(f.nombre->fontMetrics().elidedText(nombre, Qt::ElideMiddle, AnchoNombre));
    f.nombre->setToolTip(Q(ruta));
    f.cuenta->setText(Q(cuenta));
}
