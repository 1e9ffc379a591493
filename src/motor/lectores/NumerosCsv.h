// Numbers as a text file writes them.
#pragma once

#include <cstddef>
#include <optional>
#include <string_view>

namespace varo {

/// The decimal mark of a column whose points and commas are no marks: such cells stay texts.
constexpr char marcaNinguna = '\0';

/// The cell without the blanks at its ends, which programs put there to line their columns up.
std::string_view SinBlancosEnLosExtremos(std::string_view celda);

/// The number that a cell spells with this decimal mark, '.' or ','; the other mark may part the thousands. A
/// sign of a currency may stand beside it, and "12,5 %" is 0.125. Nothing when it spells none, one that is
/// too large, or somebody's code: a whole number of more digits than a number holds, or with a zero in front.
std::optional<double> LeerNumeroCsv(std::string_view celda, char marca);

/// True when it is a number with either mark.
bool PareceNumeroCsv(std::string_view celda);

/// What a cell says about the decimal mark of its column.
struct HuellaDeMarca {
    enum class Fuerza {
        Ninguna,  ///< no number
        SinMarca, ///< a number without points and commas
        Decimal,  ///< a number with this mark alone, which parts its decimals: 12.5
        Grupos,   ///< a number with this mark alone, because the other one parts its thousands: 1,234,567
        Dudosa    ///< a number with either: 1.234, where this mark stands
    };
    Fuerza fuerza = Fuerza::Ninguna;
    std::size_t marca = 0; ///< 0 the point, 1 the comma
    bool conGrupos = false;
    std::string_view enteras = {};
    std::string_view decimales = {};
};

/// What it tells of the text lies in the cell.
HuellaDeMarca HuellaDe(std::string_view celda);

} // namespace varo
