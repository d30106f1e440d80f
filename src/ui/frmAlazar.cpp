#include "frmAlazar.h"

#include <QLabel>

#include "Lista.h"
#include "MarcoFiltro.h"
#include "TextoQt.h"

frmAlazar::frmAlazar(EstadoTrabajo& trabajo, QWidget* padre) : QDialog(padre), logica{trabajo} {
    QVBoxLayout* caja = EmpezarVentana(*this, "frmAlazar", "Pronóstico Aleatorio", "Pronóstico Aleatorio",
                                       "Marca en el boleto números elegidos al azar.");

    auto* fila = new QHBoxLayout;
    QComboBox* lista = CrearLista("cboNumeros", "Cuántos números se marcan", Enteros(1, trabajo.NumeroMaximo()));
    lista->setCurrentIndex(logica.cboNumeros - 1);
    connect(lista, &QComboBox::currentIndexChanged, this, [this](int indice) { logica.cboNumeros = indice + 1; });
    auto* etiqueta = new QLabel(Q("Cantidad de números"));
    etiqueta->setBuddy(lista);
    fila->addWidget(etiqueta);
    fila->addStretch();
    fila->addWidget(lista);
    caja->addLayout(fila);
    caja->addStretch();
    caja->addSpacing(Paso);

    auto* pie = new QHBoxLayout;
    auto* marcar = CrearBoton("cmdAlazar", "Marcar al azar", "Marcar los números en el boleto", [this] {
        logica.Marcar();
        accept();
    });
    marcar->setDefault(true);
    pie->addWidget(marcar);
    pie->addStretch();
    pie->addWidget(CrearBoton("imgVolver", "Cerrar", "Cerrar sin marcar", [this] { close(); }));
    caja->addLayout(pie);
    AjustarTamanio(*this);
}
