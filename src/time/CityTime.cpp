// SPDX-License-Identifier: GPL-3.0-or-later
#include "time/CityTime.h"

#include "text/StringTable.h"
#include "text/WideText.h"
#include "time/CalendarDays.h"

#include <array>

namespace {

// Weekday labels by day of week, Sunday first.
constexpr std::array WeekdayIds {40011, 40013, 40014, 40015, 40016, 40017, 40012};

struct Deltas
{
    std::int64_t hours;
    std::int32_t minutes;
};

// The hour and minute steps from device time to city time.
Deltas CityDeltas(ZoneOffset cityOffset, DeviceOffset device)
{
    const OffsetParts city = SplitZoneOffset(cityOffset);
    const std::int64_t minutes = std::int64_t {city.minutes} - device.minutes;
    return {minutes / 60 - device.hours + city.hours, static_cast<std::int32_t>(minutes % 60)};
}

// A number with a leading "0" below 10; a negative hour therefore reads "0-6".
std::wstring Padded(std::int64_t value)
{
    return FormatText(value < 10 ? L"0%lld" : L"%lld", static_cast<long long>(value));
}

std::int32_t DayShift(ZoneOffset cityOffset, DeviceOffset device, const SystemTime& now)
{
    const Deltas deltas = CityDeltas(cityOffset, device);
    int carry = 0;
    if (deltas.minutes != 0) {
        const int minute = now.minute + deltas.minutes;
        carry = minute > 59 ? 1 : minute <= 0 ? -1 : 0;
    }
    const std::int64_t hours = carry + deltas.hours;
    if (hours < 0 && now.hour < -hours)
        return -1;
    if (hours > 0 && now.hour + hours >= 24)
        return 1;
    return 0;
}

std::wstring WeekdayLabel(int dayOfWeek)
{
    if (dayOfWeek < 0 || dayOfWeek >= static_cast<int>(WeekdayIds.size()))
        return {};
    return std::wstring(StringTable::Load(WeekdayIds[static_cast<std::size_t>(dayOfWeek)]));
}

} // namespace

std::wstring FormatCityTime(ZoneOffset cityOffset, DeviceOffset device, bool withSeconds, const SystemTime& now)
{
    const Deltas deltas = CityDeltas(cityOffset, device);
    int minutes = now.minute;
    int carry = 0;
    if (deltas.minutes != 0) {
        minutes += deltas.minutes;
        carry = minutes > 59 ? 1 : minutes < 0 ? -1 : 0;
        minutes -= carry * 60;
    }
    std::int64_t hour = now.hour + carry + deltas.hours;
    if (hour >= 24)
        hour -= 24;
    else if (hour < 0)
        hour += 24;
    std::wstring text = Padded(hour) + L":" + Padded(minutes);
    if (withSeconds)
        text += L":" + Padded(now.second);
    return text;
}

CityDate FormatCityDate(ZoneOffset cityOffset, DeviceOffset device, bool withYear, const SystemTime& now)
{
    const SystemTime date = AddDays(now, DayShift(cityOffset, device, now));
    const std::wstring weekday = WeekdayLabel(date.dayOfWeek);
    if (withYear)
        return {FormatText(L"%d/%d/%d %ls", date.day, date.month, date.year, weekday.c_str()), date};
    return {FormatText(L"%d/%d %ls", date.day, date.month, weekday.c_str()), date};
}

SystemTime CityNow(ZoneOffset cityOffset, DeviceOffset device, const SystemTime& now)
{
    SystemTime cityNow = AddDays(now, DayShift(cityOffset, device, now));
    const std::wstring time = FormatCityTime(cityOffset, device, false, now);
    cityNow.hour = static_cast<std::uint16_t>(Wtol(time.substr(0, 2)));
    return cityNow;
}
