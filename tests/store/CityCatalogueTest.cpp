// SPDX-License-Identifier: GPL-3.0-or-later
#include "store/CityCatalogue.h"

#include "support/TestDevice.h"

#include <gtest/gtest.h>

#include <tuple>

namespace {

// A device root holding `citiesFile` as "\cities.lst".
struct Device : TestDevice
{
    explicit Device(const std::string& citiesFile) { dir.write("cities.lst", citiesFile); }

    CityCatalogue catalogue() { return CityCatalogue(*store, paths, messages); }
};

std::vector<std::wstring> citiesCountriesAndCoordinates(CityCatalogue& catalogue)
{
    std::vector<std::wstring> texts;
    for (std::uint32_t i = 0; i < catalogue.Count(); ++i)
        texts.push_back(catalogue.CityName(i) + L"|" + catalogue.Country(i) + L"|" + catalogue.Coordinate1(i));
    return texts;
}

const std::string Header = "Wanderkit cities\n";

} // namespace

TEST(CityCatalogue, LoadsTheCitiesFile)
{
    // Data lines: label;city;country;coordinate;coordinate;zone;rule 1;rule 2;rule 3;rule 4;rest.
    const std::string rome = "1;Rome;Italy;12.5;41.9;1;a;b;c;d;e\n";
    const std::string paris = "2;Paris;France;2.3;48.8;1;a;b;c;d;e\n";
    const std::string texas = "3;Paris;Texas;-95.5;33.6;-6;a;b;c;d;e\n";
    const std::string secondRome = "4;Rome;Italy;0;0;0;a;b;c;d;e\n";
    // The cities as "city|country|coordinate 1" in catalogue order.
    const std::tuple<const char*, std::string, std::vector<std::wstring>> cases[]
        = {{"sorted by city and country", "3\n" + rome + paris + texas,
               {L"Paris|France|2.3", L"Paris|Texas|-95.5", L"Rome|Italy|12.5"}},
            {"the first line of a city and country wins", "3\n" + rome + secondRome + paris,
                {L"Paris|France|2.3", L"Rome|Italy|12.5"}},
            {"'>' as country ends the load", "3\n" + rome + "2;End;>;2;2;2;a;b;c;d;e\n" + paris, {L"Rome|Italy|12.5"}},
            {"'>' as rule field 4 ends the load", "2\n" + rome + "2;End;X;2;2;2;a;b;c;>;e\n", {L"Rome|Italy|12.5"}},
            {"'>' in other fields is text", "1\n1;>;X;>;2;>;>;>;>;d;>\n", {L">|X|>"}},
            {"a count larger than the lines adds one empty city", "5\n" + rome, {L"||", L"Rome|Italy|12.5"}},
            {"a count smaller than the lines reads that many", "1\n" + rome + paris, {L"Rome|Italy|12.5"}},
            {"a negative count", "-4\n" + rome, {}},
            {"bytes above 127 are Latin-1", "1\n1;Z\xFCrich;Schweiz;1;1;1;a;b;c;d;e\n", {L"Z\u00FCrich|Schweiz|1"}}};
    for (const auto& [what, afterHeader, cities] : cases) {
        SCOPED_TRACE(what);
        Device device(Header + afterHeader);
        auto catalogue = device.catalogue();
        catalogue.Load();
        EXPECT_EQ(citiesCountriesAndCoordinates(catalogue), cities);
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

    // Empty fields are skipped by the reader: Lima's rule fields run on into the end of the file.
    EXPECT_EQ(catalogue.TimeZoneText(1), L"-5");
    EXPECT_EQ(catalogue.DaylightRuleText(1), L"\n::::");
    EXPECT_EQ(catalogue.Record(2), CityRecord {});
}

TEST(CityCatalogue, IsFilledOncePerDevice)
{
    // No file: the message, and an empty catalogue that a later start fills.
    TestDevice device;
    CityCatalogue first(*device.store, device.paths, device.messages);
    first.Load();
    const std::vector<RecordingMessageSink::Message> notFound {{L"Initial Cities File not found!", L"Wanderkit"}};
    EXPECT_EQ(device.messages.messages, notFound);
    EXPECT_EQ(first.Count(), 0);

    device.dir.write("cities.lst", Header + "1\n1;Rome;Italy;1;1;1;a;b;c;d;e\n");
    CityCatalogue second(*device.store, device.paths, device.messages);
    second.Load();
    EXPECT_EQ(second.Count(), 1);
    EXPECT_EQ(first.Count(), 1) << "another catalogue object sees the filled database";

    // Filled is permanent: a changed file is not read again.
    device.dir.write("cities.lst", Header + "1\n1;Oslo;Norway;1;1;1;a;b;c;d;e\n");
    CityCatalogue third(*device.store, device.paths, device.messages);
    third.Load();
    EXPECT_EQ(third.CityName(0), L"Rome");
    EXPECT_EQ(device.messages.messages, notFound);
}
