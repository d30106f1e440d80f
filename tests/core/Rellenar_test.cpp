#include <gtest/gtest.h>

#include "Rellenar.h"

TEST(Rellenar, LlenaPorUnLadoYLoQueNoCabeQuedaEnBlanco) {
    EXPECT_EQ(Rellenar("12", 5, 'D'), "12   ");
    EXPECT_EQ(Rellenar("12", 5, 'I'), "   12");
    EXPECT_EQ(Rellenar("12345", 5, 'I'), "12345");
    EXPECT_EQ(Rellenar("123456", 5, 'D'), "     ");
    EXPECT_EQ(Rellenar("", 3, 'I'), "   ");
    EXPECT_EQ(Rellenar("Sí", 4, 'D'), "Sí  ");
}
