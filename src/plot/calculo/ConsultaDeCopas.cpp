#include "plot/calculo/ConsultaDeCopas.h"

namespace varo {

namespace {

/// The divisor of pi for metres, in its two uses.
struct Divisores {
    int radioMedio, elipseDeDiametros;
};

std::string Sumados(const std::vector<std::string>& campos) {
    std::string texto;
    for (const auto& campo : campos) {
        texto += (texto.empty() ? "" : "+") + campo;
    }
    return "(" + texto + ")^2";
}

/// "(N*E+E*S+S*O+O*N)"
std::string CuartosDeElipse(const std::vector<std::string>& campos) {
    std::string texto;
    for (std::size_t i = 0; i < campos.size(); ++i) {
        texto += (i == 0 ? "" : "+") + campos[i] + "*" + campos[(i + 1) % campos.size()];
    }
    return "(" + texto + ")";
}

std::string Consulta(const CopasDeConsulta& copas, int divisor, const std::string& producto,
                     const std::string& blancos = " ") {
    return "SELECT" + blancos + "(3.1415927/" + std::to_string(divisor * copas.factor * copas.factor) + ")*" +
           producto + " AS [" + CampoDeSuperficie(copas.circulos) + "]  FROM  [" + copas.tabla + "]";
}

std::string Componer(const CopasDeConsulta& copas, const Divisores& divisores,
                     const std::string& blancosDeCuatroRadios) {
    constexpr int sumaDeCuatro = 16;
    constexpr int cuartos = 4;
    const auto& campos = copas.campos;
    switch (copas.datos) {
    case DatosDeCopa::CuatroRadios:
        return copas.circulos ? Consulta(copas, sumaDeCuatro, Sumados(campos))
                              : Consulta(copas, cuartos, CuartosDeElipse(campos), blancosDeCuatroRadios);
    case DatosDeCopa::DosDiametros:
        return copas.circulos
                   ? Consulta(copas, sumaDeCuatro, Sumados(campos))
                   : Consulta(copas, divisores.elipseDeDiametros, "(" + campos[0] + "*" + campos[1] + ")");
    case DatosDeCopa::RadioMedio:
        break;
    }
    return copas.circulos ? Consulta(copas, divisores.radioMedio, "(" + campos[0] + "*" + campos[0] + ")")
                          : "";
}

} // namespace

std::string CampoDeSuperficie(bool circulos) {
    return circulos ? "SupCirc" : "SupElipse";
}

std::string ConsultaDeCopas(const CopasDeConsulta& copas) {
    return Componer(copas, {.radioMedio = 4, .elipseDeDiametros = 16}, " ");
}

std::string ConsultaDeLaCopia(const CopasDeConsulta& copas) {
    return Componer(copas, {.radioMedio = 1, .elipseDeDiametros = 4}, "  ");
}

} // namespace varo
