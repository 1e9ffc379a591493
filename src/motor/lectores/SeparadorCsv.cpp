#include "motor/lectores/SeparadorCsv.h"

#include "motor/lectores/FilasCsv.h"
#include "motor/lectores/NumerosCsv.h"

#include <algorithm>
#include <iterator>
#include <utility>

namespace varo {
namespace {

struct Acierto {
    double filas = 0;   ///< share of the rows that have the cells of the first one
    double numeros = 0; ///< in a row

    [[nodiscard]] bool mejorQue(const Acierto& otro) const {
        constexpr double casiTodas = 0.9; // one row of many may be wrong
        return filas >= casiTodas && otro.filas >= casiTodas
                   ? std::pair{numeros, filas} > std::pair{otro.numeros, otro.filas}
                   : std::pair{filas, numeros} > std::pair{otro.filas, otro.numeros};
    }
};

/// Nothing when it does not part the first row.
std::optional<Acierto> Probar(std::string_view texto, char separador) {
    constexpr double filasMiradas = 1000;
    FilasCsv filas{texto, separador};
    std::size_t cabecera = 0;
    double miradas = 0;
    double buenas = 0;
    double numeros = 0;
    while (miradas < filasMiradas && filas.siguiente()) {
        const auto llenas = CeldasConAlgo(filas.celdas());
        if (llenas == 0) {
            continue;
        }
        if (cabecera == 0) {
            cabecera = filas.celdas().size();
            continue;
        }
        ++miradas;
        buenas += filas.celdas().size() > 1 && llenas <= cabecera ? 1 : 0;
        numeros += static_cast<double>(std::ranges::count_if(filas.celdas(), PareceNumeroCsv));
    }
    if (cabecera < 2) {
        return std::nullopt;
    }
    return miradas == 0 ? Acierto{} : Acierto{buenas / miradas, numeros / miradas};
}

} // namespace

std::size_t CeldasConAlgo(const std::vector<std::string_view>& celdas) {
    const auto ultima = std::find_if(celdas.rbegin(), celdas.rend(), [](std::string_view celda) {
        return !SinBlancosEnLosExtremos(celda).empty();
    });
    return static_cast<std::size_t>(std::distance(ultima, celdas.rend()));
}

std::optional<char> SeparadorDe(std::string_view texto) {
    std::optional<char> mejor;
    std::optional<Acierto> suyo;
    for (const char separador : {'\t', ';', ','}) {
        const auto acierto = Probar(texto, separador);
        if (acierto && (!suyo || acierto->mejorQue(*suyo))) {
            mejor = separador;
            suyo = acierto;
        }
    }
    return mejor;
}

} // namespace varo
