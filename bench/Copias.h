// Plain copies of files and the clock, for the measures of files.
#pragma once

#include <chrono>
#include <cstdio>
#include <functional>
#include <memory>
#include <string>

#include <fcntl.h>
#include <unistd.h>

// dd if=origen of=destino bs=1M, with conv=fsync where there is a destination on the disk.
inline void Copiar(const std::string& origen, const std::string& destino) {
    const std::unique_ptr<char[]> bloque(new char[1 << 20]);
    const int entrada = open(origen.c_str(), O_RDONLY);
    const int salida = open(destino.c_str(), O_WRONLY | O_CREAT | O_TRUNC, 0666);
    for (ssize_t n; (n = read(entrada, bloque.get(), 1 << 20)) > 0;)
        if (write(salida, bloque.get(), static_cast<size_t>(n)) != n) std::perror("write");
    if (destino != "/dev/null") fsync(salida);
    close(entrada);
    close(salida);
}

inline double Segundos(const std::function<void()>& que) {
    const auto antes = std::chrono::steady_clock::now();
    que();
    return std::chrono::duration<double>(std::chrono::steady_clock::now() - antes).count();
}
