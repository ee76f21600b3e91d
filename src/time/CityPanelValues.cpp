// SPDX-License-Identifier: GPL-3.0-or-later
#include "time/CityPanelValues.h"

#include "text/StringTable.h"
#include "time/CalendarDays.h"

namespace {

constexpr int ObservingNowId = 40027;
constexpr int NotObservingNowId = 40028;
constexpr int NeverObservingId = 40029;

// The time-zone text with "h" set before its last two characters ("530" reads "5h30"), or after a
// text shorter than three ("-5" reads "-5h"). The text is shown as stored, not as a number.
std::wstring TimeZoneLabel(const std::wstring& text)
{
    if (text.size() < 3)
        return text + L"h";
    const std::size_t split = text.size() - 2;
    return text.substr(0, split) + L"h" + text.substr(split);
}

} // namespace

CityPanelValues ComputeCityPanelValues(const CityZoneTexts& city, DeviceOffset device, const SystemTime& now)
{
    const CityDaylight daylight = EvaluateCityDaylight(city, device, now);
    CityPanelValues values;
    values.timeZone = TimeZoneLabel(city.timeZoneText);
    if (!daylight.rule.observes()) {
        values.status = StringTable::Load(NeverObservingId);
        values.period = L"-";
        return values;
    }
    values.status = StringTable::Load(daylight.inEffect ? ObservingNowId : NotObservingNowId);
    values.period = FormatDayMonthYear(daylight.period.start) + L"-" + FormatDayMonthYear(daylight.period.end);
    if (daylight.inEffect)
        values.timeZone += L" + " + daylight.rule.shiftText + L"h (DST)";
    return values;
}
