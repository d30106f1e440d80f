#include "frmInforme.h"

#include <QDialogButtonBox>
#include <QFile>
#include <QFileInfo>
#include <QFontDatabase>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QVBoxLayout>

#include "Texto8bits.h"
#include "TextoQt.h"

frmInforme::frmInforme(const QString& ruta, QWidget* padre) : QDialog(padre) {
    setObjectName(Q("frmInforme"));
    setWindowTitle(QFileInfo(ruta).fileName());
    QFile fichero(ruta);
    auto* texto = new QPlainTextEdit(this);
    texto->setObjectName(Q("texto"));
    texto->setAccessibleName(windowTitle());
    texto->setReadOnly(true);
    texto->setLineWrapMode(QPlainTextEdit::NoWrap);
    texto->setFont(QFontDatabase::systemFont(QFontDatabase::FixedFont));
    texto->setPlainText(fichero.open(QIODevice::ReadOnly) ? Q(Codigo8AUtf8(fichero.readAll().toStdString()))
                                                          : Q("No se puede leer ") + ruta);
    auto* botones = new QDialogButtonBox(this);
    botones->addButton(Q("Cerrar"), QDialogButtonBox::RejectRole);
    connect(botones, &QDialogButtonBox::rejected, this, &QDialog::reject);
    auto* caja = new QVBoxLayout(this);
    caja->addWidget(texto);
    caja->addWidget(botones);
    resize(760, 560);
}
