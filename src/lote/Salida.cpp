#include "Salida.h"

#include <cerrno>
#include <cstring>

#include <unistd.h>

#include "Parada.h"

namespace {

constexpr size_t Tramo = 1 << 16;

} // namespace

void Salida::Escribir(std::string_view texto) {
    if (!Abierta()) return;
    pendiente_ += texto;
    if (pendiente_.size() >= Tramo) Volcar();
}

void Salida::Volcar() {
    size_t hecho = 0;
    while (hecho < pendiente_.size() && Abierta()) {
        const ssize_t n = write(STDOUT_FILENO, pendiente_.data() + hecho, pendiente_.size() - hecho);
        if (n >= 0)
            hecho += static_cast<size_t>(n);
        else if (errno != EINTR || ParadaPedida())
            fallo_ = std::strerror(errno);
    }
    pendiente_.clear();
}

bool Salida::Cerrar() {
    Volcar();
    // A full disk may only be told here.
    if (close(STDOUT_FILENO) != 0 && Abierta()) fallo_ = std::strerror(errno);
    return Abierta();
}
