// The text of the results file: one header and one row per tree, cells separated by tabs.
#pragma once

#include <functional>
#include <string>

namespace varo {

class Programa;

/// Reads the options as they stand now: a check that was turned on after the run asks for an array that is
/// not there, and that cell is passed over.
class TextoResultados {
public:
    /// Runs one statement; the writer passes over the ones that fail.
    using Sentencia = std::function<void(const std::function<void()>&)>;

    explicit TextoResultados(Programa& programa) : programa_{programa} {}

    /// Counts the sweeps over lists from 1 for good: see ContarDesdeUno.
    void componerCabecera(std::string& cabecera, const Sentencia& sentencia) const;
    /// Each row ends with a CR.
    void componerFilas(std::string& filas, const Sentencia& sentencia) const;

private:
    Programa& programa_;
};

} // namespace varo
