#include "lote/trabajo/ClavesDePapeles.h"

#include <algorithm>
#include <array>

namespace varo {

namespace {

std::vector<std::string> ClavesDeCopa(DatosDeCopa datos) {
    switch (datos) {
    case DatosDeCopa::CuatroRadios:
        return {"N", "E", "S", "O"};
    case DatosDeCopa::DosDiametros:
        return {"NS", "EO"};
    case DatosDeCopa::RadioMedio:
        break;
    }
    return {"Radio"};
}

} // namespace

std::vector<std::string> ClavesDePapeles(DatosDeCopa datos) {
    std::vector<std::string> claves{"X", "Y"};
    for (auto& clave : ClavesDeCopa(datos)) {
        claves.push_back(std::move(clave));
    }
    claves.emplace_back("Indice");
    claves.emplace_back("Codigo");
    return claves;
}

bool EsClaveDePapel(std::string_view clave) {
    constexpr std::array todos{DatosDeCopa::CuatroRadios, DatosDeCopa::DosDiametros, DatosDeCopa::RadioMedio};
    return clave == claveDAP || std::any_of(todos.begin(), todos.end(), [&](DatosDeCopa datos) {
               const auto claves = ClavesDePapeles(datos);
               return std::find(claves.begin(), claves.end(), clave) != claves.end();
           });
}

} // namespace varo
