#include "FilaIntervalo.h"

#include <QLabel>

#include "FiltroTeclas.h"

void CrearCabeceraIntervalos(QGridLayout& rejilla, const QString& minimo, const QString& maximo) {
    rejilla.addWidget(new QLabel(minimo), 0, 1, Qt::AlignRight);
    rejilla.addWidget(new QLabel(maximo), 0, 2, Qt::AlignRight);
    rejilla.setColumnStretch(0, 1);
}

FilaIntervalo CrearFilaIntervalo(QGridLayout& rejilla, int fila, const PeticionFilaIntervalo& p,
                                 EfectosIntervalo efectos) {
    FilaIntervalo piezas;
    piezas.minimo = CrearCampoNumero(p.nombreMinimo, p.que + QStringLiteral(", valor mínimo"),
                                     std::move(efectos.alCambiarMinimo), efectos.alPulsar);
    piezas.maximo = CrearCampoNumero(p.nombreMaximo, p.que + QStringLiteral(", valor máximo"),
                                     std::move(efectos.alCambiarMaximo), std::move(efectos.alPulsar));
    rejilla.addWidget(new QLabel(p.etiqueta), fila, 0);
    rejilla.addWidget(piezas.minimo, fila, 1);
    rejilla.addWidget(piezas.maximo, fila, 2);
    if (p.or_) rejilla.addWidget(new QLabel(QStringLiteral("OR")), fila, 3);
    return piezas;
}

void PintarFilaIntervalo(const FilaIntervalo& fila, const std::string& minimo, const std::string& maximo) {
    PintarCampo(*fila.minimo, minimo);
    PintarCampo(*fila.maximo, maximo);
}
