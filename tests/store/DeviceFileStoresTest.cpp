// SPDX-License-Identifier: GPL-3.0-or-later
#include "settings/SettingsTable.h"
#include "store/CityCatalogue.h"
#include "store/CurrencyStore.h"
#include "store/DelimitedFieldReader.h"
#include "store/WeatherFavourites.h"
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

// A list read from a file holding `entries` and promising as many.
InitialCurrencyList listOf(std::vector<CurrencyEntry> entries)
{
    const auto count = static_cast<std::int32_t>(entries.size());
    return {count, true, std::move(entries)};
}

std::vector<std::wstring> codes(CurrencyStore& store)
{
    std::vector<std::wstring> texts;
    for (std::uint32_t i = 0; i < store.RecordCount(); ++i)
        texts.push_back(store.Code(i));
    return texts;
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
}

TEST(DelimitedFieldReader, ReadsFieldsAsTheDataFilesNeedThem)
{
    // The bytes, then one read per delimiter character.
    const std::tuple<const char*, std::string, std::string, std::vector<std::wstring>> cases[]
        = {{"delimiters before a field are skipped", ";a;;;b;", ";;;", {L"a", L"b", L""}},
            {"line breaks after a record begin the next field", "x#\r\nEUR_", "#_", {L"x", L"\r\nEUR"}},
            {"end of file ends a field, then fields are empty", "abc", "##", {L"abc", L""}},
            {"bytes above 127 are Latin-1", "Z\xFCrich\xB0;\xFF", ";;", {L"Z\u00FCrich\u00B0", L"\u00FF"}},
            {"a null byte is a character", std::string("a\0b;", 4), ";", {std::wstring(L"a\0b", 3)}},
            {"at most 1499 characters a field are kept; the rest of the field is dropped, not read as the next",
                std::string(1600, 'a') + ";next;", ";;", {std::wstring(1499, L'a'), L"next"}}};
    for (const auto& [what, bytes, delimiters, expected] : cases) {
        SCOPED_TRACE(what);
        DelimitedFieldReader reader(bytes);
        std::vector<std::wstring> fields;
        for (const char delimiter : delimiters)
            fields.push_back(reader.read(delimiter));
        EXPECT_EQ(fields, expected);
    }
}

TEST(InitialCurrencyList, ReadsTheCurrencyFile)
{
    // What the file is, its bytes; the count, entries and size read.
    const std::tuple<const char*, std::string, std::int32_t, std::vector<CurrencyEntry>, std::int32_t> cases[]
        = {{"records end to end", "2\r\nUSD_US Dollar_1.0#EUR_Euro_0.92#", 2,
               {{L"USD", L"US Dollar", L"1.0"}, {L"EUR", L"Euro", L"0.92"}}, 2},
            {"a negative count gives an empty list", "-3\nUSD_Dollar_1#", -3, {}, 0},
            {"a record cut short keeps what was read; the rest are empty", "3\nUSD_Dollar_1#EUR_Eu", 3,
                {{L"USD", L"Dollar", L"1"}, {L"EUR", L"Eu", L""}}, 3}};
    for (const auto& [what, file, count, entries, size] : cases) {
        SCOPED_TRACE(what);
        const InitialCurrencyList list = ParseInitialCurrencies(file);
        EXPECT_TRUE(list.fromFile);
        EXPECT_EQ(std::tie(list.count, list.entries), std::tie(count, entries));
        EXPECT_EQ(list.size(), size);
    }

    // A missing file keeps the preset count.
    TestDevice device;
    const InitialCurrencyList list = ReadInitialCurrencies(device.paths, device.messages);
    EXPECT_FALSE(list.fromFile);
    EXPECT_EQ(std::tuple(list.count, list.size()), std::tuple(189, 0));
    EXPECT_EQ(device.messages.messages,
        (std::vector<RecordingMessageSink::Message> {{L"Initial Currencies File not found!", L"Wanderkit"}}));
}

TEST(CurrencyStore, FirstLoadCopiesTheListInNameOrder)
{
    auto objects = ObjectStore::openInMemory();
    CurrencyStore store(*objects);
    store.SetInitialList(listOf({{L"USD", L"US Dollar", L"1.0"}, {L"EUR", L"euro", L"0.92"}, {L"XEU", L"Euro", L"9"},
        {L"CHF", L"Swiss Franc", L"0.88"}, {L"ALL", L"Albanian Lek", L"95"}}));
    EXPECT_EQ(store.Load(), 5) << "the list's count, skipped duplicates included";
    EXPECT_EQ(codes(store), (std::vector<std::wstring> {L"ALL", L"EUR", L"CHF", L"USD"}))
        << "names ignore case, and the first \"euro\" wins";
    EXPECT_EQ(store.Name(1) + store.RateText(1) + store.Code(4), L"euro0.92");
    EXPECT_EQ(store.LastUpdate(), 0u) << "the last update reads \"Never\"";
    // Later loads only count the records; the list is a seed.
    CurrencyStore again(*objects);
    again.SetInitialList(listOf({{L"JPY", L"Yen", L"150"}}));
    EXPECT_EQ(again.Load(), 4);
    EXPECT_EQ(codes(again), codes(store));
    // Updates find the name whatever its case; a write stamps the database.
    EXPECT_TRUE(store.UpdateByName(L"EUX", L"EURO", L"0.95"));
    EXPECT_EQ(store.Code(1) + L"|" + store.Name(1) + L"|" + store.RateText(1), L"EUX|EURO|0.95");
    EXPECT_FALSE(store.UpdateByName(L"JPY", L"Yen", L"150"));
    EXPECT_NE(store.LastUpdate(), 0u);
    EXPECT_TRUE(store.DeleteAt(0));
    EXPECT_EQ(codes(store), (std::vector<std::wstring> {L"EUX", L"CHF", L"USD"}));
}

// A count past the end of the list stores one empty currency: the converter tests read it.
TEST(CurrencyStore, AnEmptyStoreIsFilledAtTheNextLoadThatHasCurrencies)
{
    // A missing file: no currencies, count 189.
    auto emptyObjects = ObjectStore::openInMemory();
    CurrencyStore empty(*emptyObjects);
    empty.SetInitialList(InitialCurrencyList {});
    EXPECT_EQ(empty.Load(), 189);
    EXPECT_EQ(empty.RecordCount(), 0);
    empty.SetInitialList(listOf({{L"USD", L"Dollar", L"1"}}));
    EXPECT_EQ(empty.Load(), 1);
    EXPECT_EQ(empty.Code(0), L"USD");
}

TEST(CurrencyStore, LastUpdateDate)
{
    const SystemTime leapDay {2024, 2, 4, 29, 13, 45, 30, 250}; // a Thursday
    const std::tuple<const char*, std::uint64_t, int, std::optional<SystemTime>> cases[]
        = {{"1900-01-01, a Monday", 94354848000000000ULL, 2026, SystemTime {1900, 1, 1, 1, 0, 0, 0, 0}},
            {"1899-12-31 23:59:59", 94354847990000000ULL, 2026, std::nullopt},
            {"a year after the current one", 133536879302500000ULL, 2023, std::nullopt},
            {"2024-02-29 13:45:30.250 in 2024: the current year counts", 133536879302500000ULL, 2024, leapDay}};
    for (const auto& [what, fileTime, currentYear, date] : cases)
        EXPECT_EQ(CurrencyStore::LastUpdateDate(fileTime, currentYear), date) << what;
}
