// Small helpers shared by everybody: counting, the key filter, line helpers, number formats.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

/// a (a-1) (a-2) ... of b factors; 1 for b = 0.
int64_t ProductoDescendente(int16_t a, int16_t b);

/// C(n,k); 0 for n < k, because the product on top meets 0.
int64_t Combinaciones(int16_t n, int16_t k);

/// x! as a double, 1 for x = 0.
double Fact(double x);

/// C(n,k) through factorials rounded to 32 bits; 0 for n < k.
int32_t COMBINAT(int16_t n, int16_t k);

/// What the key filter makes of a key press.
struct TeclaFiltrada {
    int Tecla = 0;       ///< the key to go on with, perhaps turned into a capital; 0 = swallowed
    bool Pitido = false; ///< the refusal is to be heard
};

inline constexpr int TeclaRetroceso = 8, TeclaIntro = 13, TeclaEscape = 27;

/// The key filter of every text field. `tecla` is a code of the 8-bit code page, `modo` 1 to 19 says
/// what may be typed (1 digits, 4 decimals; the rest in the table of modGeneral.cpp). The date and
/// time masks append the key and its separator to `texto` themselves and swallow the key.
/// `reemplaza`: a selection is about to be replaced, so a length limit does not hold.
TeclaFiltrada FiltroTecla(std::string& texto, int tecla, int modo, bool reemplaza = false);

/// The separator of a line of a text file: " " if it holds a blank, else "," if it holds "," or "-",
/// else "". True when there is none at all (fields of fixed width).
bool SeparadorDeCampos(std::string_view linea, std::string& separador);

/// The line without any "*", "-", ",", "+" and " ".
std::string QuitarSeparadores(std::string_view linea);

/// The integer in format "#,#,0": grouped by threes.
std::string FormatoMiles(int64_t n, char separador);

/// A number with at least two digits, as "00" does.
std::string Formato00(int n);

/// The text without blanks at both ends.
std::string_view Recortar(std::string_view texto);

/// Reads a whole decimal integer, an optional sign before it. False when the text is anything else
/// or does not fit 32 bits; then `n` is left as it was.
bool LeerEntero(std::string_view texto, int32_t& n);

/// Reads a decimal number without exponent, an optional sign before it, with "." or "," before the
/// decimals. False when the text is anything else or no finite double; then `x` is left as it was.
bool LeerDecimal(std::string_view texto, double& x);

/// A number in its shortest form without exponent: "12,6", "11".
std::string TextoDecimal(double x, char separador);

/// Rounds to an integer, halves to the even neighbour.
double RedondearPar(double x);
