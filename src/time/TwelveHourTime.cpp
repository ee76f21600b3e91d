// SPDX-License-Identifier: GPL-3.0-or-later
#include "time/TwelveHourTime.h"

#include "text/WideText.h"

TwelveHourTime ToTwelveHour(std::wstring_view time24)
{
    const std::wstring_view hourText = time24.substr(0, 2);
    const std::int32_t hour = Wtol(std::wstring(hourText));
    std::int32_t hour12 = hour;
    if (hour == 0)
        hour12 = 12;
    else if (hour > 12 && hour < 24)
        hour12 = hour - 12;
    std::wstring time = FormatText(hour12 < 10 ? L"0%d" : L"%d", hour12);
    time += time24.substr(hourText.size());
    return {time, hour >= 12 ? L"PM" : L"AM"};
}
