// Writes minimal BIFF8 workbooks, so that tests can hand any table to the program as a real `.xls` file.
#pragma once

#include "basico/Valor.h"

#include <cstddef>
#include <filesystem>
#include <string>
#include <vector>

namespace varo::prueba {

struct Hoja {
    std::string nombre;
    /// Rows from the sheet's first one; a null is a cell that is not there. Dates before 1 January 1900 are
    /// refused, except times of day alone (serials below 1).
    std::vector<std::vector<Valor>> celdas;
    bool oculta = false;
    /// Every cell as a formula that holds its value as the cached result.
    bool comoFormulas = false;
};

std::vector<std::byte> EscribirXls(const std::vector<Hoja>& hojas);

/// Throws std::runtime_error when the file cannot be written.
void EscribirArchivoXls(const std::filesystem::path& archivo, const std::vector<Hoja>& hojas);

/// Appends one BIFF record; a content over 8,224 bytes throws std::length_error.
void AnadirRegistro(std::vector<std::byte>& flujo, int tipo, const std::vector<std::byte>& contenido);

/// The workbook stream alone, without its compound file.
std::vector<std::byte> EscribirFlujoXls(const std::vector<Hoja>& hojas);

} // namespace varo::prueba
