// The results of an index run, and the table of the columns that show them.
#pragma once

#include "basico/Entero16.h"
#include "basico/MatrizDinamica.h"
#include "indices/independientes/Familias.h"
#include "indices/vecinos/Intervalo.h"

#include <array>

namespace varo {

/// One array per family, one element per tree row; the distance-independent families have a spare one at the
/// end. A family that is not active in a run keeps the array of an earlier one.
struct ResultadosIndices {
    using Indice = MatrizDinamica<double>;

    Indice IndN, IndAB, IndABj;
    Indice IndDmed, IndDmax, IndDdom;
    Indice IndBmed, IndBmax, IndBdom;
    Indice IndAPDmed, IndAPDmax, IndAPDsum;
    Indice IndAPBmed, IndAPBmax, IndAPBsum;

    // The families of neighbours: by column (ISC: variant) and tree.
    using IndicePorColumnas = TablaDinamica<double>;

    IndicePorColumnas IndISC, IndAOI, IndIDP, IndDR, IndAPA;

    // Their sweeps and counts; the file labels the columns by them.
    Intervalo AOIk, IDP, DR, DRk, APAk;
    double NumISC = 0;
    Entero16 NumFuncAOI, NumLadosAOI, NumColAOI;
    double NumParamIDP = 0;
    Entero16 NumLadosIDP, NumCentralIDP, NumColIDP;
    double NumParamDR = 0;
    Entero16 NumLadosDR, NumFuncDR, NumColDR;
    Entero16 NumColAPA;
};

/// A column of the results file: the check that asks for it, its header and the array behind it.
struct ColumnaIndependiente {
    Independiente familia;
    const char* casilla;
    const char* encabezado;
    ResultadosIndices::Indice ResultadosIndices::*indice;
};

/// In the order of the file, where the dominant trees come before the largest one.
inline constexpr std::array<ColumnaIndependiente, 15> columnasIndependientes{{
    {Independiente::N, "ChN", "Pies/ha", &ResultadosIndices::IndN},
    {Independiente::AB, "ChAB", "ABha", &ResultadosIndices::IndAB},
    {Independiente::ABj, "ChABj", "ABha(dj>di)", &ResultadosIndices::IndABj},
    {Independiente::Dmed, "ChDmed", "di/dmed", &ResultadosIndices::IndDmed},
    {Independiente::Ddom, "ChDdom", "di/ddom", &ResultadosIndices::IndDdom},
    {Independiente::Dmax, "ChDmax", "di/dmax", &ResultadosIndices::IndDmax},
    {Independiente::Bmed, "ChBmed", "bi/bmed", &ResultadosIndices::IndBmed},
    {Independiente::Bdom, "ChBdom", "bi/bdom", &ResultadosIndices::IndBdom},
    {Independiente::Bmax, "ChBmax", "bi/bmax", &ResultadosIndices::IndBmax},
    {Independiente::APDmed, "ChAPDmed", "AP(di/dmed)", &ResultadosIndices::IndAPDmed},
    {Independiente::APDmax, "ChAPDmax", "AP(di/dmax)", &ResultadosIndices::IndAPDmax},
    {Independiente::APDsum, "ChAPDsum", "AP(di/dsum)", &ResultadosIndices::IndAPDsum},
    {Independiente::APBmed, "ChAPBmed", "AP(bi/bmed)", &ResultadosIndices::IndAPBmed},
    {Independiente::APBmax, "ChAPBmax", "AP(bi/bmax)", &ResultadosIndices::IndAPBmax},
    {Independiente::APBsum, "ChAPBsum", "AP(bi/bsum)", &ResultadosIndices::IndAPBsum},
}};

} // namespace varo
