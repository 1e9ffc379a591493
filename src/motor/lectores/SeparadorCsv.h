// What parts the cells of a text: tabulator, semicolon or comma.
#pragma once

#include <cstddef>
#include <optional>
#include <string_view>
#include <vector>

namespace varo {

/// How many cells there are as far as the last one that holds something.
std::size_t CeldasConAlgo(const std::vector<std::string_view>& celdas);

/// The separator with which most of the first rows have cells enough for the names of the first one and no
/// more; of two as good, the one with the larger share of numbers. Nothing when none parts the first row.
std::optional<char> SeparadorDe(std::string_view texto);

} // namespace varo
