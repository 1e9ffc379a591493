// Text helpers. Texts are UTF-8; positions and lengths count characters, from 1.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>

namespace varo {

/// Number of characters.
std::size_t Longitud(std::string_view texto);

/// The first or the last `cuantos` characters (the whole text when it is shorter).
std::string Izquierda(std::string_view texto, std::size_t cuantos);
std::string Derecha(std::string_view texto, std::size_t cuantos);

/// `cuantos` characters from position `desde` on (1 is the first); past the end gives the empty text.
/// Position 0 throws 5.
std::string Medio(std::string_view texto, std::size_t desde);
std::string Medio(std::string_view texto, std::size_t desde, std::size_t cuantos);

/// The position of the first `buscado` in `texto` from position `desde` on, 0 when it is not there. An empty
/// `buscado` is found at `desde`, unless the text has no character there. Position 0 throws 5.
std::size_t Posicion(std::string_view texto, std::string_view buscado, std::size_t desde = 1);

/// Without blanks (character 32) at both ends.
std::string Recortar(std::string_view texto);

/// Every `buscado`, from left to right, becomes `nuevo`; an empty `buscado` is nowhere.
std::string Reemplazar(std::string_view texto, std::string_view buscado, std::string_view nuevo);

/// Each tab, end of a line and other control character becomes a blank.
std::string EnUnaLinea(std::string_view texto);

/// Lower case of the Latin letters, accents included: for names compared without regard to case.
std::string Minusculas(std::string_view texto);
bool MismoNombre(std::string_view a, std::string_view b);

/// The text between «», for a message: a long one is cut, and ends in "…".
std::string Cita(std::string_view texto);

/// Bytes of the 8-bit code page Windows-1252; a character outside it becomes "?".
std::string AWindows1252(std::string_view texto);
std::string DeWindows1252(std::string_view bytes);

/// Appends one Unicode scalar value as UTF-8 (an invalid one as U+FFFD).
void AnadirUtf8(std::string& texto, char32_t caracter);
/// UTF-16 as UTF-8. A half of a pair that stands alone becomes U+FFFD.
std::string DeUtf16(std::u16string_view unidades);
/// Takes the first character off a text, which is not empty. A byte that is no UTF-8 counts as U+FFFD.
char32_t SacarUtf8(std::string_view& texto);

} // namespace varo
