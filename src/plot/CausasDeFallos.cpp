#include "plot/CausasDeFallos.h"

#include "data/Hojadedatos.h"
#include "shell/Programa.h"

namespace varo {

void ExplicarCabecera(ErrorEjecucion& error, const std::string& calculo,
                      const std::vector<std::string>& campos) {
    if (error.numero() != fallo::sintaxisDeConsulta && error.numero() != fallo::nombreDesconocido) {
        return;
    }
    std::string nombres;
    for (const auto& campo : campos) {
        nombres += (nombres.empty() ? "«" : ", «") + campo + "»";
    }
    error.porque(calculo +
                 (campos.size() == 1
                      ? " por la columna " + nombres +
                            ", y su cabecera no es una palabra: cambie la cabecera a una sola palabra"
                      : " por las columnas " + nombres +
                            ", y alguna cabecera no es una palabra: cambie cada una a una sola palabra") +
                 ", sin blancos ni signos");
}

void ExplicarSuperficie(ErrorEjecucion& error, Programa& programa) {
    if (error.numero() != fallo::divisionPorCero || programa.sesion.SupPoligono != 0) {
        return;
    }
    const int arboles = programa.tocar<Hojadedatos>().MSFlexGrid1.Rows() - 1;
    error.porque("la superficie de la parcela es 0: " +
                 std::string{arboles == 1   ? "tiene un solo árbol"
                             : arboles == 2 ? "tiene solo dos árboles"
                                            : "todos los árboles están en una línea"});
}

} // namespace varo
