// SPDX-License-Identifier: GPL-3.0-or-later
#include "store/CurrencyStore.h"

#include "store/DelimitedFieldReader.h"
#include "support/TestDevice.h"

#include <gtest/gtest.h>

#include <tuple>

namespace {

// A list read from a file holding `entries` and promising `count` of them (by default, as many as it holds).
InitialCurrencyList listOf(std::vector<CurrencyEntry> entries, std::optional<std::int32_t> count = {})
{
    InitialCurrencyList list;
    list.fromFile = true;
    list.count = count.value_or(static_cast<std::int32_t>(entries.size()));
    list.entries = std::move(entries);
    return list;
}

std::vector<std::wstring> codes(CurrencyStore& store)
{
    std::vector<std::wstring> texts;
    for (std::uint32_t i = 0; i < store.RecordCount(); ++i)
        texts.push_back(store.Code(i));
    return texts;
}

} // namespace

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
    EXPECT_FALSE(store.DeleteAt(3));
}

TEST(CurrencyStore, EmptyAndShortLists)
{
    // A count past the end of the list: one empty currency.
    auto objects = ObjectStore::openInMemory();
    CurrencyStore store(*objects);
    store.SetInitialList(listOf({{L"USD", L"Dollar", L"1"}}, 2147483647));
    EXPECT_EQ(store.Load(), 2147483647);
    EXPECT_EQ(codes(store), (std::vector<std::wstring> {L"", L"USD"}));
    // An empty store (a missing file: no currencies, count 189) is filled at the next load that has currencies.
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
        = {{"zero is never", 0, 2026, std::nullopt},
            {"1900-01-01, a Monday", 94354848000000000ULL, 2026, SystemTime {1900, 1, 1, 1, 0, 0, 0, 0}},
            {"1899-12-31 23:59:59", 94354847990000000ULL, 2026, std::nullopt},
            {"a year after the current one", 133536879302500000ULL, 2023, std::nullopt},
            {"2024-02-29 13:45:30.250 in 2024: the current year counts", 133536879302500000ULL, 2024, leapDay}};
    for (const auto& [what, fileTime, currentYear, date] : cases)
        EXPECT_EQ(CurrencyStore::LastUpdateDate(fileTime, currentYear), date) << what;
}
