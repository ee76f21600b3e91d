// SPDX-License-Identifier: GPL-3.0-or-later
#include "weather/WeatherTexts.h"

#include "text/StringTable.h"
#include "text/WideText.h"

#include <array>
#include <cstdlib>

namespace {

constexpr wchar_t Degree = L'\u00B0';

// Whole degrees Celsius in Fahrenheit, through kelvin and back as the handheld computed it.
double toFahrenheit(std::int32_t celsius)
{
    const double kelvin = celsius + 273.15;
    return (kelvin - 273.15) * 1.8 + 32;
}

std::wstring_view withoutLeadingBlanks(std::wstring_view text)
{
    const std::size_t first = text.find_first_not_of(L" \t");
    return first == std::wstring_view::npos ? std::wstring_view() : text.substr(first);
}

bool isNoValue(std::wstring_view part)
{
    return part == L"-" || part == L"N/A";
}

// One part of a pair: "-" and "N/A" as they stand, a number in Fahrenheit.
std::wstring pairPart(std::wstring_view part)
{
    const std::wstring_view value = withoutLeadingBlanks(BeforeFirst(part, Degree));
    if (isNoValue(value))
        return std::wstring(value);
    return FormatText(L"%.0f", toFahrenheit(Wtol(std::wstring(value))));
}

// The "/" between the two parts of a pair, past a first part that reads "N/A".
std::size_t pairSeparator(std::wstring_view text)
{
    const std::wstring_view trimmed = withoutLeadingBlanks(text);
    const std::size_t skipped = text.size() - trimmed.size();
    return text.find(L'/', trimmed.starts_with(L"N/A") ? skipped + 3 : 0);
}

} // namespace

std::wstring FahrenheitText(std::wstring_view celsius)
{
    const std::wstring_view first = BeforeFirst(BeforeFirst(celsius, L':'), Degree);
    const std::wstring_view second = withoutLeadingBlanks(BeforeFirst(AfterFirst(celsius, L':'), Degree));
    const std::wstring high = isNoValue(first) ? std::wstring(first) + L"\u00B0 :"
                                               : FormatText(L"%.0f\u00B0 :", toFahrenheit(Wtol(std::wstring(first))));
    const std::wstring low = isNoValue(second) ? L" " + std::wstring(second) + L"\u00B0"
                                               : FormatText(L" %.0f\u00B0", toFahrenheit(Wtol(std::wstring(second))));
    return FormatText(L"%ls%ls", high.c_str(), low.c_str());
}

std::wstring FahrenheitPairText(std::wstring_view celsius)
{
    const std::size_t separator = pairSeparator(celsius);
    const std::wstring_view first = celsius.substr(0, separator);
    const std::wstring_view second
        = separator == std::wstring_view::npos ? std::wstring_view() : celsius.substr(separator + 1);
    return pairPart(first) + L"/" + pairPart(second);
}

std::wstring MappingIconName(std::wstring_view mapping, std::wstring_view code)
{
    if (isNoValue(code))
        return L"na";
    std::size_t start = 0;
    while (start < mapping.size()) {
        const std::size_t end = std::min(mapping.find(L';', start), mapping.size());
        const std::wstring_view entry = mapping.substr(start, end - start);
        // Empty pieces between separators are no entries, as a tokenizer skips them.
        if (!entry.empty() && entry.find(code) != std::wstring_view::npos)
            return std::wstring(BeforeFirst(entry, L'@'));
        start = end + 1;
    }
    return L"na";
}

std::wstring WeatherIconPath(std::wstring_view programPath, std::wstring_view iconFolder, std::wstring_view iconName)
{
    return std::wstring(programPath.substr(0, programPath.find(L'\\'))) + std::wstring(iconFolder)
        + std::wstring(iconName) + L".bmp";
}

std::wstring WeatherCityLine(std::wstring_view name, std::optional<ZoneOffset> offset)
{
    if (!offset)
        return std::wstring(name);
    const OffsetParts parts = SplitZoneOffset(*offset);
    const bool negative = parts.hours < 0 || parts.minutes < 0;
    std::wstring line
        = std::wstring(name) + L" GMT" + (negative ? L"-" : L"+") + std::to_wstring(std::abs(parts.hours));
    if (parts.minutes != 0)
        line += FormatText(L":%02d", std::abs(parts.minutes));
    return line;
}

std::wstring_view WeekdayLabel(int dayOfWeek)
{
    // Sunday to Saturday; Monday is string 40013.
    static constexpr std::array<int, 7> Ids {40011, 40013, 40014, 40015, 40016, 40017, 40012};
    return StringTable::Load(Ids[static_cast<std::size_t>(((dayOfWeek % 7) + 7) % 7)]);
}

int SteppedDay(int day, int delta)
{
    if (delta >= 1)
        return day + 1 == 6 ? 1 : day + 1;
    return day - 1 == 0 ? 5 : day - 1;
}
