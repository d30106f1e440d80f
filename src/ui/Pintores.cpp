#include "Pintores.h"

#include <vector>

namespace {

std::vector<std::function<void()>>& Abiertas() {
    static std::vector<std::function<void()>> abiertas;
    return abiertas;
}

} // namespace

Pintor::Pintor(std::function<void()> pintar) {
    Abiertas().push_back(std::move(pintar));
}

Pintor::~Pintor() {
    Abiertas().pop_back();
}

void PintarAbiertas() {
    for (size_t i = 0; i < Abiertas().size(); ++i) Abiertas()[i]();
}

int MostrarModal(QDialog& dialogo, std::function<void()> pintar) {
    const Pintor pintor(std::move(pintar));
    dialogo.setModal(true);
    return dialogo.exec();
}
