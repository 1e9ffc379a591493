// Numbers, dates and durations as XML spells them.
#pragma once

#include "basico/Valor.h"

#include <optional>
#include <string_view>

namespace varo {

/// Without the blanks of XML, which are tabs and ends of lines too, at both ends.
std::string_view SinBlancosDeXml(std::string_view texto);

/// A number with a decimal point; nothing where the text is none. What no 64-bit float holds is infinite.
std::optional<double> NumeroEscrito(std::string_view texto);

/// "2025-12-31", with "T10:30:00.5" behind it or not, as its serial. A zone at the end says nothing in a
/// sheet, and a second past the last is the next day. Nothing where the text is no date of the calendar.
std::optional<double> SerieDeFecha(std::string_view texto);

/// The same as a date; before the year 100 or past 9999 it is no date and becomes a number.
std::optional<Valor> FechaEscrita(std::string_view texto);

/// "10:30" or "T10:30:00.5" as a part of a day.
std::optional<double> ParteDelDia(std::string_view texto);

/// "PT26H30M0.5S", "P1DT2H" in days. Years and months are no number of days, unless there are none.
std::optional<double> DiasDeDuracion(std::string_view texto);

} // namespace varo
