#include "TrabajoAparte.h"

#include <new>

namespace {

// Thrown by a turn of a task that has been overtaken.
struct Adelantada {};

} // namespace

TrabajoAparte::TrabajoAparte() : hilo_([this] { Atender(); }) {}

TrabajoAparte::~TrabajoAparte() {
    {
        const std::lock_guard cierre(cerrojo_);
        fin_ = true;
        ++vigente_;
    }
    hay_.notify_one();
    hilo_.join();
}

void TrabajoAparte::Empezar(Tarea tarea, std::function<void()> sinMemoria) {
    {
        const std::lock_guard cierre(cerrojo_);
        ++vigente_;
        tarea_ = std::move(tarea);
        sinMemoria_ = std::move(sinMemoria);
    }
    enMarcha_ = true;
    hay_.notify_one();
}

void TrabajoAparte::Abandonar() {
    const std::lock_guard cierre(cerrojo_);
    ++vigente_;
    tarea_ = nullptr;
    enMarcha_ = false;
}

void TrabajoAparte::Atender() {
    std::unique_lock cierre(cerrojo_);
    while (true) {
        hay_.wait(cierre, [this] { return fin_ || tarea_; });
        if (fin_) return;
        const uint64_t numero = vigente_;
        Tarea tarea = std::exchange(tarea_, nullptr);
        const auto sinMemoria = std::exchange(sinMemoria_, nullptr);
        cierre.unlock();
        Hacer(tarea, sinMemoria, numero);
        tarea = nullptr; // what it holds is freed here, and not when the next one comes
        Mandar(numero, [this] { enMarcha_ = false; });
        cierre.lock();
    }
}

void TrabajoAparte::Hacer(const Tarea& tarea, const std::function<void()>& sinMemoria, uint64_t numero) {
    Entorno entorno;
    entorno.CederTurno = [this, numero] {
        if (vigente_ != numero) throw Adelantada{};
    };
    try {
        tarea(entorno, [this, numero](std::function<void()> accion) { Mandar(numero, std::move(accion)); });
    } catch (const Adelantada&) {
        return;
    } catch (const std::bad_alloc&) {
        Mandar(numero, sinMemoria);
    }
}

void TrabajoAparte::Mandar(uint64_t numero, std::function<void()> accion) {
    QMetaObject::invokeMethod(
        &receptor_,
        [this, numero, accion = std::move(accion)] {
            if (vigente_ == numero && accion) accion();
        },
        Qt::QueuedConnection);
}
