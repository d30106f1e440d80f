// The walk over all k-subsets of 1 to n, one number of the candidate fixed at a time.
#pragma once

/// Visits in lexicographic order every prefix of up to k - 2 numbers. `regla.Bajar(r, p, v)` adds v to
/// a prefix of r numbers that ends in p, and `regla.Cerrar(p)` deals with all candidates that begin with
/// the prefix of k - 2 numbers that stands. False as soon as `Cerrar` says so.
template <class Regla>
bool Descender(Regla& regla, int n, int k, int r = 0, int p = 0) {
    if (r == k - 2) return regla.Cerrar(p);
    for (int v = p + 1; v <= n - (k - r) + 1; ++v) {
        regla.Bajar(r, p, v);
        if (!Descender(regla, n, k, r + 1, v)) return false;
    }
    return true;
}
