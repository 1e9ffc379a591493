// A commented job for a plot file, for a person to edit.
#pragma once

#include <filesystem>
#include <string>

namespace varo {

/// The text of a job in TOML. The roles are proposed by the headers that are usual for them; those without a
/// proposal stand as comments. A file that cannot be read throws ErrorMotor.
std::string PlantillaDeTrabajo(const std::filesystem::path& archivo);

} // namespace varo
