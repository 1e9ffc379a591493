// What the tests of the readers share: files as bytes and tables as lines that tell values and their types.
#pragma once

#include "motor/Tabla.h"

#include <cstddef>
#include <filesystem>
#include <random>
#include <span>
#include <string>
#include <vector>

namespace varo::prueba {

/// Throws std::runtime_error when the file is not there.
std::vector<std::byte> BytesDe(const std::filesystem::path& archivo);

/// The workbook of the project with that name.
std::vector<std::byte> BytesDeLibro(const std::string& nombre);

/// All of them, in order of name.
std::vector<std::filesystem::path> LibrosPropios();

/// The files of a folder of ../shared/muestras in order of name; none when it is not there.
std::vector<std::filesystem::path> Muestras(const std::string& carpeta);

/// 'text', 1.5, #43831.5 (a date), V or F, and - for null. Numbers in the shortest form that reads back.
std::string Escrito(const Valor& valor);

/// One line with the table's name, one with its fields' names and one for each row, the values parted by " |
/// ".
std::vector<std::string> Lineas(const Tabla& tabla);

/// The lines of all of them.
std::vector<std::string> Lineas(const std::vector<Tabla>& tablas);

/// Some bytes changed: to anything, to an extreme, or by one bit.
std::vector<std::byte> Mutado(std::vector<std::byte> archivo, std::mt19937& azar);

/// Reads a whole workbook or faults; a table that is not whole makes the test fail. True when it was read.
bool TablasEnterasOError(std::span<const std::byte> bytes);

/// The same for a text of cells.
bool TextoEnteroOError(std::span<const std::byte> bytes);

/// How many tables of a database were read, and how many tell a defect. A fault of the whole file is neither.
struct TablasDeBase {
    std::size_t enteras = 0;
    std::size_t conDefecto = 0;
};

/// Reads a database; a table that is neither whole nor told to be spoilt makes the test fail.
TablasDeBase BaseEnteraOError(std::span<const std::byte> bytes);

} // namespace varo::prueba
