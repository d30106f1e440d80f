#include "Pintores.h"

#include <vector>

namespace {

std::vector<Pintor*>& Abiertas() {
    static std::vector<Pintor*> abiertas;
    return abiertas;
}

} // namespace

Pintor::Pintor(std::function<void()> pintar) : pintar_(std::move(pintar)) {
    Abiertas().push_back(this);
}

// A window that is not modal may close before those opened after it.
Pintor::~Pintor() {
    std::erase(Abiertas(), this);
}

void PintarAbiertas() {
    for (size_t i = 0; i < Abiertas().size(); ++i) Abiertas()[i]->pintar_();
}

int MostrarModal(QDialog& dialogo, std::function<void()> pintar) {
    const Pintor pintor(std::move(pintar));
    dialogo.setModal(true);
    return dialogo.exec();
}
