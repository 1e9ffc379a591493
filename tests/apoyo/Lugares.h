// Where the tests find their files and the programs that they start. One source knows these places, so that
// no other has to be compiled again in another checkout.
#pragma once

#include <filesystem>

namespace varo::prueba {

/// The root of the project.
std::filesystem::path Proyecto();
/// The folder of the tests, with its plots and sample files.
std::filesystem::path DatosDePrueba();
/// Further plots and samples beside the project. A test that reads them skips itself where they are not.
std::filesystem::path AlLado();

/// The programs of this build.
std::filesystem::path ProgramaLote();
std::filesystem::path ProgramaEscritorio();

} // namespace varo::prueba
