#include "frmAcercaDe.h"

#include "MarcoFiltro.h"
#include "TextoQt.h"
#include "Version.h"

frmAcercaDe::frmAcercaDe(QWidget* padre) : QDialog(padre) {
    QVBoxLayout* caja = EmpezarVentana(*this, "frmAcercaDe", "Acerca de " + std::string(NombrePrograma), NombrePrograma,
                                       "Sistemas de PRIMITIVA, BONOLOTO y EURODREAMS.");

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
