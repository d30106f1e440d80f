#include "Rangos.h"

#include <cassert>

int32_t Combinar(int n, int k) {
    if (k < 0 || n < k) return 0;
    int64_t c = 1;
    for (int i = 1; i <= k; ++i) c = c * (n - k + i) / i;
    return static_cast<int32_t>(c);
}

// The place from the end is the number of subsets that come after, which is a sum over the elements;
// the count of all subsets goes into the first element's part.
Rangos::Rangos(int n, int k) : k_(k), cuantos_(Combinar(n, k)), parte_{} {
    assert(n >= 0 && n < 50 && k >= 1 && k <= 6);
    for (int j = 0; j < k; ++j)
        for (int p = 1; p <= n; ++p) parte_[j][p] = (j == 0 ? cuantos_ - 1 : 0) - Combinar(n - p, k - j);
}
