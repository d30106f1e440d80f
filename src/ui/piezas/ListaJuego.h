// The list of games in the colour of the one chosen.
#pragma once

#include <QComboBox>

/// A list of the three games, called `cboTipoJuego`. The colour is the game's own, the text black or
/// white, whichever stands out more.
class ListaJuego final : public QComboBox {
  public:
    ListaJuego();

  protected:
    void paintEvent(QPaintEvent* evento) override;
};
