#include "modGeneral.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>

namespace {

bool EsDigito(int t) {
    return t >= '0' && t <= '9';
}
bool EsLetra(int t) {
    return (t >= 'a' && t <= 'z') || (t >= 'A' && t <= 'Z');
}
bool EsMinuscula(int t) {
    return t >= 'a' && t <= 'z';
}

// Codes of the 8-bit code page.
constexpr int EnieMinuscula = 241, EnieMayuscula = 209, Apostrofo = 39;
constexpr std::string_view VocalesConTilde = "\xE1\xE9\xED\xF3\xFA\xC1\xC9\xCD\xD3\xDA";

int EnMayuscula(int t) {
    return EsMinuscula(t) || (t >= 224 && t <= 254 && t != 247) ? t - 32 : t;
}

size_t Letras(std::string_view utf8) {
    size_t n = 0;
    for (const char c : utf8) n += (c & 0xC0) != 0x80;
    return n;
}

bool EsUnoDe(std::string_view validas, int t) {
    return t > 0 && t < 256 && validas.find(static_cast<char>(t)) != std::string_view::npos;
}

bool Acepta(std::string_view texto, int t, int modo, bool reemplaza) {
    switch (modo) {
    case 1:
        return EsDigito(t);
    case 2:
        return !EsDigito(t);
    case 3:
        return EsLetra(t) || EsDigito(t);
    case 4:
        return EsDigito(t) || t == '.' || (t == ',' && texto.find(',') == std::string_view::npos);
    case 5:
        return EsLetra(t) || EsDigito(t) || t == TeclaIntro;
    case 6:
    case 7:
        return EsDigito(t);
    case 8:
        return EsDigito(t) || ((t == '+' || t == '-') && texto.empty());
    case 9:
        return EsLetra(t) || EsDigito(t) || t == ' ';
    case 10:
        return EsDigito(t) || EsLetra(t) || t == EnieMinuscula || t == EnieMayuscula;
    case 11:
        return t >= 32 && t <= 254 && t != Apostrofo;
    case 13:
        return (EsLetra(t) || EsDigito(t)) && (reemplaza || Letras(texto) < 13);
    case 14:
        return !EsUnoDe(VocalesConTilde, t);
    case 15:
        return EsDigito(t);
    case 16:
        return EsUnoDe("dmyhn:/#0,><. %\\()-+", t);
    case 17:
        return EsDigito(t) || t == TeclaIntro;
    case 18:
        return t >= '1' && t <= '4';
    case 19:
        return t == ' ' || (t >= '1' && t <= '4') || t == TeclaIntro;
    default:
        return false; // 12 takes backspace alone
    }
}

// The mask separator of a mode that writes one behind the second and the fifth character, else 0.
char Mascara(int modo) {
    return modo == 6 || modo == 7 ? '/' : modo == 15 ? ':' : '\0';
}

} // namespace

int64_t ProductoDescendente(int16_t a, int16_t b) {
    int64_t producto = 1;
    for (int i = 0; i < b; ++i) producto *= a - i;
    return producto;
}

int64_t Combinaciones(int16_t n, int16_t k) {
    return ProductoDescendente(n, k) / ProductoDescendente(k, k);
}

double Fact(double x) {
    double producto = 1;
    for (; x > 1; --x) producto *= x;
    return producto;
}

int32_t COMBINAT(int16_t n, int16_t k) {
    if (n - k < 0) return 0;
    return static_cast<int32_t>(std::lround(Fact(n) / (Fact(k) * Fact(n - k))));
}

TeclaFiltrada FiltroTecla(std::string& texto, int tecla, int modo, bool reemplaza) {
    if (modo < 1 || modo > 19) return {};
    if (tecla == TeclaRetroceso || (tecla == TeclaEscape && modo != 12)) return {tecla, false};
    if (!Acepta(texto, tecla, modo, reemplaza)) return {0, true};
    if (modo == 10 || modo == 13 || modo == 14) tecla = EnMayuscula(tecla);
    if (const char separador = Mascara(modo); separador != '\0' && (texto.size() == 1 || texto.size() == 4)) {
        texto += static_cast<char>(tecla);
        texto += separador;
        return {};
    }
    return {tecla, false};
}

bool SeparadorDeCampos(std::string_view linea, std::string& separador) {
    if (linea.find(' ') != std::string_view::npos)
        separador = " ";
    else if (linea.find_first_of(",-") != std::string_view::npos)
        separador = ",";
    else
        separador.clear();
    return separador.empty();
}

std::string QuitarSeparadores(std::string_view linea) {
    std::string limpia;
    limpia.reserve(linea.size());
    for (const char c : linea)
        if (!EsUnoDe("*-,+ ", static_cast<unsigned char>(c))) limpia += c;
    return limpia;
}

std::string FormatoMiles(int64_t n, char separador) {
    std::string cifras = std::to_string(n < 0 ? -n : n);
    for (size_t i = cifras.size(); i > 3;) cifras.insert(i -= 3, 1, separador);
    return n < 0 ? "-" + cifras : cifras;
}

std::string Formato00(int n) {
    return (n >= 0 && n < 10 ? "0" : "") + std::to_string(n);
}

std::string_view Recortar(std::string_view texto) {
    const size_t desde = texto.find_first_not_of(" \t\r\n");
    if (desde == std::string_view::npos) return {};
    return texto.substr(desde, texto.find_last_not_of(" \t\r\n") - desde + 1);
}

bool LeerEntero(std::string_view texto, int32_t& n) {
    texto = Recortar(texto);
    if (texto.size() > 1 && texto.front() == '+' && EsDigito(texto[1])) texto.remove_prefix(1);
    int32_t leido = 0;
    const auto [fin, error] = std::from_chars(texto.data(), texto.data() + texto.size(), leido);
    if (error != std::errc() || fin != texto.data() + texto.size()) return false;
    n = leido;
    return true;
}

bool LeerDecimal(std::string_view texto, double& x) {
    std::string numero(Recortar(texto));
    std::replace(numero.begin(), numero.end(), ',', '.');
    const size_t signo = !numero.empty() && (numero[0] == '+' || numero[0] == '-') ? 1 : 0;
    if (!std::all_of(numero.begin() + static_cast<std::ptrdiff_t>(signo), numero.end(),
                     [](char c) { return EsDigito(c) || c == '.'; }))
        return false;
    const char* desde = numero.data() + (numero[0] == '+');
    const char* hasta = numero.data() + numero.size();
    double leido = 0;
    const auto [fin, error] = std::from_chars(desde, hasta, leido, std::chars_format::fixed);
    if (error != std::errc() || fin != hasta) return false;
    x = leido;
    return true;
}

std::string TextoDecimal(double x, char separador) {
    std::array<char, 1100> cifras; // a double has up to 309 digits before the point and 1074 behind it
    const auto [fin, error] = std::to_chars(cifras.data(), cifras.data() + cifras.size(), x, std::chars_format::fixed);
    std::string texto(cifras.data(), error == std::errc() ? fin : cifras.data());
    std::replace(texto.begin(), texto.end(), '.', separador);
    return texto;
}

double RedondearPar(double x) {
    return std::nearbyint(x);
}
