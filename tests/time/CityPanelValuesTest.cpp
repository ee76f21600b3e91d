// SPDX-License-Identifier: GPL-3.0-or-later
#include "time/CityPanelValues.h"

#include "support/FakeDeviceClock.h"

#include <gtest/gtest.h>

#include <tuple>

using C = FakeDeviceClock;

TEST(CityPanelValues, StatusPeriodAndTimeZone)
{
    const SystemTime july = C::at(2026, 7, 1, 12, 0, 0);
    const SystemTime february = C::at(2026, 2, 1, 12, 0, 0);
    const std::tuple<CityZoneTexts, SystemTime, CityPanelValues> cases[] = {
        {{L"530", L"0:0:0:0:0"}, july, {L"Never observing", L"-", L"5h30"}},
        {{L"1", L"1:88:2:298:3"}, july, {L"Observing Now", L"29/3/2026-25/10/2026", L"1h + 1h (DST)"}},
        {{L"-330", L"1:67:2:305:2"}, july, {L"Observing Now", L"8/3/2026-1/11/2026", L"-3h30 + 1h (DST)"}},
        // A southern city in February: its period starts in October, so it is not observing now.
        {{L"10", L"1:277:2:95:3"}, february, {L"Not observing now", L"4/10/2026-5/4/2027", L"10h"}},
        {{L"-5", L"1:67:2:305:2"}, february, {L"Not observing now", L"8/3/2026-1/11/2026", L"-5h"}},
        // The text is cut as it stands, not read as a number.
        {{L"100", L"0"}, july, {L"Never observing", L"-", L"1h00"}},
        {{L"-10", L"0"}, july, {L"Never observing", L"-", L"-h10"}},
        // A start past the last supported day (31/12/30827) never applies; both dates read 1 January.
        {{L"0", L"1:10519714:6195:300:2"}, july, {L"Not observing now", L"1/1/2026-1/1/2026", L"0h"}},
    };
    for (const auto& [city, now, expected] : cases) {
        const CityPanelValues values = ComputeCityPanelValues(city, {2, 0}, now);
        EXPECT_EQ(std::tie(values.status, values.period, values.timeZone),
            std::tie(expected.status, expected.period, expected.timeZone));
    }
}
