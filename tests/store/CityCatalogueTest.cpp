// SPDX-License-Identifier: GPL-3.0-or-later
#include "store/CityCatalogue.h"

#include "support/RecordingMessageSink.h"
#include "support/TempDir.h"

#include <gtest/gtest.h>

namespace {

// A device root holding `citiesFile` as "\cities.lst", and an object store in memory.
struct Device
{
    explicit Device(const std::string& citiesFile)
        : paths(dir.path())
    {
        dir.write("cities.lst", citiesFile);
    }

    CityCatalogue catalogue() { return CityCatalogue(*store, paths, messages); }

    TempDir dir;
    DevicePaths paths;
    RecordingMessageSink messages;
    std::unique_ptr<ObjectStore> store = ObjectStore::openInMemory();
};

std::vector<std::wstring> citiesAndCountries(CityCatalogue& catalogue)
{
    std::vector<std::wstring> texts;
    for (std::uint32_t i = 0; i < catalogue.Count(); ++i)
        texts.push_back(catalogue.CityName(i) + L"|" + catalogue.Country(i));
    return texts;
}

const std::string Header = "Wanderkit cities\n";

} // namespace

TEST(CityCatalogue, LoadsTheCitiesFile)
{
    struct Case
    {
        const char* what;
        std::string file;
        std::vector<std::wstring> cities; // "city|country" in catalogue order
    };
    const Case cases[] = {
        {"sorted by city and country",
            Header
                + "3\n"
                  "1;Rome;Italy;12.5;41.9;1;a;b;c;d;e\n"
                  "2;Paris;France;2.3;48.8;1;a;b;c;d;e\n"
                  "3;Paris;Texas;-95.5;33.6;-6;a;b;c;d;e\n",
            {L"Paris|France", L"Paris|Texas", L"Rome|Italy"}},
        {"the first city with a city and country wins; the count is not adjusted",
            Header
                + "3\n"
                  "1;Oslo;Norway;1;1;1;a;b;c;d;e\n"
                  "2;Oslo;Norway;2;2;2;a;b;c;d;e\n"
                  "3;Bergen;Norway;3;3;1;a;b;c;d;e\n",
            {L"Bergen|Norway", L"Oslo|Norway"}},
        {"'>' as country ends the load without that line",
            Header
                + "3\n"
                  "1;Rome;Italy;1;1;1;a;b;c;d;e\n"
                  "2;End;>;2;2;2;a;b;c;d;e\n"
                  "3;Oslo;Norway;3;3;1;a;b;c;d;e\n",
            {L"Rome|Italy"}},
        {"'>' as second coordinate ends the load",
            Header
                + "2\n"
                  "1;Rome;Italy;1;1;1;a;b;c;d;e\n"
                  "2;End;X;2;>;2;a;b;c;d;e\n",
            {L"Rome|Italy"}},
        {"'>' as rule field 4 ends the load",
            Header
                + "2\n"
                  "1;Rome;Italy;1;1;1;a;b;c;d;e\n"
                  "2;End;X;2;2;2;a;b;c;>;e\n",
            {L"Rome|Italy"}},
        {"'>' elsewhere is text",
            Header
                + "1\n"
                  "1;>;X;>;2;>;>;>;>;d;e\n",
            {L">|X"}},
        {"'>' inside a field is text",
            Header
                + "1\n"
                  "1;Rome;>>;1;1;1;a;b;c;d;e\n",
            {L"Rome|>>"}},
        {"a count larger than the lines adds one empty city",
            Header
                + "5\n"
                  "1;Rome;Italy;1;1;1;a;b;c;d;e\n",
            {L"|", L"Rome|Italy"}},
        {"a count smaller than the lines reads that many",
            Header
                + "1\n"
                  "1;Rome;Italy;1;1;1;a;b;c;d;e\n"
                  "2;Oslo;Norway;1;1;1;a;b;c;d;e\n",
            {L"Rome|Italy"}},
        {"a count of 0", Header + "0\n1;Rome;Italy;1;1;1;a;b;c;d;e\n", {}},
        {"a negative count", Header + "-4\n1;Rome;Italy;1;1;1;a;b;c;d;e\n", {}},
        {"a huge count ends at the end of the file", Header + "2147483647\n1;Rome;Italy;1;1;1;a;b;c;d;e\n",
            {L"|", L"Rome|Italy"}},
        {"bytes above 127 are Latin-1", Header + "1\n1;Z\xFCrich;Schweiz;1;1;1;a;b;c;d;e\n", {L"Z\u00FCrich|Schweiz"}},
        {"an empty file", "", {}},
    };
    for (const Case& c : cases) {
        SCOPED_TRACE(c.what);
        Device device(c.file);
        auto catalogue = device.catalogue();
        catalogue.Load();
        EXPECT_EQ(citiesAndCountries(catalogue), c.cities);
        EXPECT_TRUE(device.messages.messages.empty());
    }
}

TEST(CityCatalogue, BuildsEachPropertyFromItsFields)
{
    Device device(Header
        + "2\n"
          "12;Adelaide;Australia;138.6;-34.9;930;1:0:10:2;4:0:4:3;60;x;rest;of;line\r\n"
          "13;Lima;Peru;-77.0;-12.0;-5;;;;;\n");
    auto catalogue = device.catalogue();
    catalogue.Load();
    ASSERT_EQ(catalogue.Count(), 2);

    const CityRecord adelaide = catalogue.Record(0);
    EXPECT_EQ(adelaide,
        (CityRecord {L"Adelaide", L"Australia", L"138.6", L"-34.9", L"930", L"1:0:10:2:4:0:4:3:60:x:rest;of;line\r"}));
    EXPECT_EQ(catalogue.CityName(0), adelaide.name);
    EXPECT_EQ(catalogue.Country(0), adelaide.country);
    EXPECT_EQ(catalogue.Coordinate1(0), adelaide.coordinate1);
    EXPECT_EQ(catalogue.Coordinate2(0), adelaide.coordinate2);
    EXPECT_EQ(catalogue.TimeZoneText(0), adelaide.timeZone);
    EXPECT_EQ(catalogue.DaylightRuleText(0), adelaide.daylightRule);

    // Empty fields are skipped by the reader: Lima's rule fields run on into the end of the file.
    EXPECT_EQ(catalogue.TimeZoneText(1), L"-5");
    EXPECT_EQ(catalogue.DaylightRuleText(1), L"\n::::");
    EXPECT_EQ(catalogue.CityName(2), L"");
    EXPECT_EQ(catalogue.Record(2), CityRecord {});
}

TEST(CityCatalogue, IsFilledOncePerDevice)
{
    TempDir dir;
    const DevicePaths paths(dir.path());
    RecordingMessageSink messages;
    auto store = ObjectStore::openInMemory();

    // No file: the message, and an empty catalogue that a later start fills.
    CityCatalogue first(*store, paths, messages);
    first.Load();
    ASSERT_EQ(messages.messages.size(), 1u);
    EXPECT_EQ(messages.messages[0].text, L"Initial Cities File not found!");
    EXPECT_EQ(messages.messages[0].caption, L"Wanderkit");
    EXPECT_EQ(first.Count(), 0);

    dir.write("cities.lst", Header + "1\n1;Rome;Italy;1;1;1;a;b;c;d;e\n");
    CityCatalogue second(*store, paths, messages);
    second.Load();
    EXPECT_EQ(second.Count(), 1);
    EXPECT_EQ(first.Count(), 1) << "another catalogue object sees the filled database";

    // Filled is permanent: a changed or missing file is not read again.
    dir.write("cities.lst", Header + "1\n1;Oslo;Norway;1;1;1;a;b;c;d;e\n");
    CityCatalogue third(*store, paths, messages);
    third.Load();
    EXPECT_EQ(third.CityName(0), L"Rome");
    std::filesystem::remove(dir.path() / "cities.lst");
    CityCatalogue fourth(*store, paths, messages);
    fourth.Load();
    EXPECT_EQ(fourth.Count(), 1);
    EXPECT_EQ(messages.messages.size(), 1u);
}
