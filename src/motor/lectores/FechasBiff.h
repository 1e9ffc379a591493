// Dates in a sheet are numbers; what makes them dates is the number format of their cell.
#pragma once

#include "basico/Valor.h"

#include <string_view>

namespace varo {

/// True for the built-in formats that show a date or a time.
bool EsFormatoDeFecha(int predefinido);

/// True when a format shows a day, a month, a year or a time of day: one of d m y h s outside quoted text,
/// escaped characters and colours. Elapsed times such as [h] count.
bool EsFormatoDeFecha(std::string_view formato);

/// The date of a serial in a sheet. Below 1 it is a time of day alone, in both calendars. In the calendar of
/// 1900 day 1 is 1 January 1900 and day 60 the 29 February that never was: days before it move on by one, so
/// that the day is the one the sheet shows, and day 60 becomes 28 February. The calendar of 1904 begins with
/// day 0 on 1 January 1904. A serial below 0 or past the year 9999 is no date and stays a number.
Valor FechaDeSerie(double serie, bool calendario1904);

} // namespace varo
