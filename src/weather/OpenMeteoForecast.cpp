// SPDX-License-Identifier: GPL-3.0-or-later
#include "weather/OpenMeteoForecast.h"

#include "text/WideText.h"
#include "weather/CivilDays.h"
#include "weather/WmoWeatherCodes.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <nlohmann/json.hpp>

using Json = nlohmann::json;

namespace {

// A response the reader refuses, with what is wrong; caught where `read` answers.
struct Refusal
{
    std::string problem;
};

[[noreturn]] void refuse(std::string problem)
{
    throw Refusal {std::move(problem)};
}

// A text of the response as a message may show it: printable ASCII, at most 40 characters.
std::string shown(const std::string& text)
{
    std::string shown;
    for (const char c : text.substr(0, 40))
        shown.push_back(c >= 0x20 && c < 0x7F ? c : '?');
    return '"' + shown + (text.size() > 40 ? "...\"" : "\"");
}

// A value of the response as a message may show it.
std::string shownValue(const Json& value)
{
    return shown(value.is_string() ? value.get<std::string>() : value.dump());
}

struct CalendarDate
{
    int year;
    int month;
    int day;
};

bool digitsAt(const std::string& text, std::size_t start, std::size_t count)
{
    return std::all_of(text.begin() + static_cast<std::ptrdiff_t>(start),
        text.begin() + static_cast<std::ptrdiff_t>(start + count), [](char c) { return c >= '0' && c <= '9'; });
}

int numberAt(const std::string& text, std::size_t start, std::size_t count)
{
    return std::stoi(text.substr(start, count));
}

// "YYYY-MM-DD", a calendar date.
std::optional<CalendarDate> parseDate(const std::string& text)
{
    if (text.size() != 10 || text[4] != '-' || text[7] != '-' || !digitsAt(text, 0, 4) || !digitsAt(text, 5, 2)
        || !digitsAt(text, 8, 2))
        return std::nullopt;
    const CalendarDate date {numberAt(text, 0, 4), numberAt(text, 5, 2), numberAt(text, 8, 2)};
    const bool real = date.month >= 1 && date.month <= 12 && date.day >= 1
        && DaysFromCivil(date.year, date.month, date.day) < DaysFromCivil(date.year, date.month + 1, 1);
    return real ? std::optional(date) : std::nullopt;
}

// "YYYY-MM-DDTHH:MM" to "HH:MM".
std::optional<std::wstring> parseClock(const std::string& text)
{
    if (text.size() != 16 || text[10] != 'T' || text[13] != ':' || !parseDate(text.substr(0, 10))
        || !digitsAt(text, 11, 2) || !digitsAt(text, 14, 2) || numberAt(text, 11, 2) > 23 || numberAt(text, 14, 2) > 59)
        return std::nullopt;
    return Latin1ToWide(text.substr(11));
}

std::wstring whole(const std::optional<double>& value)
{
    return value ? FormatText(L"%ld", std::lround(*value)) : L"-";
}

std::wstring compass(const std::optional<double>& degrees)
{
    static constexpr std::array<const wchar_t*, 16> Points {L"N", L"NNE", L"NE", L"ENE", L"E", L"ESE", L"SE", L"SSE",
        L"S", L"SSW", L"SW", L"WSW", L"W", L"WNW", L"NW", L"NNW"};
    return degrees ? Points[static_cast<std::size_t>(std::lround(*degrees / 22.5) % 16)] : L"-";
}

std::wstring dayMonth(const CalendarDate& date)
{
    return FormatText(L"%d/%d", date.day, date.month);
}

struct Range
{
    double low;
    double high;
};

constexpr Range Temperature {-100, 100}; // °C
constexpr Range WindSpeed {0, 1000};
constexpr Range Percent {0, 100};
constexpr Range Direction {0, 360}; // degrees
constexpr Range WeatherCode {0, 99};

constexpr std::array<const char*, 4> TemperatureNames {
    "temperature_2m_max", "temperature_2m_min", "apparent_temperature_max", "apparent_temperature_min"};
constexpr std::array<const char*, 4> WindUnits {"km/h", "m/s", "mp/h", "kn"};

} // namespace

// Reads the days of a parsed response, refusing anything that is not a daily forecast of the expected shape.
class OpenMeteoReader
{
public:
    explicit OpenMeteoReader(const Json& root)
        : m_root(root)
    { }

    OpenMeteoForecast read()
    {
        checkShape();
        const std::vector<CalendarDate> dates = readDates();
        m_windUnit = windUnit();
        OpenMeteoForecast forecast;
        forecast.m_days = static_cast<int>(std::min<std::size_t>(dates.size(), ForecastTable::Blocks));
        const int firstBlock = ForecastTable::Blocks - forecast.m_days;
        for (int i = 0; i < forecast.m_days; ++i)
            fillDay(forecast.m_table, firstBlock + i, static_cast<std::size_t>(i), dates);
        const CalendarDate& last = dates[static_cast<std::size_t>(forecast.m_days - 1)];
        forecast.m_lastDate = FormatText(L"%02d/%02d/%04d", last.day, last.month, last.year);
        forecast.m_firstDate = FormatText(L"%02d/%02d/%04d", dates[0].day, dates[0].month, dates[0].year);
        forecast.m_latitude = coordinate("latitude", 90);
        forecast.m_longitude = coordinate("longitude", 180);
        return forecast;
    }

private:
    void checkShape()
    {
        if (!m_root.is_object())
            refuse("does not hold a JSON object");
        if (const auto error = m_root.find("error"); error != m_root.end() && *error == true) {
            const auto reason = m_root.find("reason");
            refuse("is an error report of the forecast service: "
                + (reason != m_root.end() && reason->is_string() ? shown(reason->get<std::string>())
                                                                 : "no reason given"));
        }
        const auto daily = m_root.find("daily");
        if (daily == m_root.end() || !daily->is_object())
            refuse("has no \"daily\" object");
        m_daily = &*daily;
        checkTemperatureUnits();
    }

    const Json* unit(const char* name) const
    {
        const auto units = m_root.find("daily_units");
        if (units == m_root.end() || !units->is_object())
            return nullptr;
        const auto found = units->find(name);
        return found == units->end() ? nullptr : &*found;
    }

    void checkTemperatureUnits() const
    {
        for (const char* name : TemperatureNames) {
            const Json* given = unit(name);
            if (given && (!given->is_string() || given->get<std::string>() != "\u00B0C"))
                refuse(std::string("gives daily_units.") + name + " as " + shownValue(*given)
                    + "; temperatures must be in degrees Celsius");
        }
    }

    std::wstring windUnit() const
    {
        const Json* given = unit("wind_speed_10m_max");
        if (!given)
            return L"km/h";
        const auto known = std::find_if(WindUnits.begin(), WindUnits.end(),
            [given](const char* name) { return given->is_string() && given->get<std::string>() == name; });
        if (known == WindUnits.end())
            refuse("gives daily_units.wind_speed_10m_max as " + shownValue(*given) + ", not km/h, m/s, mp/h or kn");
        return Latin1ToWide(*known);
    }

    std::vector<CalendarDate> readDates()
    {
        const auto time = m_daily->find("time");
        if (time == m_daily->end() || !time->is_array())
            refuse("has no daily.time list");
        if (time->empty())
            refuse("holds no days (daily.time is empty)");
        m_count = time->size();
        std::vector<CalendarDate> dates;
        for (std::size_t i = 0; i < std::min<std::size_t>(m_count, ForecastTable::Blocks); ++i) {
            const Json& value = (*time)[i];
            const auto date = value.is_string() ? parseDate(value.get<std::string>()) : std::nullopt;
            if (!date)
                refuse(where("time", i) + " is not a date written YYYY-MM-DD");
            if (i > 0
                && DaysFromCivil(date->year, date->month, date->day)
                    != DaysFromCivil(dates.back().year, dates.back().month, dates.back().day) + 1)
                refuse(where("time", i) + " is not the day after " + where("time", i - 1));
            dates.push_back(*date);
        }
        return dates;
    }

    void fillDay(ForecastTable& table, int block, std::size_t i, const std::vector<CalendarDate>& dates)
    {
        const std::optional<double> code = number("weather_code", i, WeatherCode);
        if (code && *code != std::floor(*code))
            refuse(where("weather_code", i) + " is not a whole number");
        const int wmo = code ? static_cast<int>(*code) : -1;
        const std::wstring_view words = WmoWeatherWords(wmo);
        const std::optional<double> wind = number("wind_speed_10m_max", i, WindSpeed);
        const std::optional<double> rain = number("precipitation_probability_max", i, Percent);
        const std::array<std::wstring, ForecastTable::Fields> fields {
            code ? FormatText(L"%02d", wmo) : L"N/A",
            words.empty() ? L"-" : std::wstring(words),
            wind ? whole(wind) + L" " + m_windUnit : L"-",
            compass(number("wind_direction_10m_dominant", i, Direction)),
            whole(number("temperature_2m_min", i, Temperature)),
            whole(number("temperature_2m_max", i, Temperature)),
            rain ? whole(rain) + L"%" : L"-",
            clock("sunrise", i),
            whole(number("apparent_temperature_max", i, Temperature)) + L"/"
                + whole(number("apparent_temperature_min", i, Temperature)),
            clock("sunset", i),
            dayMonth(dates[i]),
            dayMonth(dates[0]),
        };
        for (int field = 0; field < ForecastTable::Fields; ++field)
            table.setField(block, field, fields[static_cast<std::size_t>(field)]);
    }

    // The i-th value of a daily list, which must hold one value per day.
    const Json& value(const char* name, std::size_t i) const
    {
        const auto list = m_daily->find(name);
        if (list == m_daily->end() || !list->is_array())
            refuse(std::string("has no daily.") + name + " list");
        if (list->size() != m_count)
            refuse(std::string("daily.") + name + " has " + std::to_string(list->size()) + " values for "
                + std::to_string(m_count) + " days");
        return (*list)[i];
    }

    std::optional<double> number(const char* name, std::size_t i, Range range) const
    {
        const Json& given = value(name, i);
        if (given.is_null())
            return std::nullopt;
        if (!given.is_number())
            refuse(where(name, i) + " is not a number");
        const double number = given.get<double>();
        if (!(number >= range.low && number <= range.high))
            refuse(where(name, i) + " = " + given.dump() + " lies outside " + formatRange(range));
        return number;
    }

    std::wstring clock(const char* name, std::size_t i) const
    {
        const Json& given = value(name, i);
        if (given.is_null())
            return L"-";
        const auto time = given.is_string() ? parseClock(given.get<std::string>()) : std::nullopt;
        if (!time)
            refuse(where(name, i) + " is not a time written YYYY-MM-DDTHH:MM");
        return *time;
    }

    std::optional<double> coordinate(const char* name, double limit) const
    {
        const auto found = m_root.find(name);
        if (found == m_root.end() || !found->is_number())
            return std::nullopt;
        const double value = found->get<double>();
        return std::abs(value) <= limit ? std::optional(value) : std::nullopt;
    }

    static std::string where(const char* name, std::size_t i)
    {
        return std::string("daily.") + name + "[" + std::to_string(i) + "]";
    }

    static std::string formatRange(Range range)
    {
        return std::to_string(std::lround(range.low)) + " to " + std::to_string(std::lround(range.high));
    }

    const Json& m_root;
    const Json* m_daily = nullptr;
    std::size_t m_count = 0;
    std::wstring m_windUnit;
};

std::optional<OpenMeteoForecast> OpenMeteoForecast::read(std::string_view bytes, std::string& error)
{
    if (bytes.size() > MaxBytes) {
        error = "is larger than " + std::to_string(MaxBytes) + " bytes, far more than a daily forecast";
        return std::nullopt;
    }
    try {
        return OpenMeteoReader(Json::parse(bytes.begin(), bytes.end())).read();
    } catch (const Json::parse_error& e) {
        const std::string what = e.what();
        error = "is not complete, well-formed JSON (" + what.substr(what.find(']') + 2) + ")";
    } catch (const Json::exception& e) {
        error = std::string("holds JSON of an unexpected form (") + e.what() + ")";
    } catch (const Refusal& refusal) {
        error = refusal.problem;
    }
    return std::nullopt;
}
