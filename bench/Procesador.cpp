#include "Procesador.h"

#include "Objetivos.h"

#include <hwy/targets.h>

// The scalar twins stay: they give the expected answers.
void UsarProcesador(const std::string& nombre) {
    int64_t otros = 0; // each call of DisableTargets takes the place of the one before
    for (const int64_t procesador : hwy::SupportedAndGeneratedTargets())
        if (hwy::TargetName(procesador) != nombre) otros |= procesador;
    hwy::DisableTargets(otros & ~HWY_SCALAR);
}
