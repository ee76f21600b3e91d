// SPDX-License-Identifier: GPL-3.0-or-later
#include "store/CityCatalogue.h"

#include "settings/SettingsTable.h"
#include "store/CurrencyStore.h"
#include "support/TestDevice.h"
#include "text/WideText.h"

#include <gtest/gtest.h>

#include <tuple>

namespace {

const std::string Header = "Wanderkit cities\n";

// A catalogue loaded from the device's "\cities.lst", written as the header and `afterHeader`.
CityCatalogue loaded(TestDevice& device, const std::string& afterHeader)
{
    device.dir.write("cities.lst", Header + afterHeader);
    CityCatalogue catalogue(*device.store, device.paths, device.messages);
    catalogue.Load();
    return catalogue;
}

} // namespace

TEST(CityCatalogue, LoadsTheCitiesFile)
{
    // Data lines: label;city;country;coordinate;coordinate;zone;rule 1;rule 2;rule 3;rule 4;rest.
    const std::string rome = "1;Rome;Italy;12.5;41.9;1;a;b;c;d;e\n";
    const std::string paris = "2;Paris;France;2.3;48.8;1;a;b;c;d;e\n";
    // The cities as "city|country|coordinate 1" in catalogue order.
    const std::tuple<const char*, std::string, std::vector<std::wstring>> cases[] = {
        {"sorted by city and country; the first line of a city and country wins; the count bounds the read",
            "4\n" + rome + paris
                + "3;Paris;Texas;-95.5;33.6;-6;a;b;c;d;e\n4;Rome;Italy;0;0;0;a;b;c;d;e\n5;Lima;Peru;1;1;1;a;b;c;d;e\n",
            {L"Paris|France|2.3", L"Paris|Texas|-95.5", L"Rome|Italy|12.5"}},
        {"'>' as country ends the load", "3\n" + rome + "2;End;>;2;2;2;a;b;c;d;e\n" + paris, {L"Rome|Italy|12.5"}},
        {"'>' as rule field 4 ends the load", "2\n" + rome + "2;End;X;2;2;2;a;b;c;>;e\n", {L"Rome|Italy|12.5"}},
        {"'>' in other fields is text", "1\n1;>;X;>;2;>;>;>;>;d;>\n", {L">|X|>"}},
        {"a count larger than the lines adds one empty city", "5\n" + rome, {L"||", L"Rome|Italy|12.5"}},
        {"a negative count", "-4\n" + rome, {}}};
    for (const auto& [what, afterHeader, cities] : cases) {
        SCOPED_TRACE(what);
        TestDevice device;
        auto catalogue = loaded(device, afterHeader);
        std::vector<std::wstring> texts;
        for (std::uint32_t i = 0; i < catalogue.Count(); ++i)
            texts.push_back(catalogue.CityName(i) + L"|" + catalogue.Country(i) + L"|" + catalogue.Coordinate1(i));
        EXPECT_EQ(texts, cities);
        EXPECT_TRUE(device.messages.messages.empty());
    }
}

TEST(CityCatalogue, BuildsEachPropertyFromItsFields)
{
    TestDevice device;
    auto catalogue = loaded(device,
        "2\n"
        "12;Adelaide;Australia;138.6;-34.9;930;1:0:10:2;4:0:4:3;60;x;rest;of;line\r\n"
        "13;Lima;Peru;-77.0;-12.0;-5;;;;;\n");
    ASSERT_EQ(catalogue.Count(), 2);
    EXPECT_EQ(catalogue.Record(0),
        (CityRecord {L"Adelaide", L"Australia", L"138.6", L"-34.9", L"930", L"1:0:10:2:4:0:4:3:60:x:rest;of;line\r"}));
    // Empty fields are skipped by the reader: Lima's rule fields run on into the end of the file.
    EXPECT_EQ(catalogue.TimeZoneText(1) + L"|" + catalogue.DaylightRuleText(1), L"-5|\n::::");
    EXPECT_EQ(catalogue.Record(2), CityRecord {});
}

TEST(CityCatalogue, IsFilledOncePerDevice)
{
    // No file: the message, and an empty catalogue that a later start fills.
    TestDevice device;
    CityCatalogue first(*device.store, device.paths, device.messages);
    first.Load();
    EXPECT_EQ(first.Count(), 0);
    // Filled is permanent: a changed file is not read again.
    for (const std::string city : {"Rome", "Oslo"})
        EXPECT_EQ(loaded(device, "1\n1;" + city + ";X;1;1;1;a;b;c;d;e\n").CityName(0), L"Rome");
    EXPECT_EQ(first.Count(), 1) << "another catalogue object sees the filled database";
    EXPECT_EQ(device.messages.messages,
        (std::vector<RecordingMessageSink::Message> {{L"Initial Cities File not found!", L"Wanderkit"}}));
}

// The shipped files at a fresh device's default positions; tools/check-data.sh checks the files themselves.
TEST(ShippedData, TheDefaultClocksAndCurrenciesLandOnRealOnes)
{
    const DevicePaths paths {WANDERKIT_SHIPPED_DEVICE_ROOT};
    TestDevice device;
    auto hive = SettingsHive::openInMemory();
    RegistrySettings settings(*hive);
    const auto at = [&settings](const DwordSetting& setting) { return ReadSetting(settings, setting); };
    CityCatalogue cities(*device.store, paths, device.messages);
    cities.Load();
    // As many as the count on the line below the header: none refused as a repeated city.
    const std::string file = TempDir::read(std::filesystem::path(WANDERKIT_SHIPPED_DEVICE_ROOT) / "cities.lst");
    EXPECT_EQ(cities.Count(), Wtol(Latin1ToWide(file.substr(file.find('\n') + 1))));
    EXPECT_TRUE(cities.Count() >= 1050 && cities.Count() <= 1150) << cities.Count();
    const std::pair<const DwordSetting&, const wchar_t*> clocks[]
        = {{Settings::Clock1, L"New York:United States"}, {Settings::Clock2, L"Paris:France"},
            {Settings::Clock3, L"London:United Kingdom"}, {Settings::Clock4, L"Tokyo:Japan"}};
    for (const auto& [clock, name] : clocks)
        EXPECT_EQ(cities.CityName(at(clock)) + L":" + cities.Country(at(clock)), name);
    CurrencyStore currencies(*device.store);
    currencies.SetInitialList(ReadInitialCurrencies(paths, device.messages));
    EXPECT_EQ(currencies.Load(), 189);
    const std::pair<const DwordSetting&, const wchar_t*> defaults[] = {{Settings::Currency1, L"EUR Euro"},
        {Settings::Currency2, L"USD US Dollar"}, {Settings::Currency3, L"GBP British Pound"}};
    for (const auto& [currency, codeAndName] : defaults)
        EXPECT_EQ(currencies.Code(at(currency)) + L" " + currencies.Name(at(currency)), codeAndName);
    EXPECT_DOUBLE_EQ(Wcstod(currencies.RateText(at(Settings::Currency2))), 1.0);
    EXPECT_TRUE(device.messages.messages.empty());
}
