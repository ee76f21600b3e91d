// SPDX-License-Identifier: GPL-3.0-or-later
#include "store/WeatherFavourites.h"

#include "support/TestDevice.h"

#include <gtest/gtest.h>

#include <tuple>

namespace {

// A device whose "\cities.wet" is `favouritesFile`, and its favourites loaded once.
struct Device : TestDevice
{
    explicit Device(const std::string& favouritesFile)
    {
        dir.write("cities.wet", favouritesFile);
        favourites.loadFavouritesOnce();
    }

    WeatherFavourites favourites {*store, paths, messages};
};

// "name|code|forecast|last update|country file" for every favourite, in store order.
std::vector<std::wstring> contents(WeatherFavourites& favourites)
{
    std::vector<std::wstring> rows;
    for (std::uint32_t i = 0; i < favourites.count(); ++i)
        rows.push_back(favourites.getName(i) + L"|" + favourites.getLocationCode(i) + L"|"
            + favourites.getForecastText(i) + L"|" + favourites.getLastUpdate(i) + L"|" + favourites.getCountryFile(i));
    return rows;
}

} // namespace

TEST(WeatherFavourites, LoadsTheFavouritesFile)
{
    const std::tuple<const char*, std::string, std::vector<std::wstring>> cases[]
        = {{"one record per line, in name order", "2\nItaly;Rome;ITXX0067\nFrance;Paris;FRXX0076\n",
               {L"Paris|FRXX0076||01/01/2000|France", L"Rome|ITXX0067||01/01/2000|Italy"}},
            {"carriage returns; bytes above 127 are Latin-1", "1\r\nDeutschland;K\xF6ln;GMXX0018\r\n",
                {L"K\u00F6ln|GMXX0018||01/01/2000|Deutschland"}},
            {"missing fields are empty", "2\nFrance;Paris\nSpain\n",
                {L"|||01/01/2000|Spain", L"Paris|||01/01/2000|France"}},
            {"a count past the lines gives one empty record for them all; the code keeps further semicolons",
                "2147483647\nX;A;1;2\n", {L"|||01/01/2000|", L"A|1;2||01/01/2000|X"}},
            {"a negative count writes nothing", "-1\nX;A;1\n", {}}};
    for (const auto& [what, file, rows] : cases) {
        SCOPED_TRACE(what);
        Device device(file);
        EXPECT_EQ(contents(device.favourites), rows);
        EXPECT_TRUE(device.messages.messages.empty());
    }

    // 70,000 lines "X;A;1": a database counts only 65,535 of them.
    std::string manyLines = "2147483647\n";
    for (int i = 0; i < 70'000; ++i)
        manyLines += "X;A;1\n";
    EXPECT_EQ(Device(manyLines).favourites.count(), 65535);
}

TEST(WeatherFavourites, AMissingFileIsReportedAtEveryStartUntilItIsThere)
{
    TestDevice device;
    WeatherFavourites favourites(*device.store, device.paths, device.messages);
    for (const bool there : {false, false, true}) {
        if (there)
            device.dir.write("cities.wet", "1\nItaly;Rome;ITXX0067\n");
        favourites.loadFavouritesOnce();
        EXPECT_EQ(favourites.count(), there ? 1 : 0);
    }
    const RecordingMessageSink::Message notFound {L"Initial Weather Favorite Cities File not found!", L"Wanderkit"};
    EXPECT_EQ(device.messages.messages, std::vector(2, notFound));
}

TEST(WeatherFavourites, FindAddUpdateRemove)
{
    Device device("2\nItaly;Rome;ITXX0067\nFrance;Paris;FRXX0076\n");
    WeatherFavourites& favourites = device.favourites;
    EXPECT_EQ(favourites.findByName(L"rome"), 0) << "names compare exactly";
    // A new favourite has no forecast, whatever was passed; the same city can be added twice.
    const std::wstring oslo = L"Oslo|NOXX0029||01/01/2000|Norway";
    EXPECT_TRUE(favourites.addFavourite(L"Oslo", L"NOXX0029", L"sunny^", L"01/01/2000:Norway"));
    EXPECT_TRUE(favourites.addFavourite(L"Oslo", L"NOXX0029", L"", L"01/01/2000:Norway"));
    EXPECT_EQ(contents(favourites),
        (std::vector<std::wstring> {
            oslo, oslo, L"Paris|FRXX0076||01/01/2000|France", L"Rome|ITXX0067||01/01/2000|Italy"}));
    // Updates rewrite all four properties of the record found by name or by location code.
    EXPECT_TRUE(favourites.updateFavourite(L"Rome", L"ITXX9999", L"rain^", L"22/11/2026:Italy", 1));
    EXPECT_EQ(contents(favourites)[3], L"Rome|ITXX9999|rain^|22/11/2026|Italy");
    EXPECT_TRUE(favourites.updateFavourite(L"Lutetia", L"FRXX0076", L"fog^", L"23/11/2026:France", 0));
    EXPECT_EQ(contents(favourites)[0], L"Lutetia|FRXX0076|fog^|23/11/2026|France");
    EXPECT_FALSE(favourites.updateFavourite(L"Nowhere", L"X", L"", L"", 1));

    EXPECT_TRUE(favourites.removeFavourite(0));
    EXPECT_FALSE(favourites.removeFavourite(3));
    EXPECT_TRUE(favourites.removeNamed(L"Rome"));
    EXPECT_FALSE(favourites.removeNamed(L"Rome"));
    EXPECT_EQ(contents(favourites), std::vector<std::wstring>(2, oslo));
}

TEST(WeatherFavourites, OpensInEachSortOrder)
{
    Device device("3\nB;Zurich;2\nC;Athens;3\nA;Miami;1\n");
    WeatherFavourites& favourites = device.favourites;
    // Sort index -1 is the name order, 1 the location code's.
    for (const auto& [sortIndex, names] :
        {std::pair(-1, L"Athens Miami Zurich"), std::pair(1, L"Miami Zurich Athens")}) {
        ASSERT_TRUE(favourites.openFavourites(sortIndex));
        EXPECT_EQ(favourites.getName(0) + L" " + favourites.getName(1) + L" " + favourites.getName(2), names);
    }
    EXPECT_FALSE(favourites.openFavourites(4));
    EXPECT_EQ(favourites.count(), 0);
    favourites.close();
    EXPECT_EQ(favourites.getName(0), L"");
}
