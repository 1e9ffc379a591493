// A plot and its options as plain values: all that the revision looks at.
#pragma once

#include "basico/Valor.h"

#include <optional>
#include <string>
#include <vector>

namespace varo {

/// A column of the sheet that plays a role.
struct ColumnaPorRevisar {
    std::string cabecera;
    int numero = 0;            ///< by which its owner knows it, from 1; findings hand it back
    bool unaPalabra = true;    ///< whether the header can stand in a query without brackets
    std::vector<Valor> celdas; ///< one for each row, as the data engine gives it
};

/// A row of the sheet.
struct FilaPorRevisar {
    int numero = 0;        ///< as the spreadsheet numbers it
    bool enRejilla = true; ///< whether it reached the grid
};

/// The sweep of a parameter, as it was typed.
struct BarridoPorRevisar {
    std::string campo; ///< where its first value is typed: "TxtBAF1(0)"
    std::string desde = "0", hasta = "0", paso = "0";

    bool operator==(const BarridoPorRevisar&) const = default;
};

enum class ReglaDeCompetidores { BAF, NumeroFijo, Distancia, Funcion };

/// The forms of a family of neighbours that were ticked.
struct LadosPorRevisar {
    bool bilateral = true;
    bool unilateral = false;

    bool operator==(const LadosPorRevisar&) const = default;
};

struct FamiliaISC {
    bool activa = false;
    LadosPorRevisar lados;

    bool operator==(const FamiliaISC&) const = default;
};

struct FamiliaAOI {
    bool activa = false;
    LadosPorRevisar lados;
    BarridoPorRevisar k;
    std::vector<std::string> funciones; ///< the lines of its list of radii

    bool operator==(const FamiliaAOI&) const = default;
};

struct FamiliaIDP {
    bool activa = false;
    LadosPorRevisar lados;
    bool conArbolCentral = true;
    bool sinArbolCentral = false;
    ReglaDeCompetidores regla = ReglaDeCompetidores::BAF;
    BarridoPorRevisar parametro;      ///< not with functions
    std::vector<std::string> limites; ///< the lines of its list of limit functions

    bool operator==(const FamiliaIDP&) const = default;
};

struct FamiliaDR {
    bool activa = false;
    LadosPorRevisar lados;
    BarridoPorRevisar k;
    std::vector<std::string> distancias; ///< the lines of its list of distance functions
    ReglaDeCompetidores regla = ReglaDeCompetidores::BAF;
    BarridoPorRevisar parametro;
    std::vector<std::string> limites;

    bool operator==(const FamiliaDR&) const = default;
};

struct FamiliaAPA {
    bool activa = false;
    BarridoPorRevisar k;

    bool operator==(const FamiliaAPA&) const = default;
};

/// The families that look at no neighbour, by the figure of the whole sheet that they need.
struct IndependientesPorRevisar {
    bool pies = false;                ///< stems per hectare
    bool areaBasimetrica = false;     ///< basal area per hectare
    bool areaDeMayores = false;       ///< basal area of the larger trees
    bool medias = false;              ///< any ratio to a mean
    bool maximos = false;             ///< any ratio to a maximum
    bool dominantes = false;          ///< any ratio to the dominant trees
    bool sumas = false;               ///< any ratio to a sum
    bool areasProporcionales = false; ///< any area proportional to size, which needs the stems per hectare

    bool operator==(const IndependientesPorRevisar&) const = default;
};

/// What a run is asked for, and how it is to read the sheet.
struct OpcionesPorRevisar {
    int radiosPorMetro = 10;      ///< unit of the crown measures: 1, 10 or 100 of them in a metre
    double cmPorTamano = 1;       ///< unit of the stem size
    bool circunferencia = true;   ///< the stem size is a girth
    bool copasCirculares = false; ///< circles, not ellipses
    bool datosDeParcela = false;  ///< the plot data are asked for too
    IndependientesPorRevisar independientes;
    FamiliaISC ISC;
    FamiliaAOI AOI;
    FamiliaIDP IDP;
    FamiliaDR DR;
    FamiliaAPA APA;

    bool operator==(const OpcionesPorRevisar&) const = default;
};

/// A figure that the caller has worked out, or the fault that it ended in.
struct CifraPorRevisar {
    double valor = 0;
    std::string fallo; ///< the fault in words; empty when there is a value
};

struct PiesPorRevisar {
    std::string codigo; ///< empty for all trees together
    CifraPorRevisar porHectarea;
};

/// The boundary of the plot, once somebody has built it.
struct ContornoPorRevisar {
    std::vector<double> x, y;   ///< m, in the order of the walk; the last vertex repeats the first
    CifraPorRevisar superficie; ///< m2
};

struct ParcelaPorRevisar {
    std::string tabla;
    std::vector<FilaPorRevisar> filas;
    ColumnaPorRevisar x, y;                  ///< m
    std::vector<ColumnaPorRevisar> copa;     ///< four radii (N, E, S, W), two diameters or the mean radius
    ColumnaPorRevisar numero;                ///< the number of the tree
    std::optional<ColumnaPorRevisar> codigo; ///< while the option asks for one
    std::optional<ColumnaPorRevisar> tamano; ///< of the stem; nothing when none was chosen
    OpcionesPorRevisar opciones;
    std::optional<ContornoPorRevisar> contorno; ///< unknown before it is built
    std::vector<PiesPorRevisar> pies;           ///< empty where nobody has counted
    /// Whether the trees stand in the sheet as in the grid once the boundary is built: ordered by the first
    /// field, and no other row between them.
    bool enOrden = true;
};

} // namespace varo
