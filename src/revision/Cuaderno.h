// Where the checks write down what they find: so many findings of a kind, and one more for the rest.
#pragma once

#include "revision/Hallazgo.h"

#include <cstddef>
#include <map>
#include <string>
#include <tuple>
#include <utility>
#include <vector>

namespace varo {

class Cuaderno {
public:
    /// `porClase` findings of a kind in a column are kept; the others are only counted.
    explicit Cuaderno(std::size_t porClase) : porClase_{porClase} {}

    /// A finding that stands for itself.
    void anotar(Hallazgo hallazgo) { hallazgos_.push_back(std::move(hallazgo)); }

    /// A finding about a row of the sheet, of which there may be many: `hacer` makes it where there is room.
    /// `columna` is any number that tells findings with another effect apart.
    template <class Hacer>
    void anotarFila(Gravedad gravedad, Sospecha sospecha, int columna, int fila, const Hacer& hacer) {
        Cuenta& cuenta = cuentas_[{gravedad, sospecha, columna}];
        if (cuenta.anotados < porClase_) {
            ++cuenta.anotados;
            cuenta.ultimo = hallazgos_.size();
            hallazgos_.push_back(hacer());
        } else {
            cuenta.callados.push_back(fila);
        }
    }

    /// All findings, the gravest first and then by row.
    [[nodiscard]] std::vector<Hallazgo> cerrar() &&;

private:
    struct Cuenta {
        std::size_t anotados = 0;
        std::size_t ultimo = 0;    ///< the last one of the kind
        std::vector<int> callados; ///< the rows of the others
    };

    std::size_t porClase_;
    std::vector<Hallazgo> hallazgos_;
    std::map<std::tuple<Gravedad, Sospecha, int>, Cuenta> cuentas_;
};

} // namespace varo
