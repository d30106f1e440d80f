// The sweeping route of the reduction.
#pragma once

struct LogicaVentanaProceso;

/// Takes, in visiting order, every bet that no bet taken before has 6 - `RadioBits` numbers in common
/// with, in cycles. The best system goes to the window. A stop drops the cycle under way. In the mode by
/// percentage with cycles, and with an exact count, it goes on until it is stopped. Throws std::bad_alloc.
void ReducirSecuencial(LogicaVentanaProceso& vp);
