// What the harnesses share.
#pragma once

#include <cstddef>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <string>
#include <string_view>

#include <sys/mman.h>
#include <unistd.h>

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* datos, size_t largo);

/// A property of the program that no input may break.
inline void Exigir(bool cierto, const char* que) {
    if (cierto) return;
    std::fprintf(stderr, "broken: %s\n", que);
    std::abort();
}

/// A file in memory with a path that the program can open.
class FicheroEnMemoria {
  public:
    explicit FicheroEnMemoria(std::string_view bytes) : descriptor_(memfd_create("fuzz", 0)) {
        Exigir(write(descriptor_, bytes.data(), bytes.size()) == static_cast<ssize_t>(bytes.size()), "file in memory");
    }
    ~FicheroEnMemoria() { close(descriptor_); }
    FicheroEnMemoria(const FicheroEnMemoria&) = delete;
    FicheroEnMemoria& operator=(const FicheroEnMemoria&) = delete;

    std::string Ruta() const { return "/proc/self/fd/" + std::to_string(descriptor_); }

  private:
    int descriptor_;
};
