#include "Rnd.h"

#include <chrono>

void Azar::SembrarReloj() {
    Sembrar(static_cast<uint64_t>(std::chrono::steady_clock::now().time_since_epoch().count()) ^
            static_cast<uint64_t>(std::chrono::system_clock::now().time_since_epoch().count()));
}
