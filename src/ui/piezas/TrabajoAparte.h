// Work in another thread that the next request overtakes.
//
//     aparte.Empezar([base](Entorno& entorno, const TrabajoAparte::Publicar& publicar) {
//         const CuentaAlVuelo cuenta = ContarAlVuelo(*base, entorno);
//         publicar([cuenta] { ... shows it in the window's thread ... });
//     });
#pragma once

#include <QObject>

#include <condition_variable>
#include <functional>
#include <mutex>
#include <thread>

#include "Entorno.h"

class TrabajoAparte {
  public:
    using Publicar = std::function<void(std::function<void()>)>;
    /// Runs in the other thread. Its `Entorno` is silent; a turn yielded to it abandons the task when it has
    /// been overtaken. What it publishes runs in the window's thread, unless it has been overtaken by then.
    using Tarea = std::function<void(Entorno&, const Publicar&)>;

    TrabajoAparte();
    /// Abandons the task and waits for its next turn.
    ~TrabajoAparte();

    /// Abandons the task under way and runs this one. `sinMemoria` runs in the window's thread if memory fails.
    void Empezar(Tarea tarea, std::function<void()> sinMemoria);
    void Abandonar();
    /// Whether a task is waiting or running, or what it published last has not been shown yet.
    bool EnMarcha() const { return enMarcha_; }

  private:
    void Atender();
    void Hacer(const Tarea& tarea, const std::function<void()>& sinMemoria, uint64_t numero);
    void Mandar(uint64_t numero, std::function<void()> accion);

    QObject receptor_; ///< of what the thread publishes; lives in the window's
    bool enMarcha_ = false;
    std::mutex cerrojo_;
    std::condition_variable hay_;
    Tarea tarea_;
    std::function<void()> sinMemoria_;
    std::atomic<uint64_t> vigente_ = 0; ///< number of the last request; an older task is over
    bool fin_ = false;
    std::thread hilo_;
};
