// In-place sorts of 32-bit integers.
#pragma once

#include <cstdint>

/// Sorts a[primero..ultimo], both ends included, ascending.
void QuickSortAsc(int32_t* a, int32_t primero, int32_t ultimo);

/// The same, descending.
void QuickSortDesc(int32_t* a, int32_t primero, int32_t ultimo);
