#include "revision/Efectos.h"

#include "basico/Numeros.h"

#include <algorithm>
#include <cmath>
#include <cstddef>

namespace varo {

namespace {

struct IndiceSegun {
    bool pedido;
    const char* nombre;
};

Indices Pedidos(const std::vector<IndiceSegun>& indices) {
    Indices nombres;
    for (const auto& [pedido, nombre] : indices) {
        if (pedido) {
            nombres.emplace_back(nombre);
        }
    }
    return nombres;
}

constexpr const char* areasProporcionales = "las áreas ocupadas (AP)";

} // namespace

Indices IndicesDelTamano(const OpcionesPorRevisar& opciones) {
    const auto& ind = opciones.independientes;
    return Pedidos({{ind.areaBasimetrica, "el área basimétrica (AB)"},
                    {ind.medias, "las razones con la media"},
                    {ind.maximos, "las razones con el máximo"},
                    {ind.dominantes, "las razones con los árboles dominantes"},
                    {ind.sumas, "las razones con la suma"},
                    {opciones.datosDeParcela, losDatosDeParcela}});
}

Indices IndicesDeLosPies(const OpcionesPorRevisar& opciones) {
    const auto& ind = opciones.independientes;
    return Pedidos({{ind.pies, "los pies por hectárea (N)"},
                    {ind.areasProporcionales, areasProporcionales},
                    {opciones.datosDeParcela, losDatosDeParcela}});
}

Indices IndicesDeLaSuperficie(const OpcionesPorRevisar& opciones) {
    const auto& ind = opciones.independientes;
    return Pedidos({{ind.pies, "los pies por hectárea (N)"},
                    {ind.areaBasimetrica, "el área basimétrica (AB)"},
                    {ind.areaDeMayores, elAreaDeMayores},
                    {ind.dominantes, "las razones con los árboles dominantes"},
                    {ind.areasProporcionales, areasProporcionales},
                    {opciones.datosDeParcela, losDatosDeParcela}});
}

Indices FamiliasDeVecinos(const OpcionesPorRevisar& opciones) {
    return Pedidos({{opciones.ISC.activa, "ISC"},
                    {opciones.AOI.activa && !opciones.AOI.funciones.empty(), "AOI"},
                    {opciones.IDP.activa, "IDP"},
                    {opciones.DR.activa, "DR"},
                    {opciones.APA.activa, "APA"}});
}

Indices IndicesDeLaCopa(const OpcionesPorRevisar& opciones) {
    return Pedidos({{opciones.ISC.activa, "ISC"}, {opciones.datosDeParcela, losDatosDeParcela}});
}

std::string EnLista(const Indices& nombres) {
    std::string lista;
    for (std::size_t i = 0; i < nombres.size(); ++i) {
        if (i > 0) {
            const bool esElUltimo = i + 1 == nombres.size();
            lista += !esElUltimo ? ", " : nombres[i].starts_with('I') ? " e " : " y ";
        }
        lista += nombres[i];
    }
    return lista;
}

std::string DeLista(const Indices& nombres) {
    const std::string lista = EnLista(nombres);
    return lista.starts_with("el ") ? "d" + lista : "de " + lista;
}

std::string PuedenFallar(const Indices& nombres) {
    return EnLista(nombres) + (nombres.size() == 1 ? " puede" : " pueden") + " terminar en un fallo";
}

std::string NumeroDicho(double numero) {
    return std::isfinite(numero) ? ATexto(numero) : "incontables";
}

Indices Juntos(Indices unos, const Indices& otros) {
    for (const auto& otro : otros) {
        if (std::ranges::find(unos, otro) == unos.end()) {
            unos.push_back(otro);
        }
    }
    return unos;
}

} // namespace varo
