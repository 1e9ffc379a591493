#include "motor/sql/Ejecucion.h"

#include "basico/EnLugar.h"
#include "motor/sql/Evaluador.h"
#include "motor/sql/Operando.h"
#include "motor/sql/Resumen.h"

#include <algorithm>
#include <cstddef>
#include <numeric>
#include <string>
#include <utility>
#include <vector>

namespace varo::sql {

namespace {

/// Places of rows in the table, from 0.
using Filas = std::vector<std::size_t>;

template <class Accion>
void EnCadaFila(const Tabla& tabla, const Filas& filas, Accion accion) {
    for (const auto fila : filas) {
        AlFallar(
            [&](ErrorEjecucion& error) { error.enFila(tabla.numeroDeFila(fila), tabla.lugarDeFila(fila)); },
            [&] { accion(fila); });
    }
}

Filas QueCumplen(const std::optional<ExpresionPostfija>& condicion, const Tabla& tabla) {
    Filas todas(tabla.filas.size());
    std::iota(todas.begin(), todas.end(), std::size_t{0});
    if (!condicion) {
        return todas;
    }
    Evaluador evaluador{*condicion, tabla};
    Filas elegidas;
    EnCadaFila(tabla, todas, [&](std::size_t fila) {
        if (Verdad(evaluador(tabla.filas[fila])) == true) {
            elegidas.push_back(fila);
        }
    });
    return elegidas;
}

/// The first `cuantas` rows in the order asked for, and those that tie with the last of them. Rows that tie
/// keep the order of the table.
Filas Ordenadas(const Filas& filas, const Orden& orden, const Tabla& tabla, std::size_t cuantas) {
    Evaluador evaluador{orden.clave, tabla};
    std::vector<std::pair<ClaveDeOrden, std::size_t>> claves;
    claves.reserve(filas.size());
    EnCadaFila(tabla, filas, [&](std::size_t fila) {
        claves.emplace_back(ClaveDeOrden{evaluador(tabla.filas[fila])}, fila);
    });
    std::ranges::stable_sort(claves, [&](const auto& a, const auto& b) {
        return orden.descendente ? b.first < a.first : a.first < b.first;
    });
    auto final = std::min(cuantas, claves.size());
    while (final > 0 && final < claves.size() && claves[final].first == claves[final - 1].first) {
        ++final;
    }
    Filas ordenadas;
    for (std::size_t i = 0; i < final; ++i) {
        ordenadas.push_back(claves[i].second);
    }
    return ordenadas;
}

std::vector<Campo> Columnas(const Consulta& consulta, const Tabla& tabla) {
    std::vector<Campo> columnas;
    int sinNombre = 1000;
    for (const auto& elemento : consulta.elementos) {
        if (!elemento.alias.empty()) {
            columnas.push_back({elemento.alias});
        } else if (!elemento.agregado && elemento.expresion.esCampo()) {
            columnas.push_back(tabla.Fields(elemento.expresion.campos.front()));
        } else {
            columnas.push_back({"Expr" + std::to_string(sinNombre++)});
        }
    }
    return columnas;
}

/// The rows keep their numbers.
void Proyectar(const Consulta& consulta, const Tabla& tabla, std::vector<Evaluador> evaluadores,
               Tabla& resultado) {
    const auto cuantas = consulta.primeras.value_or(tabla.filas.size());
    auto filas = QueCumplen(consulta.condicion, tabla);
    if (consulta.orden) {
        filas = Ordenadas(filas, *consulta.orden, tabla, cuantas);
    } else {
        filas.resize(std::min(cuantas, filas.size()));
    }
    EnCadaFila(tabla, filas, [&](std::size_t fila) {
        resultado.numeros.push_back(tabla.numeroDeFila(fila));
        std::vector<Valor> nueva;
        nueva.reserve(evaluadores.size());
        for (auto& evaluador : evaluadores) {
            nueva.push_back(evaluador.entero(tabla.filas[fila]));
        }
        resultado.filas.anadir(nueva);
    });
}

/// One row, or none with TOP 0.
std::vector<std::vector<Valor>> Resumidas(const Consulta& consulta, const Tabla& tabla,
                                          std::vector<Evaluador> evaluadores) {
    std::vector<Resumen> resumenes;
    for (std::size_t i = 0; i < evaluadores.size(); ++i) {
        resumenes.emplace_back(*consulta.elementos[i].agregado, std::move(evaluadores[i]));
    }
    EnCadaFila(tabla, QueCumplen(consulta.condicion, tabla), [&](std::size_t fila) {
        for (auto& resumen : resumenes) {
            resumen.anadir(tabla.filas[fila]);
        }
    });
    if (consulta.primeras == 0U) {
        return {};
    }
    std::vector<Valor> fila;
    fila.reserve(resumenes.size());
    for (const auto& resumen : resumenes) {
        fila.push_back(resumen.resultado());
    }
    return {std::move(fila)};
}

} // namespace

Tabla Ejecutar(const Consulta& consulta, const Tabla& tabla) {
    std::vector<Evaluador> evaluadores;
    for (const auto& elemento : consulta.elementos) {
        evaluadores.emplace_back(elemento.expresion, tabla);
    }
    Tabla resultado{.Name = {}, .Fields = Coleccion<Campo>{Columnas(consulta, tabla)}, .filas = {}};
    if (consulta.esResumen()) {
        resultado.filas = Resumidas(consulta, tabla, std::move(evaluadores));
    } else {
        Proyectar(consulta, tabla, std::move(evaluadores), resultado);
    }
    return resultado;
}

} // namespace varo::sql
