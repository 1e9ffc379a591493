#include "lote/Lote.h"
#include "lote/PintorAparte.h"
#include "sistema/Senales.h"

#include <cstdlib>
#include <exception>
#include <iostream>
#include <string>
#include <unistd.h>
#include <vector>

int main(int cuantos, char** argumentos) {
    try {
        const varo::VigiaDeSenales vigia;
        const std::vector<std::string> propios{argumentos + 1, argumentos + cuantos};
        const bool enTerminal = isatty(STDERR_FILENO) == 1;
        varo::PintorAparte pintor;
        return static_cast<int>(varo::EjecutarLote(propios, {std::cout, std::cerr, enTerminal}, &pintor));
    } catch (const std::exception& error) {
        std::cerr << "error interno: " << error.what() << '\n';
        return static_cast<int>(varo::Estado::ErrorInterno);
    }
}
