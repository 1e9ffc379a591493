// Numbers to text and back, under the decimal comma, whatever the locale of the machine.
#pragma once

#include <string>
#include <string_view>

namespace varo {

/// Reads a whole text as a number: blanks trimmed, one leading sign, "." as group separator anywhere in the
/// whole part, one decimal comma, an exponent. Anything else, the empty text too, throws 13.
double ANumero(std::string_view texto);
// A text converts to a Valor too: these two keep the call from being ambiguous.
inline double ANumero(const std::string& texto) {
    return ANumero(std::string_view{texto});
}
inline double ANumero(const char* texto) {
    return ANumero(std::string_view{texto});
}

/// True exactly where ANumero does not throw.
bool EsNumerico(std::string_view texto);

/// The leading number of a text written with a decimal point: blanks are dropped, reading stops at the first
/// character that cannot go on, and a text without a leading number gives 0. Overflow throws 6.
double Val(std::string_view texto);

/// At most 15 significant digits, decimal comma, no blank in front; exponent form from 1E+15 up and below
/// 0,0001.
std::string ATexto(double numero);
/// The same with the 7 digits of a 32-bit float.
std::string ATexto(float numero);
std::string ATexto(int numero);

/// The shortest text that reads back to the same value, decimal comma.
std::string ATextoCorto(double numero);

/// The number formats in use: optional digits "#", required digits "0", a decimal point, up to three sections
/// (positive; negative; zero, an empty one prints nothing). The number is rounded half away from zero on its
/// 15-digit decimal form (7-digit form for a 32-bit float), and a negative that rounds to zero keeps its
/// sign.
std::string Formato(double numero, std::string_view formato);
std::string Formato(float numero, std::string_view formato);

} // namespace varo
