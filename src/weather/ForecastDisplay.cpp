// SPDX-License-Identifier: GPL-3.0-or-later
#include "weather/ForecastDisplay.h"

#include "store/WeatherFavourites.h"
#include "text/WideText.h"
#include "weather/CivilDays.h"
#include "weather/ForecastTable.h"
#include "weather/WeatherTexts.h"

namespace {

// `length` characters from `start`, as far as the text reaches.
std::wstring characters(std::wstring_view text, std::size_t start, std::size_t length)
{
    return start < text.size() ? std::wstring(text.substr(start, length)) : std::wstring();
}

ForecastDayTexts dayTexts(const ForecastTable& table, int block, bool notFromToday, const ForecastSources& sources)
{
    const auto field = [&](int index) -> const std::wstring& { return table.field(block, index); };
    ForecastDayTexts day;
    day.iconPath = WeatherIconPath(sources.programPath, sources.iconFolder, MappingIconName(sources.mapping, field(0)));
    day.condition = field(1);
    day.wind = field(2) + L", " + field(3);
    day.temperatures = field(5) + L"\u00B0 : " + field(4) + L"\u00B0";
    day.precipitation = field(6);
    day.sunrise = field(7);
    day.realFeel = field(8);
    day.sunset = field(9);
    if (notFromToday) {
        day.date = field(10);
        day.issue = field(11).empty() ? std::wstring() : L"Forecast of " + field(11);
    }
    if (sources.temperatureUnit == 0) {
        day.temperatures = FahrenheitText(day.temperatures);
        day.realFeel = FahrenheitPairText(day.realFeel);
    }
    return day;
}

} // namespace

ForecastDisplay ForecastDisplay::compute(std::wstring_view forecastText, std::wstring_view updateKey,
    const SystemTime& today, const ForecastSources& sources)
{
    ForecastDisplay display;
    display.m_dayDifference = ForecastDayDifference(updateKey, today);
    const ForecastTable table = ForecastTable::split(forecastText);
    const std::int64_t first = display.firstBlock();
    for (int k = 0; k < Days; ++k) {
        const std::int64_t block = first + k;
        // A block before block 0 (an update date more than four days ahead) is no day either.
        if (block < 0 || block >= ForecastTable::Blocks || display.m_dayDifference - k < 0)
            continue;
        display.m_days[static_cast<std::size_t>(k)] = dayTexts(table, static_cast<int>(block), first != 0, sources);
    }
    return display;
}

std::optional<ForecastDisplay> ForecastDisplay::ofFavourite(
    WeatherFavourites& favourites, std::wstring_view name, const SystemTime& today, const ForecastSources& sources)
{
    const std::uint16_t count = favourites.count();
    for (std::uint32_t i = 0; i < count; ++i) {
        if (favourites.getName(i) != name)
            continue;
        return compute(favourites.getForecastText(i), favourites.getLastUpdate(i), today, sources);
    }
    return std::nullopt;
}

const ForecastDayTexts& ForecastDisplay::day(int index) const
{
    static const ForecastDayTexts none;
    return index >= 0 && index < Days ? m_days[static_cast<std::size_t>(index)] : none;
}

std::int64_t ForecastDayDifference(std::wstring_view updateKey, const SystemTime& today)
{
    const std::wstring_view date = BeforeFirst(updateKey, L':');
    const std::int64_t keyDays
        = DaysFromCivil(Wtol(characters(date, 6, 4)), Wtol(characters(date, 3, 2)), Wtol(characters(date, 0, 2)));
    return keyDays - DaysFromCivil(today.year, today.month, today.day);
}

std::wstring_view ForecastWeekday(const SystemTime& today, int index)
{
    return WeekdayLabel(today.dayOfWeek + index);
}
