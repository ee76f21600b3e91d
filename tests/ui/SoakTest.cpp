// SPDX-License-Identifier: GPL-3.0-or-later
#include "PaintLog.h"
#include "ScreenTestBench.h"
#include "screens/map/MapScreen.h"
#include "screens/worldclock/WorldClockScreen.h"

#include <algorithm>
#include <fstream>
#include <tuple>
#include <unistd.h>
#include <utility>
#include <vector>

// World Clocks and the World Map run side by side on the shipped cities, their clocks and timers moved on
// together in 250 ms steps, from three starts: over a northern and a southern change of daylight saving, and over
// the year end. Every tick's repaints are checked, the texts at each crossing, and that memory stays flat.
// WANDERKIT_SOAK_HOURS sets the simulated hours per start, 2 by default; the long run, outside ctest's time limit:
//   QT_QPA_PLATFORM=offscreen QTEST_FUNCTION_TIMEOUT=36000000 WANDERKIT_SOAK_HOURS=48 build/bin/test_soak

namespace {

// The home clock is on GMT without daylight saving, so device time is GMT.
enum Slot { Home, Paris, Sydney, Adelaide, Casablanca, SlotCount };
const wchar_t* const ClockCities[] = {L"Reykjavik", L"Paris", L"Sydney", L"Adelaide", L"Casablanca"};
constexpr long long TicksPerSecond = 1000 / MapScreen::TickMilliseconds;
constexpr long long TicksPerHour = 3600 * TicksPerSecond;

// What a clock's time and date read at a device time; the map shows the same time for its city.
using Sight = std::tuple<SystemTime, Slot, const char*, const char*>;
// Where a start begins, the clock whose city the map shows, and the sights in time order.
using Start = std::tuple<SystemTime, Slot, std::vector<Sight>>;

SystemTime at(int month, int day, int hour, int minute, int second, int year = 2026)
{
    return FakeDeviceClock::at(year, month, day, hour, minute, second);
}

// Shipped rules: Paris +1 "1:88:2:298:3", Sydney +10 and Adelaide 930 "1:277:2:95:3", Casablanca 0 "1:1:0:263:2".
// A period begins when the city's own standard-time date reaches the rule's day (the hours play no part).
const Start Starts[] = {
    // Day 88 of 2026 is Sunday 29 March; it begins in Paris at 23:00 GMT, and Paris moves from +1 to +2.
    {at(3, 28, 22, 30, 0), Paris,
        {{at(3, 28, 22, 59, 59), Paris, "23:59", "28/3 Sat"}, {at(3, 28, 23, 0, 0), Paris, "01:00", "29/3 Sun"}}},
    // Day 277 is Sunday 4 October: Sydney moves from +10 to +11 at 14:00 GMT, Adelaide from 9:30 to 10:30 at 14:30.
    {at(10, 3, 13, 30, 0), Adelaide,
        {{at(10, 3, 13, 59, 59), Sydney, "23:59", "3/10 Sat"}, {at(10, 3, 14, 0, 0), Sydney, "01:00", "4/10 Sun"},
            {at(10, 3, 14, 29, 59), Adelaide, "23:59", "3/10 Sat"},
            {at(10, 3, 14, 30, 0), Adelaide, "01:00", "4/10 Sun"}}},
    // The year end. Sydney's period runs from 4 October of the device year into the next April, so it ends
    // with the device year (kept): +11 becomes +10 at 00:00 GMT. Casablanca's starts on day 1: 0 becomes +1.
    {at(12, 31, 22, 30, 0), Sydney,
        {{at(12, 31, 23, 59, 59), Home, "23:59:59", "31/12/2026 Thu"},
            {at(12, 31, 23, 59, 59), Sydney, "10:59", "1/1 Fri"},
            {at(12, 31, 23, 59, 59), Casablanca, "23:59", "31/12 Thu"},
            {at(1, 1, 0, 0, 0, 2027), Home, "00:00:00", "1/1/2027 Fri"},
            {at(1, 1, 0, 0, 0, 2027), Sydney, "10:00", "1/1 Fri"},
            {at(1, 1, 0, 0, 0, 2027), Casablanca, "01:00", "1/1 Fri"}}},
};

long residentKilobytes()
{
    long pages = 0, resident = 0;
    std::ifstream("/proc/self/statm") >> pages >> resident;
    return resident * (sysconf(_SC_PAGESIZE) / 1024);
}

// A bench on the shipped cities and pictures, with the clocks on ClockCities.
struct Rig : ScreenTestBench
{
    Rig()
    {
        for (const char* name : {"cities.lst", "cities.wet", "back.jpg", "day.jpg", "bmap.jpg", "weatcs/Iceland"})
            root.write(name, TempDir::read(std::string(WANDERKIT_SHIPPED_DEVICE_ROOT "/") + name));
        loadStores();
        for (int slot = Home; slot < SlotCount; ++slot)
            store(*Settings::ClockCities[std::size_t(slot)], position(ClockCities[slot]));
    }

    std::uint32_t position(std::wstring_view name)
    {
        std::uint32_t city = 0;
        while (city < cities.Count() && cities.CityName(city) != name)
            ++city;
        return city;
    }
};

} // namespace

// World Clocks and the map, each in its own window on its own bench, run through the starts one after another.
class SoakTest : public QObject
{
    Q_OBJECT

private slots:
    void clocksAndMapRunThroughMidnightsDaylightChangesAndTheYearEndWithFlatMemory()
    {
        for (auto start = std::begin(Starts); start != std::end(Starts) && !QTest::currentTestFailed(); ++start)
            run(*start);
        qInfo("RSS %ld kB after the first simulated hour, %ld kB after the last", m_firstHourRss, m_lastHourRss);
#ifndef __SANITIZE_ADDRESS__ // under AddressSanitizer freed memory waits in quarantine; LeakSanitizer checks there
        QVERIFY2(m_lastHourRss - m_firstHourRss <= 1024, "RSS after the last hour within 1 MB of the first");
#endif
    }

private:
    void run(const Start& start)
    {
        const auto& [from, mapShows, sights] = start;
        m_clockRig.clock.set(from);
        m_mapRig.clock.set(from);
        m_mapShows = mapShows;
        m_mapSight = nullptr;
        m_mapRig.store(Settings::MapClock, m_mapRig.position(ClockCities[mapShows]));
        m_clockRig.visit(m_clocks, [&] { m_mapRig.visit(m_map, [&] { soak(sights); }); });
    }

    void soak(const std::vector<Sight>& sights)
    {
        QCoreApplication::processEvents(); // the first paints
        m_mapKey = m_map.mapPicture().cacheKey();
        auto sight = sights.begin();
        for (long long tick = 1; tick <= m_hours * TicksPerHour && !QTest::currentTestFailed(); ++tick) {
            m_clockPaints.count = m_mapPaints.count = 0;
            m_clockRig.advance(MapScreen::TickMilliseconds);
            m_mapRig.advance(MapScreen::TickMilliseconds);
            QCoreApplication::processEvents();
            checkMapRepaint(tick);
            if (tick % TicksPerSecond == 0)
                checkClockRepaint();
            // The map's tick rebuilds its city time before it notices a change of offset: it is read a tick later.
            if (m_mapSight)
                QCOMPARE(m_map.cityTime(), QString::fromLatin1(std::exchange(m_mapSight, nullptr)));
            for (; sight != sights.end() && std::get<0>(*sight) == m_clockRig.clock.localTime(); ++sight)
                look(*sight);
            if (tick % TicksPerHour == 0) {
                m_lastHourRss = residentKilobytes();
                m_firstHourRss = m_firstHourRss ? m_firstHourRss : m_lastHourRss; // after a warm-up hour
            }
        }
        QVERIFY2(sight == sights.end() && !m_mapSight, "every crossing was seen");
    }

    // The map: one repaint a tick, of the texts below the map; every 240th tick (60 s) the whole screen, with
    // the map drawn again.
    void checkMapRepaint(long long tick)
    {
        const bool redraw = tick % 240 == 0;
        QCOMPARE(m_mapPaints.count, 1);
        QCOMPARE(m_mapPaints.last == m_map.rect(), redraw);
        QCOMPARE(m_mapPaints.last.intersects(m_map.mapLayout().map), redraw);
        QCOMPARE(m_map.mapPicture().cacheKey() != m_mapKey, redraw);
        m_mapKey = m_map.mapPicture().cacheKey();
    }

    // World Clocks: one repaint a second, of the home clock; at each new minute the cities' too; at device
    // midnight the whole screen, so the dates are drawn again.
    void checkClockRepaint()
    {
        const SystemTime now = m_clockRig.clock.localTime();
        const QRect& area = m_clockPaints.last;
        QCOMPARE(m_clockPaints.count, 1);
        QVERIFY(area.contains(m_clocks.entryRect(2 * Home)));
        for (int slot = Paris; slot < SlotCount; ++slot)
            QCOMPARE(area.intersects(m_clocks.entryRect(2 * slot)), now.second == 0);
        const bool midnight = now.hour == 0 && now.minute == 0 && now.second == 0;
        QCOMPARE(area == m_clocks.rect(), midnight);
    }

    void look(const Sight& sight)
    {
        const auto& [at, slot, time, date] = sight;
        QCOMPARE(m_clocks.shownTime(slot), QString::fromLatin1(time));
        QCOMPARE(m_clocks.shownDate(slot), QString::fromLatin1(date));
        if (slot == Home)
            QCOMPARE(m_map.shownLocalTime(), QString::fromLatin1(time));
        if (slot == m_mapShows)
            m_mapSight = time;
    }

    // The simulated hours per start, at least 2 (every crossing lies in a start's first 90 minutes).
    const int m_hours = std::max(2, qEnvironmentVariableIntValue("WANDERKIT_SOAK_HOURS"));
    Rig m_clockRig;
    Rig m_mapRig;
    WorldClockScreen m_clocks {m_clockRig.environment, m_clockRig.window, m_clockRig.cities, m_clockRig.favourites};
    MapScreen m_map {m_mapRig.environment, m_mapRig.window, m_mapRig.cities, m_mapRig.favourites};
    PaintLog m_clockPaints {m_clocks};
    PaintLog m_mapPaints {m_map};
    Slot m_mapShows = Home;
    const char* m_mapSight = nullptr; // the time the map's city shows from the next tick
    qint64 m_mapKey = 0;
    long m_firstHourRss = 0;
    long m_lastHourRss = 0;
};

QTEST_MAIN(SoakTest)
#include "SoakTest.moc"
