// The about box.
#pragma once

#include <QDialog>

class frmAcercaDe final : public QDialog {
  public:
    explicit frmAcercaDe(QWidget* padre);
};
