#include "libros/RegistrarLibros.h"
#include "lote/Lote.h"
#include "lote/PintorAparte.h"
#include "sistema/Senales.h"

#include <cstddef>
#include <exception>
#include <iostream>
#include <string>
#include <sys/ioctl.h>
#include <unistd.h>
#include <vector>

namespace {

/// The columns of the terminal where errors go; 0 where they go into a file or a pipe.
std::size_t AnchoDeTerminal() {
    constexpr std::size_t corriente = 80;
    if (isatty(STDERR_FILENO) != 1) {
        return 0;
    }
    winsize medidas{};
    const bool medido =
        ioctl(STDERR_FILENO, TIOCGWINSZ, &medidas) == 0 && medidas.ws_col > 0; // NOLINT(*-vararg)
    return medido ? medidas.ws_col : corriente;
}

} // namespace

int main(int cuantos, char** argumentos) {
    try {
        varo::RegistrarLibros();
        const varo::VigiaDeSenales vigia;
        const std::vector<std::string> propios{argumentos + 1, argumentos + cuantos};
        varo::PintorAparte pintor;
        return static_cast<int>(
            varo::EjecutarLote(propios, {std::cout, std::cerr, AnchoDeTerminal()}, &pintor));
    } catch (const std::exception& error) {
        std::cerr << "error interno: " << error.what() << '\n';
        return static_cast<int>(varo::Estado::ErrorInterno);
    }
}
