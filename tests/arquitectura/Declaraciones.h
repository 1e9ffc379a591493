// What a source declares, found in its text: types, enumerators, functions, methods, constants and private
// members.
#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace varo::arquitectura {

struct Declaracion {
    enum class Clase { Tipo, Enumerador, Funcion, Metodo, Constante, MiembroPrivado };

    Clase clase;
    std::string nombre;
    std::string en; ///< the type around it; empty outside of all
    int linea;      ///< from 1

    friend bool operator==(const Declaracion&, const Declaracion&) = default;
};

/// In the order of the text. The names of a plain `enum` are constants. A type counts where it is defined,
/// not where it is only announced, and a function where no class stands before its name. Left out:
/// constructors, operators, friends, public members, what the bodies of functions declare (but not what their
/// types hold), and `using X = Y::X`, the short form of a type inside another one.
std::vector<Declaracion> Declaraciones(std::string_view texto);

} // namespace varo::arquitectura
