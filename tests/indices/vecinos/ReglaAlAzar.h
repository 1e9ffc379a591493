// Rules, entries and passes at random for the families of neighbours.
#pragma once

#include "indices/vecinos/ParcelaAlAzar.h"
#include "indices/vecinos/Seleccion.h"

#include <rapidcheck.h>

#include <string>
#include <vector>

namespace varo::prueba {

using Regla = VecindadLiteral::Regla;

inline const std::vector<std::string> limites{
    "A: 12,00; k: 6,00; m: 0,50", "A: 7,00; k: 1,00; a: 1,00; b: 1,00; c: 1,00; d: 0,00; e: 0,00",
    "A: -3,00; k: 2,00; m: 0,50", "A: 4,00; k: 0,00; a: 1,00; b: 2,00; c: -1,00; d: 0,00; e: 0,00",
    "A: 40,00; k: 9,00; m: 0,50"};

inline const std::vector<std::string> pesos{"HIP, a: 0,0000; b: 1,0000; c: 1,0000; d: 0,0000; e: 0,0000",
                                            "HIP, a: 1,0000; b: 0,5000; c: 1,2000; d: 0,1000; e: 2,0000",
                                            "EXP, a: 0,0000; b: 0,2500; c: 1,0000; d: 0,0000; e: 0,0000",
                                            "EXP, a: 0,5000; b: 1,0000; c: -0,5000; d: 0,0000; e: 0,0000"};

/// Some that fault at one distance or another.
inline const std::vector<std::string> pesosConFallo{
    "HIP, a: -4,0000; b: 1,0000; c: 1,0000; d: 0,0000; e: 0,0000",
    "HIP, a: 10,5000; b: -1,0000; c: 1,0000; d: 0,0000; e: 0,0000",
    "EXP, a: 0,0000; b: -50,0000; c: 1,0000; d: 0,0000; e: 0,0000",
    "HIP, a: 0,0000; b: 1,0000; c: 300,0000; d: 0,0000; e: 0,0000", ""};

inline Regla ReglaAlAzar() {
    Regla regla;
    regla.regla = *rc::gen::element(ReglaDeSeleccion::BAF, ReglaDeSeleccion::NumeroFijo,
                                    ReglaDeSeleccion::Funcion, ReglaDeSeleccion::Distancia);
    switch (regla.regla) {
    case ReglaDeSeleccion::BAF:
        regla.p = *rc::gen::element(0.5, 1.0, 2.0, 4.0, 9.0, 25.0);
        break;
    case ReglaDeSeleccion::NumeroFijo:
        regla.p = *rc::gen::element(0.0, 1.0, 2.0, 2.5, 3.0, 7.0, 100.0);
        break;
    case ReglaDeSeleccion::Funcion:
        regla.entrada = *rc::gen::elementOf(limites);
        break;
    case ReglaDeSeleccion::Distancia:
        regla.p = *rc::gen::element(-1.0, 0.0, 0.5, 1.0, 1.5, 2.5, 4.0, 6.0, 30.0);
        break;
    }
    return regla;
}

inline void Poner(Seleccion& seleccion, const Regla& regla) {
    if (regla.regla == ReglaDeSeleccion::Funcion) {
        seleccion.poner(regla.entrada);
    } else {
        seleccion.poner(regla.p);
    }
}

/// A plot as it is and as the program holds it, for all the families.
struct ParcelaDeVecinos {
    explicit ParcelaDeVecinos(Percances percances) : parcela{ParcelaAlAzar(percances)} {}

    ParcelaLiteral parcela;
    Arboles arboles = ArbolesDe(parcela);
    Vecindad vecindad{arboles, parcela.contorno()};
    VecindadLiteral literal{parcela};
    Lado lado = *rc::gen::element(Lado::Bilateral, Lado::Unilateral);
};

} // namespace varo::prueba
