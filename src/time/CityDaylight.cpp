// SPDX-License-Identifier: GPL-3.0-or-later
#include "time/CityDaylight.h"

#include "text/WideText.h"
#include "time/CityTime.h"

namespace {

CityDaylight Evaluate(const CityZoneTexts& texts, DeviceOffset device, const SystemTime& deviceNow, bool isHome)
{
    CityDaylight city;
    city.standardOffset = Wtol(texts.timeZoneText);
    city.rule = ParseDaylightRule(texts.daylightRuleText);
    if (!city.rule.observes())
        return city;
    city.period = DaylightPeriodOf(city.rule, deviceNow.year);
    const SystemTime now = isHome ? deviceNow : CityNow(city.standardOffset, device, deviceNow);
    city.inEffect = IsInDaylightPeriod(city.period, now);
    return city;
}

} // namespace

ZoneOffset CityDaylight::effectiveOffset() const
{
    return inEffect ? AddDaylightShift(standardOffset, rule.shift) : standardOffset;
}

CityDaylight EvaluateHomeDaylight(const CityZoneTexts& home, const SystemTime& deviceNow)
{
    return Evaluate(home, {}, deviceNow, true);
}

CityDaylight EvaluateCityDaylight(const CityZoneTexts& city, DeviceOffset device, const SystemTime& deviceNow)
{
    return Evaluate(city, device, deviceNow, false);
}
