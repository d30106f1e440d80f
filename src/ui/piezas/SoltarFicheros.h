// Files dropped on a window.
#pragma once

#include <QWidget>

#include <functional>
#include <string>
#include <vector>

/// Takes regular files dragged onto `ventana`, one at a time unless `varios`, as long as `puede` says
/// so. `alSoltar` gets their paths after the drop has ended, since the program that they come from
/// waits for it and boxes must not keep it.
void AceptarFicheros(QWidget& ventana, bool varios, std::function<bool()> puede,
                     std::function<void(const std::vector<std::string>&)> alSoltar);
