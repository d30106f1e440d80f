#include "Consola.h"

#include <cstdio>

#include <unistd.h>

namespace {

constexpr const char* BorrarLinea = "\r\033[K";

std::string EnUnaLinea(const std::string& texto) {
    std::string linea;
    for (const char c : texto.substr(0, texto.find_last_not_of("\r\n") + 1)) {
        if (c == '\n')
            linea += " | ";
        else if (c != '\r')
            linea += c;
    }
    return linea;
}

} // namespace

Consola::Consola() : terminal_(isatty(STDERR_FILENO) != 0), ultimo_(Reloj::now()) {}

void Consola::Linea(const std::string& texto) {
    BorrarProgreso();
    std::fputs((EnUnaLinea(texto) + "\n").c_str(), stderr);
}

bool Consola::TocaProgreso() {
    if (!terminal_ || Reloj::now() - ultimo_ < std::chrono::milliseconds(100)) return false;
    ultimo_ = Reloj::now();
    return true;
}

void Consola::PintarProgreso(const std::string& texto) {
    hayProgreso_ = true;
    std::fputs((BorrarLinea + texto).c_str(), stderr);
    std::fflush(stderr);
}

void Consola::BorrarProgreso() {
    if (hayProgreso_) std::fputs(BorrarLinea, stderr);
    hayProgreso_ = false;
}
