#include "modCSN.h"

#include <gtest/gtest.h>

TEST(modCSN, Extremos) {
    const std::array<uint8_t, 6> primera{1, 2, 3, 4, 5, 6};
    EXPECT_EQ(CombinacionaCSN(6, 49, primera.data()), 1);
    std::array<uint8_t, 6> ultima{};
    CSNaCombinacion(13983816, 6, 49, ultima.data());
    EXPECT_EQ(ultima, (std::array<uint8_t, 6>{44, 45, 46, 47, 48, 49}));
}
