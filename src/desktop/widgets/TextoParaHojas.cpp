#include "desktop/widgets/TextoParaHojas.h"

#include "basico/Texto.h"

namespace varo {

namespace {

/// A tab or a line end would break the cell, and spreadsheets take a quote at its start for the first of a
/// pair: such a cell stands between quotes, and its own are doubled.
std::string Celda(const std::string& texto) {
    const bool seRompe = texto.find_first_of("\t\r\n") != std::string::npos || texto.starts_with('"');
    return seRompe ? '"' + Reemplazar(texto, "\"", "\"\"") + '"' : texto;
}

std::string Columnas(const Rejilla& rejilla, const std::vector<int>& columnas) {
    std::string texto;
    for (int fila = 0; fila < rejilla.Rows(); ++fila) {
        std::vector<std::string> celdas;
        celdas.reserve(columnas.size());
        for (const int columna : columnas) {
            celdas.push_back(rejilla.TextMatrix(fila, columna));
        }
        texto += LineaParaHojas(celdas) + '\n';
    }
    return texto;
}

} // namespace

std::string LineaParaHojas(const std::vector<std::string>& celdas) {
    std::string linea;
    const char* separador = "";
    for (const std::string& celda : celdas) {
        linea += separador + Celda(celda);
        separador = "\t";
    }
    return linea;
}

std::string ColumnaParaHojas(const Rejilla& rejilla, int columna) {
    return Columnas(rejilla, {columna});
}

std::string RejillaParaHojas(const Rejilla& rejilla) {
    std::vector<int> columnas;
    for (int columna = 0; columna < rejilla.Cols(); ++columna) {
        if (rejilla.ColWidth(columna) != 0) {
            columnas.push_back(columna);
        }
    }
    return Columnas(rejilla, columnas);
}

} // namespace varo
