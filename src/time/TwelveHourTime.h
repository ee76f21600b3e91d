// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <string>
#include <string_view>

// A clock's time text in twelve-hour form: the hour rewritten in place and the "AM"/"PM" mark apart,
// since the screen draws the mark separately beside the time.
struct TwelveHourTime
{
    std::wstring time;
    std::wstring suffix;

    // The time, a blank and the mark, as text output writes it.
    std::wstring withSuffix() const { return time + L" " + suffix; }
};

// Rewrites the hour held in the first two characters of a 24-hour text ("HH:MM" or "HH:MM:SS"):
// 0 reads 12 AM, 12 reads 12 PM, 13 to 23 lose 12 and read PM, 1 to 11 read AM. The new hour is
// zero-padded below 10. An hour outside 0 to 23 keeps its number and reads AM below 12, PM above.
TwelveHourTime ToTwelveHour(std::wstring_view time24);
