// The yardstick: one reading of memory at the processor's best.
#pragma once

#include <cstdint>

/// Sum of `n` bytes.
uint64_t SumarBytes(const uint8_t* bytes, int64_t n);
