#include "frmAciertos.h"

#include <QHBoxLayout>
#include <QKeyEvent>

#include "CeldaVerde.h"
#include "MarcoFiltro.h"
#include "Pintores.h"
#include "TextoQt.h"

frmAciertos::frmAciertos(LogicaAciertos& l, const QString& titulo, QWidget* padre) : QDialog(padre), logica(l) {
    QVBoxLayout* caja =
        EmpezarVentana(*this, "frmAciertos", "Aciertos", Utf8(titulo.section(QLatin1Char(':'), 0, 0).trimmed()),
                       "Marque los aciertos permitidos.");

    auto* fila = new QHBoxLayout;
    fila->setSpacing(Paso);
    for (int valor = logica.MinimoAcierto; valor <= logica.MaximoAcierto; ++valor) {
        auto* celda = CrearCeldaVerde(
            Utf8(NombreIndexado("lblAcierto", valor)), std::to_string(valor),
            "Permitir o no " + std::to_string(valor) + (valor == 1 ? " acierto" : " aciertos"), 40, [this, valor] {
                logica.Pulsar(valor);
                Pintar();
            });
        fila->addWidget(celda);
        celdas_.push_back(celda);
    }
    fila->addStretch();
    caja->addLayout(fila);
    caja->addStretch();
    caja->addSpacing(Paso);

    auto* pie = new QHBoxLayout;
    pie->addWidget(CrearBoton("imgTodos", "Todos", "Marcar todos los aciertos", [this] {
        logica.imgTodos();
        Pintar();
    }));
    pie->addWidget(CrearBoton("imgNinguno", "Ninguno", "Desmarcar todos los aciertos", [this] {
        logica.imgNinguno();
        Pintar();
    }));
    pie->addStretch();
    auto* volver = CrearBoton("imgVolver", "Volver", "Volver a la condición", [this] { close(); });
    volver->setDefault(true);
    pie->addWidget(volver);
    caja->addLayout(pie);
    AjustarTamanio(*this);
    Pintar();
}

void frmAciertos::keyPressEvent(QKeyEvent* evento) {
    bool esCifra = false;
    const int valor = evento->text().toInt(&esCifra);
    if (!esCifra || valor < logica.MinimoAcierto || valor > logica.MaximoAcierto) return QDialog::keyPressEvent(evento);
    logica.Pulsar(valor);
    Pintar();
}

void frmAciertos::Pintar() {
    for (size_t i = 0; i < celdas_.size(); ++i)
        celdas_[i]->setChecked(logica.AciertosSeleccion[static_cast<size_t>(logica.MinimoAcierto) + i] == 1);
}

void ElegirAciertos(LogicaAciertos& aciertos, const QString& titulo, QWidget* padre) {
    frmAciertos dialogo(aciertos, titulo, padre);
    MostrarModal(dialogo);
}
