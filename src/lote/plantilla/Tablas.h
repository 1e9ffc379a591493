// The list of the tables of a plot file and of their fields, for a person who writes a job.
#pragma once

#include <filesystem>
#include <string>

namespace varo {

/// One block for each table: its name and number of rows, then a line for each field with the number of its
/// grid column. A file that cannot be read throws ErrorMotor.
std::string ListaDeTablas(const std::filesystem::path& archivo);

} // namespace varo
