// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstdint>

// Days since 1 January 1970 of a proleptic Gregorian date. A month outside 1 to 12 carries into the year,
// and a day outside its month into the months around it, as the C library's mktime does.
[[nodiscard]] std::int64_t DaysFromCivil(std::int64_t year, std::int64_t month, std::int64_t day);
