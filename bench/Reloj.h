// The clock of the measurements: processor time of the thread.
#pragma once

#include <ctime>

inline double Reloj() {
    timespec t{};
    clock_gettime(CLOCK_THREAD_CPUTIME_ID, &t);
    return static_cast<double>(t.tv_sec) + static_cast<double>(t.tv_nsec) * 1e-9;
}

template <class Hacer>
double Segundos(Hacer hacer) {
    const double antes = Reloj();
    hacer();
    return Reloj() - antes;
}
