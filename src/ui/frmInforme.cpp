#include "frmInforme.h"

#include <QDialogButtonBox>
#include <QFile>
#include <QFileInfo>
#include <QPushButton>
#include <QVBoxLayout>

#include "Texto8bits.h"
#include "TextoFijo.h"
#include "TextoQt.h"

frmInforme::frmInforme(const QString& ruta, QWidget* padre) : QDialog(padre) {
    setObjectName(Q("frmInforme"));
    setWindowTitle(QFileInfo(ruta).fileName());
    QFile fichero(ruta);
    QPlainTextEdit* texto = CrearTextoFijo("texto", Utf8(windowTitle()));
    PintarTextoFijo(*texto, fichero.open(QIODevice::ReadOnly) ? Codigo8AUtf8(fichero.readAll().toStdString())
                                                              : "No se puede leer " + Utf8(ruta));
    auto* botones = new QDialogButtonBox(this);
    botones->addButton(Q("Cerrar"), QDialogButtonBox::RejectRole);
    connect(botones, &QDialogButtonBox::rejected, this, &QDialog::reject);
    auto* caja = new QVBoxLayout(this);
    caja->addWidget(texto);
    caja->addWidget(botones);
    resize(760, 560);
}
