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
    auto* caja = new QVBoxLayout(this);
    caja->addWidget(texto);
    auto* botones = new QDialogButtonBox(this);
    QPushButton* imgVolver = botones->addButton(Q("Cerrar"), QDialogButtonBox::RejectRole);
    imgVolver->setObjectName(Q("imgVolver"));
    imgVolver->setToolTip(Q("Cerrar el informe"));
    connect(botones, &QDialogButtonBox::rejected, this, &QDialog::reject);
    caja->addWidget(botones);
    resize(760, 560);
}
