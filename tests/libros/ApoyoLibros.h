// What the tests of zipped workbooks share.
#pragma once

#include "apoyo/EscritorXlsx.h"
#include "motor/Tabla.h"

#include <gtest/gtest.h>

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

namespace varo::prueba {

using LineasDeTablas = std::vector<std::string>;

/// The tables of a workbook as lines.
LineasDeTablas LineasDelLibro(const std::vector<std::byte>& libro);

/// Those of a workbook with one sheet of these rows.
LineasDeTablas LineasDeFilas(const std::string& filas);

/// The parts with another content for one of them, which is there.
std::vector<ParteZip> Cambiada(std::vector<ParteZip> partes, const std::string& nombre,
                               const std::string& contenido);

/// Reading the whole workbook fails with this number and a message that names it and has the text in it.
testing::AssertionResult NoSeLee(const std::vector<std::byte>& libro, int numero, std::string_view texto);

/// The workbook has this table, and it says this number and this text when it is opened; or the workbook says
/// them, where no sheet can be read.
testing::AssertionResult TieneDefecto(const std::vector<std::byte>& libro, const std::string& tabla,
                                      int numero, std::string_view texto);

/// The workbooks of the project that other programs wrote, by the end of their names.
std::vector<std::byte> BytesDeComprimido(const std::string& nombre);

} // namespace varo::prueba
