// Amounts of money as text.
#pragma once

#include <string>

/// Format "0.00": two decimals, halves of the number as it is written away from zero. With `miles` the
/// format "#,##0.00", grouped by threes.
std::string FormatoImporte(double importe, char decimal, char miles = '\0');
