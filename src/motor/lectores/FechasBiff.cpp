#include "motor/lectores/FechasBiff.h"

#include <cstddef>

namespace varo {
namespace {

constexpr double diaInexistente = 60;
constexpr double diasHasta1904 = 1462;
constexpr double diaTrasElUltimo = 2958466; // 1 January 10000

bool EsLetraDeFecha(char letra) {
    return std::string_view{"dmyhsDMYHS"}.find(letra) != std::string_view::npos;
}

/// An elapsed time holds one letter repeated: [h], [mm], [ss].
bool EsTiempoTranscurrido(std::string_view corchete) {
    return !corchete.empty() && std::string_view{"hmsHMS"}.find(corchete[0]) != std::string_view::npos &&
           corchete.find_first_not_of(corchete[0]) == std::string_view::npos;
}

} // namespace

bool EsFormatoDeFecha(int predefinido) {
    const auto entre = [predefinido](int primero, int ultimo) {
        return predefinido >= primero && predefinido <= ultimo;
    };
    return entre(14, 22) || entre(27, 36) || entre(45, 47) || entre(50, 58);
}

bool EsFormatoDeFecha(std::string_view formato) {
    for (std::size_t i = 0; i < formato.size(); ++i) {
        switch (formato[i]) {
        case '\\': // the next character as it stands
        case '_':  // the room of the next character
        case '*':  // the next character as filling
            ++i;
            break;
        case '"':
            i = formato.find('"', i + 1);
            break;
        case '[': {
            const std::size_t comienzo = i + 1;
            i = formato.find(']', comienzo);
            if (EsTiempoTranscurrido(formato.substr(comienzo, i - comienzo))) {
                return true;
            }
            break;
        }
        default:
            if (EsLetraDeFecha(formato[i])) {
                return true;
            }
        }
        if (i >= formato.size()) {
            return false;
        }
    }
    return false;
}

Valor FechaDeSerie(double serie, bool calendario1904) {
    const bool horaSola = serie < 1;
    double dia = serie;
    if (!horaSola) {
        dia += calendario1904 ? diasHasta1904 : serie < diaInexistente ? 1 : 0;
    }
    if (!(serie >= 0 && dia < diaTrasElUltimo)) {
        return serie;
    }
    return Fecha{dia};
}

} // namespace varo
