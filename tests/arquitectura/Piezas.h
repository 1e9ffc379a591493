// A source cut into words, signs and comments, as far as the rules of its names and words need it.
#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace varo::arquitectura {

struct Pieza {
    enum class Clase {
        Palabra,    ///< a name, a keyword or a number; letters beyond ASCII are part of it
        Signo,      ///< one character, but "::" and "->" in one
        Literal,    ///< a text or a character; what it holds is left out
        Comentario, ///< with its slashes; lines one below the other are one
    };
    Clase clase;
    std::string texto;
    int linea; ///< where it begins, from 1
};

/// The pieces of a text in order. Lines for the preprocessor are left out.
std::vector<Pieza> Trocear(std::string_view texto);

} // namespace varo::arquitectura
