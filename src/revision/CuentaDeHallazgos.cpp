#include "revision/CuentaDeHallazgos.h"

#include <algorithm>
#include <utility>

namespace varo {

std::string PalabraDe(Gravedad gravedad) {
    switch (gravedad) {
    case Gravedad::Fallo:
        return "fallo";
    case Gravedad::Numeros:
        return "cifras";
    case Gravedad::Mirar:
        break;
    }
    return "mirar";
}

std::string CuantosAvisos(std::size_t cuantos) {
    return cuantos == 0 ? "sin avisos" : std::to_string(cuantos) + (cuantos == 1 ? " aviso" : " avisos");
}

std::string CuentaDeHallazgos(std::span<const Hallazgo> hallazgos) {
    std::string texto = CuantosAvisos(hallazgos.size());
    const char* separador = ": ";
    for (const auto& [gravedad, nombre] :
         {std::pair{Gravedad::Fallo, " de fallo"}, std::pair{Gravedad::Numeros, " de cifras equivocadas"},
          std::pair{Gravedad::Mirar, " por mirar"}}) {
        if (const auto cuantos = std::ranges::count(hallazgos, gravedad, &Hallazgo::gravedad); cuantos > 0) {
            texto += separador + std::to_string(cuantos) + nombre;
            separador = ", ";
        }
    }
    return texto;
}

} // namespace varo
