// The covering route of the reduction.
#pragma once

struct LogicaVentanaProceso;

/// Greedy cover of the conditioned system by balls of `RadioBits` 0 (the bet alone), 2 (5 numbers in
/// common) or 4 (4 in common, bases of up to 22 numbers), in cycles. Each bet taken is the one that
/// covers most anew, the first in visiting order among equals. The best system goes to the window. A
/// stop drops the cycle under way. Throws std::bad_alloc.
void ReducirPorCobertura(LogicaVentanaProceso& vp);
