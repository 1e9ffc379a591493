// The memory that reading a plot file may cost.
#pragma once

#include "motor/Tabla.h"

#include <gtest/gtest.h>

#include <cstddef>
#include <functional>
#include <string>
#include <string_view>
#include <vector>

namespace varo::prueba {

/// Reads a file of this size, which may fault, and says whether file and reader together have held at most
/// ten times the size and 64 MB.
testing::AssertionResult CabeEnLaMemoria(std::size_t tamano, const std::function<std::vector<Tabla>()>& leer);

/// The piece so many times.
std::string Repetido(std::string_view trozo, std::size_t veces);

} // namespace varo::prueba
