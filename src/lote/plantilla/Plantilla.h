// A commented job for a plot file, for a person to edit.
#pragma once

#include <filesystem>
#include <string>

namespace varo {

/// The text of a job in TOML. Usual headers propose the roles; a role without a proposal stands as a comment.
/// A file that cannot be read throws ErrorMotor.
std::string PlantillaDeTrabajo(const std::filesystem::path& archivo);

} // namespace varo
