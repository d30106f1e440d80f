#include "Lista.h"

#include "TextoQt.h"

QComboBox* CrearLista(std::string_view nombre, std::string_view ayuda, const QStringList& textos) {
    auto* lista = new QComboBox;
    lista->setObjectName(Q(nombre));
    lista->setAccessibleName(Q(ayuda));
    lista->setToolTip(Q(ayuda));
    lista->addItems(textos);
    return lista;
}

QStringList Enteros(int primero, int ultimo) {
    QStringList textos;
    for (int i = primero; i <= ultimo; ++i) textos << QString::number(i);
    return textos;
}

QComboBox* CrearListaDias() {
    return CrearLista("cboDia", "Día de la semana",
                      {Q("Todos"), Q("Lunes"), Q("Martes"), Q("Miércoles"), Q("Jueves"), Q("Viernes"), Q("Sábado")});
}
