// Which indices and figures of a run read a part of the sheet, as words for a finding.
#pragma once

#include "revision/ParcelaPorRevisar.h"

#include <string>
#include <vector>

namespace varo {

using Indices = std::vector<std::string>;

inline constexpr const char* losDatosDeParcela = "los datos de parcela";
inline constexpr const char* elAreaDeMayores = "el área basimétrica de los mayores";

/// Those whose queries read the stem size of all rows of the sheet, and which a text that is no number ends.
Indices IndicesDelTamano(const OpcionesPorRevisar& opciones);
/// Those that count rows by the code column, or by the first crown column without codes.
Indices IndicesDeLosPies(const OpcionesPorRevisar& opciones);
/// Those that divide by the area of the plot.
Indices IndicesDeLaSuperficie(const OpcionesPorRevisar& opciones);
/// The families of neighbours.
Indices FamiliasDeVecinos(const OpcionesPorRevisar& opciones);
/// Those of the crowns.
Indices IndicesDeLaCopa(const OpcionesPorRevisar& opciones);

/// "AB, IDP y DR"
std::string EnLista(const Indices& nombres);
/// "del área basimétrica (AB) e IDP"
std::string DeLista(const Indices& nombres);
/// "IDP y DR pueden terminar en un fallo"
std::string PuedenFallar(const Indices& nombres);
/// A number in a sentence, also one beyond measure.
std::string NumeroDicho(double numero);
/// All of them, each one once.
Indices Juntos(Indices unos, const Indices& otros);

} // namespace varo
