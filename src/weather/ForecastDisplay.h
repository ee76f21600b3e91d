// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "time/SystemTime.h"

#include <array>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

class WeatherFavourites;

// What one day of the World Weather screen shows; every text is empty on a day without forecast.
struct ForecastDayTexts
{
    std::wstring iconPath;
    std::wstring condition; // field 1
    std::wstring wind; // field 2, ", ", field 3
    std::wstring temperatures; // field 5 "° : " field 4 "°", the day's high and low
    std::wstring precipitation; // field 6
    std::wstring sunrise; // field 7
    std::wstring sunset; // field 9
    std::wstring realFeel; // field 8, the pair of felt temperatures "high/low"
    // Only when block 0 is not shown as day 1 (the forecast does not start today):
    std::wstring date; // field 10, the day's date
    std::wstring issue; // "Forecast of " field 11, the forecast's first date

    friend bool operator==(const ForecastDayTexts&, const ForecastDayTexts&) = default;
};

// What the texts are built with besides the forecast itself.
struct ForecastSources
{
    std::wstring_view mapping; // the words of "mapping.cfg", each followed by ";"
    std::wstring_view iconFolder; // "icondir"
    std::wstring_view programPath; // the program's own path on the device
    std::uint8_t temperatureUnit = 0; // 0: temperatures are shown in Fahrenheit
};

// The five days of a favourite's forecast as the World Weather screen shows them.
class ForecastDisplay
{
public:
    static constexpr int Days = 5;

    // The texts of a forecast text (property 203) with its update key (property 204) on the local day
    // `today`. Day k shows block B + k, where B = 4 - D; it is empty when that block lies past block 4
    // or the update date lies before day k, and when it lies before block 0.
    [[nodiscard]] static ForecastDisplay compute(std::wstring_view forecastText, std::wstring_view updateKey,
        const SystemTime& today, const ForecastSources& sources);
    // The display of the first favourite whose name is `name`; nothing when there is none.
    [[nodiscard]] static std::optional<ForecastDisplay> ofFavourite(
        WeatherFavourites& favourites, std::wstring_view name, const SystemTime& today, const ForecastSources& sources);

    // D: whole calendar days from today to the update key's date, positive when that date lies ahead.
    [[nodiscard]] std::int64_t dayDifference() const { return m_dayDifference; }
    // B: the block shown as day 1.
    [[nodiscard]] std::int64_t firstBlock() const { return 4 - m_dayDifference; }
    // Day 0 to 4 (shown as 1 to 5); empty texts for any other.
    [[nodiscard]] const ForecastDayTexts& day(int index) const;

private:
    std::int64_t m_dayDifference = 0;
    std::array<ForecastDayTexts, Days> m_days;
};

// D of an update key "dd/mm/yyyy:country": day = characters 1-2, month 4-5, year 7-10, each read as
// `_wtol` reads (an unreadable part is 0, and out-of-range parts carry into the next month or year).
[[nodiscard]] std::int64_t ForecastDayDifference(std::wstring_view updateKey, const SystemTime& today);

// The label of the weekday of day `index` (0 = today).
[[nodiscard]] std::wstring_view ForecastWeekday(const SystemTime& today, int index);
