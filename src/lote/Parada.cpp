#include "Parada.h"

#include <csignal>

namespace {

volatile std::sig_atomic_t parada = 0;

} // namespace

void PrepararSenales() {
    struct sigaction accion {};
    accion.sa_handler = [](int) { parada = 1; };
    accion.sa_flags = static_cast<int>(SA_RESETHAND);
    sigaction(SIGINT, &accion, nullptr);
    std::signal(SIGPIPE, SIG_IGN);
}

bool ParadaPedida() {
    return parada != 0;
}
