// How often each byte value occurs in rows of a table.
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>

/// Four counts take turns, because a count waits for the one before it when both are of the same value.
class CuentaBytes {
  public:
    void Contar(const uint8_t* bytes, int64_t n) {
        for (int64_t i = 0; i < n; ++i) ++cuentas_[static_cast<size_t>(i) % 4][bytes[i]];
    }
    int32_t De(size_t valor) const {
        return cuentas_[0][valor] + cuentas_[1][valor] + cuentas_[2][valor] + cuentas_[3][valor];
    }

  private:
    std::array<std::array<int32_t, 256>, 4> cuentas_{};
};
