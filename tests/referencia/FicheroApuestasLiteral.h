// The bet file written and read record by record, as slowly and as plainly as it goes.
#pragma once

#include <array>
#include <cstdint>
#include <optional>
#include <sstream>
#include <string>
#include <vector>

/// RC4 with the key of the bet files, from the first byte of its keystream.
inline std::string CifrarLiteral(const std::string& texto) {
    const std::string clave = "FICHA7305168249";
    std::array<int, 256> s;
    for (int i = 0; i < 256; ++i) s[static_cast<size_t>(i)] = i;
    for (size_t i = 0, j = 0; i < 256; ++i) {
        j = (j + static_cast<size_t>(s[i]) + static_cast<size_t>(clave[i % clave.size()])) & 255;
        std::swap(s[i], s[j]);
    }
    std::string salida;
    size_t i = 0, j = 0;
    for (const char c : texto) {
        i = (i + 1) & 255;
        j = (j + static_cast<size_t>(s[i])) & 255;
        std::swap(s[i], s[j]);
        salida += static_cast<char>(static_cast<unsigned char>(c) ^ s[static_cast<size_t>(s[i] + s[j]) & 255]);
    }
    return salida;
}

/// A record as it stands on the disk, its content already enciphered.
inline std::string RegistroCrudo(const std::string& bytes) {
    return {std::string{static_cast<char>(bytes.size() % 256), static_cast<char>(bytes.size() / 256)} + bytes};
}

/// The record of a plain text.
inline std::string Registro(const std::string& texto) {
    return RegistroCrudo(CifrarLiteral(texto));
}

/// A file of these plain records, the first one the header and the second one the count.
inline std::string FicheroDe(const std::vector<std::string>& registros) {
    std::string bytes;
    for (const auto& registro : registros) bytes += Registro(registro);
    return bytes;
}

inline std::string DosCifras(int n) {
    return (n < 10 ? "0" : "") + std::to_string(n);
}

inline std::string EscribirLiteral(const std::string& cabecera, const std::vector<std::vector<int>>& apuestas) {
    std::string bytes = cabecera.empty() ? RegistroCrudo("0") : Registro(cabecera);
    bytes += Registro(std::to_string(apuestas.size()));
    for (const auto& a : apuestas) {
        std::string texto;
        for (size_t i = 0; i < 6; ++i) texto += (i == 0 ? "" : ",") + DosCifras(a[i]);
        bytes += Registro(texto + "+" + DosCifras(a[6]));
    }
    return bytes;
}

/// Whole unsigned numbers only, which is all that the records of the random tests hold.
inline std::optional<int> NumeroLiteral(const std::string& texto) {
    int numero = 0;
    for (const char c : texto) {
        if (c < '0' || c > '9' || numero > 1000000) return std::nullopt;
        numero = numero * 10 + (c - '0');
    }
    return texto.empty() ? std::nullopt : std::optional<int>(numero);
}

/// The bet of a plain record, nothing when it is bad.
inline std::optional<std::vector<int>> RegistroLiteral(std::string texto, bool eurodreams) {
    const bool conDigito = texto.find('+') != std::string::npos;
    for (char& c : texto)
        if (c == '+') c = ',';
    std::vector<std::string> partes;
    std::istringstream lector(texto + ",");
    for (std::string parte; std::getline(lector, parte, ',');) partes.push_back(parte);
    std::vector<int> apuesta;
    for (size_t i = 0; i < (conDigito ? 7u : 6u); ++i) {
        const auto n = i < partes.size() ? NumeroLiteral(partes[i]) : std::nullopt;
        if (!n) return std::nullopt;
        apuesta.push_back(*n);
    }
    for (size_t i = 0; i < 6; ++i) {
        if (apuesta[i] < 1 || apuesta[i] > 49) return std::nullopt;
        for (size_t j = 0; j < i; ++j)
            if (apuesta[i] == apuesta[j]) return std::nullopt;
    }
    if (!conDigito) apuesta.push_back(1);
    if (conDigito && (eurodreams ? apuesta[6] < 1 || apuesta[6] > 5 : apuesta[6] > 9)) return std::nullopt;
    return apuesta;
}

/// All the bets of a file, or nothing when anything in it is wrong.
inline std::optional<std::vector<std::vector<int>>> LeerLiteral(const std::string& bytes, bool eurodreams) {
    size_t pos = 0;
    const auto siguiente = [&]() -> std::optional<std::string> {
        if (pos + 2 > bytes.size()) return std::nullopt;
        const size_t largo = static_cast<unsigned char>(bytes[pos]) + 256u * static_cast<unsigned char>(bytes[pos + 1]);
        if (pos + 2 + largo > bytes.size()) return std::nullopt;
        const std::string registro = bytes.substr(pos + 2, largo);
        pos += 2 + largo;
        return registro;
    };
    const auto descifrar = [](const std::string& registro) {
        return registro.size() > 200 ? "0" : CifrarLiteral(registro);
    };
    if (!siguiente()) return std::nullopt;
    const auto cuenta = siguiente();
    // One too long to be deciphered is no count, rather than one of 0 bets.
    const auto n = cuenta && cuenta->size() <= 200 ? NumeroLiteral(descifrar(*cuenta)) : std::nullopt;
    if (!n) return std::nullopt;
    std::vector<std::vector<int>> apuestas;
    for (int i = 0; i < *n; ++i) {
        const auto registro = siguiente();
        const auto apuesta = registro ? RegistroLiteral(descifrar(*registro), eurodreams) : std::nullopt;
        if (!apuesta) return std::nullopt;
        apuestas.push_back(*apuesta);
    }
    return apuestas;
}
