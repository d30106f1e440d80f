#include "Sorteos.h"

uint8_t CodigoDia(std::string_view letra) {
    if (letra.size() != 1) return 0;
    const char c = letra[0] >= 'a' && letra[0] <= 'z' ? static_cast<char>(letra[0] - 'a' + 'A') : letra[0];
    const size_t lugar = LetrasDia.find(c);
    return lugar == std::string_view::npos ? uint8_t{0} : static_cast<uint8_t>(lugar + 1);
}
