// The vector target that a measurement runs on.
#pragma once

#include <string>

/// From now on the kernels run on the target of this name ("AVX2"), as if the machine had no other.
void UsarProcesador(const std::string& nombre);
