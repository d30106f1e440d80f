#include "Tabla.h"

#include <cstring>
#include <new>
#include <utility>

#include <sys/mman.h>

namespace {

constexpr int64_t Alineacion = 64;
constexpr int64_t PaginaGrande = int64_t{1} << 21;

int64_t RedondearArriba(int64_t valor, int64_t multiplo) {
    return (valor + multiplo - 1) / multiplo * multiplo;
}

// Page faults cost more than the work on a fresh table, so big ones ask for huge pages; for that
// the mapping must start on a huge page, hence the trimming of a mapping made one page too long.
uint8_t* Reservar(int64_t bytes) {
    const bool grande = bytes >= 2 * PaginaGrande;
    const int64_t pedido = grande ? bytes + PaginaGrande : bytes;
    void* zona = mmap(nullptr, static_cast<size_t>(pedido), PROT_READ | PROT_WRITE, MAP_PRIVATE | MAP_ANONYMOUS, -1, 0);
    if (zona == MAP_FAILED) throw std::bad_alloc();
    auto* inicio = static_cast<uint8_t*>(zona);
    if (!grande) return inicio;
    const auto direccion = reinterpret_cast<uintptr_t>(inicio);
    const int64_t sobra =
        RedondearArriba(static_cast<int64_t>(direccion), PaginaGrande) - static_cast<int64_t>(direccion);
    if (sobra > 0) munmap(inicio, static_cast<size_t>(sobra));
    if (sobra < PaginaGrande) munmap(inicio + sobra + bytes, static_cast<size_t>(PaginaGrande - sobra));
    madvise(inicio + sobra, static_cast<size_t>(bytes), MADV_HUGEPAGE);
    return inicio + sobra;
}

int64_t BytesDe(int filas, int64_t paso) {
    const int64_t bytes = RedondearArriba(filas * paso, 4096);
    return bytes >= 2 * PaginaGrande ? RedondearArriba(bytes, PaginaGrande) : bytes;
}

} // namespace

Tabla::Tabla(const Tabla& otra) {
    *this = otra;
}

Tabla& Tabla::operator=(const Tabla& otra) {
    if (this == &otra) return *this;
    if (otra.filas_ == 0) {
        Vaciar();
        return *this;
    }
    DimensionarSinLimpiar(otra.filas_, otra.apuestas_);
    for (int fila = 1; fila <= filas_; ++fila) std::memcpy(Fila(fila), otra.Fila(fila), static_cast<size_t>(apuestas_));
    return *this;
}

void Tabla::Dimensionar(int filas, int64_t apuestas) {
    Vaciar(); // a fresh mapping is zero already
    DimensionarSinLimpiar(filas, apuestas);
}

void Tabla::DimensionarSinLimpiar(int filas, int64_t apuestas) {
    assert(filas >= 1 && apuestas >= 0);
    const int64_t paso = RedondearArriba(apuestas, Alineacion) + Alineacion;
    const int64_t bytes = BytesDe(filas, paso);
    if (bytes > capacidad_) {
        Vaciar();
        datos_ = Reservar(bytes);
        capacidad_ = bytes;
    }
    filas_ = filas;
    apuestas_ = apuestas;
    paso_ = paso;
}

void Tabla::Vaciar() noexcept {
    if (datos_ != nullptr) munmap(datos_, static_cast<size_t>(capacidad_));
    datos_ = nullptr;
    filas_ = 0;
    apuestas_ = paso_ = capacidad_ = 0;
}

void Tabla::Intercambiar(Tabla& otra) noexcept {
    std::swap(datos_, otra.datos_);
    std::swap(filas_, otra.filas_);
    std::swap(apuestas_, otra.apuestas_);
    std::swap(paso_, otra.paso_);
    std::swap(capacidad_, otra.capacidad_);
}

bool Tabla::operator==(const Tabla& otra) const {
    if (filas_ != otra.filas_ || apuestas_ != otra.apuestas_) return false;
    for (int fila = 1; fila <= filas_; ++fila)
        if (std::memcmp(Fila(fila), otra.Fila(fila), static_cast<size_t>(apuestas_)) != 0) return false;
    return true;
}
