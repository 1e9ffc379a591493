// A plot without anything to say about it, to spoil one thing at a time.
#pragma once

#include "revision/Hallazgo.h"
#include "revision/ParcelaPorRevisar.h"
#include "revision/Revisar.h"

#include <algorithm>
#include <array>
#include <cstddef>
#include <string>
#include <utility>
#include <vector>

namespace varo {

inline constexpr int columnaDelNumero = 1, columnaDeX = 2, columnaDeY = 3, columnaDelTamano = 4,
                     columnaDelNorte = 5, columnaDelCodigo = 9;

inline ColumnaPorRevisar Columna(std::string cabecera, int numero, std::vector<Valor> celdas) {
    ColumnaPorRevisar columna;
    columna.cabecera = std::move(cabecera);
    columna.numero = numero;
    columna.celdas = std::move(celdas);
    return columna;
}

/// Twelve trees in about 30 by 20 m, no two in line; rows 2 to 13 of the sheet. Nothing is asked for.
inline ParcelaPorRevisar ParcelaSana() {
    const std::vector<Valor> xs{0.13,  9.41,  20.77, 30.29, 1.87,  11.03,
                                19.31, 28.59, 0.61,  10.57, 21.43, 29.71};
    const std::vector<Valor> ys{0.37, 1.19, 0.83, 1.61, 9.23, 11.47, 8.71, 10.33, 19.87, 20.51, 18.79, 20.11};
    ParcelaPorRevisar parcela;
    parcela.tabla = "Parcela1$";
    std::vector<Valor> numeros;
    std::vector<Valor> tamanos;
    std::vector<Valor> codigos;
    std::array<std::vector<Valor>, 4> radios;
    for (int arbol = 1; arbol <= 12; ++arbol) {
        parcela.filas.push_back({arbol + 1, true});
        numeros.emplace_back(static_cast<double>(arbol));
        tamanos.emplace_back(60.0 + 3 * arbol);
        codigos.emplace_back(std::string{arbol % 2 == 0 ? "Ps" : "Qi"});
        for (std::size_t lado = 0; lado < radios.size(); ++lado) {
            radios[lado].emplace_back(15.0 + arbol + 2.0 * static_cast<double>(lado));
        }
    }
    parcela.numero = Columna("Arbol", columnaDelNumero, numeros);
    parcela.x = Columna("X", columnaDeX, xs);
    parcela.y = Columna("Y", columnaDeY, ys);
    parcela.tamano = Columna("CAP", columnaDelTamano, tamanos);
    constexpr std::array<const char*, 4> lados{"RN", "RE", "RS", "RO"};
    for (std::size_t lado = 0; lado < radios.size(); ++lado) {
        parcela.copa.push_back(Columna(lados[lado], columnaDelNorte + static_cast<int>(lado), radios[lado]));
    }
    parcela.codigo = Columna("Especie", columnaDelCodigo, codigos);
    parcela.contorno = ContornoPorRevisar{{0.13, 0.61, 10.57, 29.71, 30.29, 20.77, 0.13},
                                          {0.37, 19.87, 20.51, 20.11, 1.61, 0.83, 0.37},
                                          {567.0, ""}};
    return parcela;
}

inline std::vector<Hallazgo> De(Sospecha sospecha, const ParcelaPorRevisar& parcela) {
    auto hallazgos = Revisar(parcela);
    std::erase_if(hallazgos, [sospecha](const Hallazgo& hallazgo) { return hallazgo.sospecha != sospecha; });
    return hallazgos;
}

inline bool Tiene(Sospecha sospecha, const ParcelaPorRevisar& parcela) {
    return !De(sospecha, parcela).empty();
}

/// A row below the others that has nothing but its number.
inline std::size_t AnadirFila(ParcelaPorRevisar& parcela) {
    parcela.filas.push_back({static_cast<int>(parcela.filas.size()) + 2, true});
    parcela.numero.celdas.emplace_back(static_cast<double>(parcela.filas.size()));
    const std::size_t fila = parcela.filas.size() - 1;
    for (auto* const columna : {&parcela.x, &parcela.y}) {
        columna->celdas.resize(fila + 1);
    }
    for (auto& medida : parcela.copa) {
        medida.celdas.resize(fila + 1);
    }
    if (parcela.tamano) {
        parcela.tamano->celdas.resize(fila + 1);
    }
    if (parcela.codigo) {
        parcela.codigo->celdas.resize(fila + 1);
    }
    return fila;
}

} // namespace varo
