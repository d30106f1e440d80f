#include "RejillaDigitos.h"

#include <QHBoxLayout>

#include "GestorCeldas.h"
#include "RejillaNumeros.h"
#include "TextoQt.h"
#include "tema.h"

RejillaDigitos CrearRejillaDigitos(QWidget* padre, std::string_view nombre, std::function<void(int)> pulsar) {
    RejillaDigitos r;
    r.papel = new QFrame(padre);
    r.papel->setObjectName(Q("papel"));
    r.papel->setStyleSheet(EstiloBoleto());
    r.papel->setAccessibleName(Q("Dígitos"));
    auto* fila = new QHBoxLayout(r.papel);
    fila->setContentsMargins(6, 6, 6, 6);
    fila->setSpacing(3);
    auto* gestor = new GestorCeldas(r.papel);
    for (int d = 0; d < 10; ++d) {
        QToolButton* celda = CrearCelda(r.papel, NombreIndexado(nombre, d), QString::number(d), QString());
        celda->setMinimumSize(28, 30);
        QObject::connect(celda, &QToolButton::clicked, r.papel, [pulsar, d] { pulsar(d); });
        gestor->Poner(celda, 0, d);
        fila->addWidget(celda);
        r.digito[static_cast<size_t>(d)] = celda;
    }
    return r;
}

void PintarRejillaDigitos(const RejillaDigitos& r, const std::array<bool, 10>& marcas, const Juego& juego,
                          bool habilitada) {
    for (int d = 0; d < 10; ++d) {
        QToolButton* celda = r.digito[static_cast<size_t>(d)];
        celda->setVisible(d >= juego.DigitoMinimo && d <= juego.DigitoMaximo);
        celda->setChecked(marcas[static_cast<size_t>(d)]);
        celda->setAccessibleName(Q(juego.Palabra) + QLatin1Char(' ') + QString::number(d));
    }
    r.papel->setEnabled(habilitada);
}
