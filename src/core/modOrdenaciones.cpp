#include "modOrdenaciones.h"

#include <algorithm>
#include <functional>

// Equal integers cannot be told apart, so any sort gives the one result there is.
void QuickSortAsc(int32_t* a, int32_t primero, int32_t ultimo) {
    if (primero < ultimo) std::sort(a + primero, a + ultimo + 1);
}

void QuickSortDesc(int32_t* a, int32_t primero, int32_t ultimo) {
    if (primero < ultimo) std::sort(a + primero, a + ultimo + 1, std::greater<>());
}
