// Random plots for the families of neighbours: trees on a coarse net (ties, trees in one place, trees in line
// with a side) or anywhere, some without a size, some on the vertices of the boundary, some with wrong cells.
#pragma once

#include "data/Papeles.h"
#include "indices/vecinos/VecindadLiteral.h"

#include <rapidcheck.h>

namespace varo::prueba {

enum class Percances { Ninguno, Posibles };

/// A text for a measure: mostly one of a few, so that there are ties.
inline std::string MedidaAlAzar(const std::vector<std::string>& corrientes,
                                const std::vector<std::string>& raras, Percances percances) {
    const bool rara = percances == Percances::Posibles && *rc::gen::inRange(0, 60) == 0;
    return rara ? *rc::gen::elementOf(raras) : *rc::gen::elementOf(corrientes);
}

inline ParcelaLiteral ParcelaAlAzar(Percances percances) {
    ParcelaLiteral parcela;
    // Sides in no special direction, one of them vertical; the trees stand from 0 to 20.
    parcela.contornoX = {-2, 6, 22, 22, 3, -2};
    parcela.contornoY = {9, 23, 20, -1, -3, 9};
    const bool enRed = *rc::gen::arbitrary<bool>();
    const int arboles = *rc::gen::inRange(1, 70);
    const auto coordenada = [&] {
        return enRed ? ATexto(*rc::gen::inRange(0, 41) * 0.5) : ATexto(*rc::gen::inRange(0, 2000001) * 1E-5);
    };
    for (int i = 0; i < arboles; ++i) {
        const bool enVertice = *rc::gen::inRange(0, 12) == 0;
        const std::size_t k = *rc::gen::inRange<std::size_t>(0, 5);
        const bool rara = percances == Percances::Posibles && *rc::gen::inRange(0, 150) == 0;
        parcela.x.push_back(rara ? "x" : enVertice ? ATexto(parcela.contornoX[k]) : coordenada());
        parcela.y.push_back(enVertice ? ATexto(parcela.contornoY[k]) : coordenada());
        parcela.tamano.push_back(MedidaAlAzar({"31", "31", "62,5", "12,25", "94", "47,1", "8", ""},
                                              {"0", "0,0", "grande", "-12", "1E+308", "1E+120"}, percances));
    }
    parcela.unidades.circunferencia = *rc::gen::arbitrary<bool>();
    parcela.datosDeCopa =
        *rc::gen::element(DatosDeCopa::CuatroRadios, DatosDeCopa::DosDiametros, DatosDeCopa::RadioMedio);
    parcela.factorRadios = 10;
    for (int medida = 0; medida < MedidasDeCopa(parcela.datosDeCopa); ++medida) {
        std::vector<std::string> celdas;
        for (int i = 0; i < arboles; ++i) {
            celdas.push_back(
                MedidaAlAzar({"10", "15", "20", "7,5", "31,3", "0"}, {"", "copa", "-4"}, percances));
        }
        parcela.copa.push_back(celdas);
    }
    return parcela;
}

/// Checks that a column of the program equals that of the literal procedure, bit for bit, or ends in the same
/// fault at the same pair of trees.
inline void ExigirIgual(const Columna& literal, const std::function<std::vector<double>()>& calcular) {
    std::vector<double> valores;
    int fallo = 0;
    std::string lugar;
    try {
        valores = calcular();
    } catch (const ErrorEjecucion& error) {
        fallo = error.numero();
        lugar = error.lugar();
    }
    RC_ASSERT(fallo == literal.fallo);
    if (fallo == 0) {
        RC_ASSERT(valores == literal.valores);
        return;
    }
    const std::string sujeto = "fila " + std::to_string(literal.sujeto + 1) + ",";
    if (lugar.find("columna «") != std::string::npos) { // a wrong cell: its row tells what is to be mended
        RC_ASSERT(lugar.starts_with("al calcular la " + sujeto) || lugar.starts_with(sujeto));
        return;
    }
    const std::string vecino =
        literal.vecino ? " con el vecino de la fila " + std::to_string(*literal.vecino + 1) + "," : "";
    RC_ASSERT((lugar + ",").starts_with(sujeto + vecino));
}

} // namespace varo::prueba
