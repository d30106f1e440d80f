#include "frmAcercaDe.h"

#include "MarcoFiltro.h"
#include "TextoQt.h"
#include "Version.h"

frmAcercaDe::frmAcercaDe(QWidget* padre) : QDialog(padre) {
    setObjectName(Q("frmAcercaDe"));
    setWindowTitle(Q("Acerca de ") + Q(NombrePrograma));
    auto* caja = new QVBoxLayout(this);
    caja->setContentsMargins(2 * Paso, 2 * Paso, 2 * Paso, 2 * Paso);
    caja->setSpacing(Paso);
    PonerCabecera(*caja, NombrePrograma, "Sistemas de PRIMITIVA, BONOLOTO y EURODREAMS.");

    auto* datos = new QGridLayout;
    datos->setHorizontalSpacing(3 * Paso);
    datos->addWidget(new QLabel(Q("Versión")), 0, 0);
    datos->addWidget(new QLabel(Q(VersionPrograma)), 0, 1);
    datos->addWidget(new QLabel(Q("Compilado el")), 1, 0);
    datos->addWidget(new QLabel(Q(FechaCompilacion())), 1, 1);
    datos->setColumnStretch(1, 1);
    caja->addLayout(datos);
    caja->addStretch();
    caja->addSpacing(Paso);

    auto* pie = new QHBoxLayout;
    pie->addStretch();
    auto* volver = CrearBoton("imgVolver", "Cerrar", "Cerrar", [this] { close(); });
    volver->setDefault(true);
    pie->addWidget(volver);
    caja->addLayout(pie);
    AjustarTamanio(*this);
}
