// SPDX-License-Identifier: GPL-3.0-or-later
#include "weather/CivilDays.h"

// H. Hinnant's days_from_civil ("chrono-Compatible Low-Level Date Algorithms"), on 64-bit counts.
std::int64_t DaysFromCivil(std::int64_t year, std::int64_t month, std::int64_t day)
{
    const std::int64_t monthIndex = month - 1;
    const std::int64_t carried = monthIndex >= 0 ? monthIndex / 12 : (monthIndex - 11) / 12; // rounded down
    year += carried;
    month = monthIndex - 12 * carried + 1;
    year -= month <= 2 ? 1 : 0;
    const std::int64_t era = (year >= 0 ? year : year - 399) / 400;
    const std::int64_t yearOfEra = year - era * 400; // 0 to 399
    const std::int64_t dayOfYear = (153 * (month > 2 ? month - 3 : month + 9) + 2) / 5; // from 1 March
    const std::int64_t dayOfEra = yearOfEra * 365 + yearOfEra / 4 - yearOfEra / 100 + dayOfYear;
    return era * 146097 + dayOfEra - 719468 + (day - 1);
}
