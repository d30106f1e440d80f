#include "RejillaConsulta.h"

#include <QLabel>

#include "FilaIntervalo.h"
#include "FiltroTeclas.h"
#include "Lista.h"
#include "TextoQt.h"

namespace {

struct Campo {
    const char *nombre, *ayuda;
    int cifras;
};

constexpr std::array<Campo, 4> Campos{{{"txtTemporadaDESDE", "Primera temporada", 4},
                                       {"txtTemporadaHASTA", "Última temporada", 4},
                                       {"txtSorteoDESDE", "Primer sorteo de cada temporada", 3},
                                       {"txtSorteoHASTA", "Último sorteo de cada temporada", 3}}};

} // namespace

RejillaConsulta CrearRejillaConsulta(QGridLayout& rejilla, const DatosConsulta& datos) {
    RejillaConsulta consulta;
    CrearCabeceraIntervalos(rejilla, Q("Desde"), Q("Hasta"));
    int fila = 1;
    for (const char* rotulo : {"Temporada", "Sorteo", "Día"}) rejilla.addWidget(new QLabel(Q(rotulo)), fila++, 0);
    for (size_t i = 0; i < Campos.size(); ++i) {
        QLineEdit* campo = CrearCampoNumero(
            Q(Campos[i].nombre), Q(Campos[i].ayuda), [texto = datos.textos[i]](const std::string& t) { *texto = t; },
            [] {});
        campo->setMaxLength(Campos[i].cifras);
        rejilla.addWidget(campo, 1 + static_cast<int>(i) / 2, 1 + static_cast<int>(i) % 2);
        consulta.campos[i] = campo;
    }
    consulta.cboDia = CrearListaDias();
    QObject::connect(consulta.cboDia, &QComboBox::activated, consulta.cboDia, [dia = datos.dia](int i) { *dia = i; });
    rejilla.addWidget(consulta.cboDia, 3, 1, 1, 2);
    return consulta;
}

void PintarRejillaConsulta(const RejillaConsulta& consulta, const DatosConsulta& datos) {
    for (size_t i = 0; i < consulta.campos.size(); ++i) PintarCampo(*consulta.campos[i], *datos.textos[i]);
    consulta.cboDia->setCurrentIndex(*datos.dia);
}
