// A plain viewer of report files, for a desktop without a text editor.
#pragma once

#include <QDialog>

class frmInforme final : public QDialog {
  public:
    frmInforme(const QString& ruta, QWidget* padre);
};
