// SPDX-License-Identifier: GPL-3.0-or-later
#include "time/MapTwelveHour.h"

#include "text/WideText.h"

namespace {

struct Rewrite
{
    int hour;
    const wchar_t* mark;
};

Rewrite rewrite(int hour)
{
    if (hour == 12)
        return {12, L"PM"};
    if (hour == 0)
        return {12, L"AM"};
    if (hour > 12)
        return {hour - 12, L" PM"};
    return {hour, L" AM"};
}

} // namespace

std::wstring MapTwelveHour(std::wstring_view time24)
{
    const std::wstring text(time24);
    const Rewrite twelve = rewrite(Wtol(text.substr(0, 2)));
    const std::wstring rest = text.size() > 2 ? text.substr(2) : std::wstring();
    return FormatText(twelve.hour < 10 ? L"0%d" : L"%d", twelve.hour) + rest + twelve.mark;
}
