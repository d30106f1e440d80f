#include "PieHerramienta.h"

#include "Lista.h"
#include "MarcoFiltro.h"
#include "TextoQt.h"

QPushButton* TerminarHerramienta(QDialog& dialogo, QVBoxLayout& caja, QPushButton& principal) {
    auto* pie = new QHBoxLayout;
    pie->setContentsMargins(0, Paso, 0, 0);
    principal.setDefault(true);
    pie->addWidget(&principal);
    pie->addStretch();
    QPushButton* imgVolver = CrearBoton("imgVolver", "Cerrar", "Cerrar la ventana", [&dialogo] { dialogo.reject(); });
    pie->addWidget(imgVolver);
    caja.addLayout(pie);
    return imgVolver;
}

QLabel* CrearCuenta(QGridLayout& rejilla, int fila, std::string_view titulo, std::string_view nombre) {
    auto* cuenta = new QLabel;
    cuenta->setObjectName(Q(nombre));
    cuenta->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
    QFont letra = cuenta->font();
    letra.setBold(true);
    cuenta->setFont(letra);
    rejilla.addWidget(new QLabel(Q(titulo)), fila, 0);
    rejilla.addWidget(cuenta, fila, 1);
    return cuenta;
}

void PonerAzar(QGridLayout& rejilla, int maximo, int& cuantos, std::function<void()> alPulsar) {
    QComboBox* lista = CrearLista("cboNumeros", "Cuántos números se marcan al azar", Enteros(1, maximo));
    lista->setCurrentIndex(cuantos - 1);
    QObject::connect(lista, &QComboBox::currentIndexChanged, lista, [&cuantos](int i) { cuantos = i + 1; });
    rejilla.addWidget(lista, 0, 0);
    rejilla.addWidget(
        CrearBoton("cmdAlazar", "Azar", "Marca esa cantidad de números, elegidos al azar", std::move(alPulsar)), 0, 1);
}
