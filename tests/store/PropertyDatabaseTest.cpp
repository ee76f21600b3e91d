// SPDX-License-Identifier: GPL-3.0-or-later
#include "store/PropertyDatabase.h"

#include <gtest/gtest.h>

#include <array>
#include <tuple>

namespace {

constexpr PropertyId Key = 11;
constexpr PropertyId Other = 12;
constexpr PropertyId Third = 13;
constexpr std::array<PropertyId, 4> SortIds = {Key, Other, Third, 14};
using Records = std::vector<std::array<std::wstring, 2>>;

std::array<Property, 2> record(std::wstring key, std::wstring other)
{
    return {{{Key, std::move(key)}, {Other, std::move(other)}}};
}

// An open database "test" in a fresh store, each of `records` (key, other) added with `keyIndex`.
struct TestDatabase
{
    explicit TestDatabase(int sortMode, const Records& records = {}, int keyIndex = 0)
    {
        database.Create(L"test", 1, 3, SortIds, sortMode);
        EXPECT_TRUE(database.Open(L"test"));
        for (const auto& [key, other] : records)
            written += database.Add(record(key, other), keyIndex) ? 1 : 0;
    }

    std::unique_ptr<ObjectStore> store = ObjectStore::openInMemory();
    PropertyDatabase database {*store};
    std::size_t written = 0; // the adds that returned true
};

std::vector<std::wstring> column(PropertyDatabase& database, PropertyId id)
{
    std::vector<std::wstring> texts;
    for (std::uint32_t i = 0; i < database.RecordCount(); ++i)
        texts.push_back(database.ReadAt(i, id));
    return texts;
}

} // namespace

TEST(PropertyDatabase, TraversesInItsSortOrdersAndTheFirstRecordWithAKeyWins)
{
    // Mode 1 compares character codes, capitals first; mode 2 folds case and Latin-1 letters, equal keys
    // keeping their order of addition. With a key index, a record whose key property equals an earlier
    // one's (as its order compares) is not written. "other" in traversal order:
    const Records added = {
        {L"b", L"1"}, {L"\u00E9b", L"2"}, {L"B", L"3"}, {L"a", L"4"}, {L"\u00C9c", L"5"}, {L"A", L"6"}, {L"c", L"2"}};
    const std::tuple<const char*, int, int, std::vector<std::wstring>> cases[]
        = {{"mode 1, no key", 1, PropertyDatabase::NoKey, {L"6", L"3", L"4", L"1", L"2", L"5", L"2"}},
            {"mode 2, no key", 2, PropertyDatabase::NoKey, {L"4", L"6", L"1", L"3", L"2", L"2", L"5"}},
            {"mode 2, key on the first property", 2, 0, {L"4", L"1", L"2", L"2", L"5"}},
            {"mode 1, key on the second property", 1, 1, {L"6", L"3", L"4", L"1", L"5", L"2"}}};
    for (const auto& [what, sortMode, keyIndex, expectedOthers] : cases) {
        TestDatabase test(sortMode, added, keyIndex);
        EXPECT_EQ(column(test.database, Other), expectedOthers) << what;
        EXPECT_EQ(test.written, expectedOthers.size()) << what;
    }

    // Opening in another sort order.
    TestDatabase test(1, {{L"a", L"z"}, {L"b", L"y"}});
    test.database.Add(std::array<Property, 1> {{{Key, L"c"}}}, 0); // no Other: last in Other's order
    PropertyDatabase byOther(*test.store);
    ASSERT_TRUE(byOther.OpenSorted(L"test", Other));
    EXPECT_EQ(column(byOther, Key), (std::vector<std::wstring> {L"b", L"a", L"c"}));
    EXPECT_EQ(byOther.SeekEqual({Key, L"a"}), byOther.SeekTo(1));

    EXPECT_FALSE(byOther.OpenSorted(L"test", 14)) << "the fourth identifier was not made a sort order";
    EXPECT_FALSE(byOther.Open(L"missing"));
    EXPECT_EQ(byOther.ReadAt(0, Key), L"");
}

TEST(PropertyDatabase, CursorAndFlags)
{
    TestDatabase test(1, {{L"a", L""}, {L"b", L""}, {L"c", L""}});
    PropertyDatabase& database = test.database;
    // Auto-advance: reading the last record sets the at-end flag, a seek clears it.
    EXPECT_EQ(database.ReadAt(2, Key), L"c");
    EXPECT_TRUE(database.AtEnd());
    EXPECT_FALSE(database.Next());
    EXPECT_TRUE(database.SeekFirst() && !database.AtEnd());
    // Reads past the end are empty, whatever the flags.
    EXPECT_EQ(database.ReadAt(3, Key) + database.ReadAt(0xFFFFFFFF, Key) + database.ReadAt(0, 99), L"");
    // Seeks return the record identifier, 0 on failure; from the end, position 0 is the last record.
    const auto last = database.SeekTo(2);
    EXPECT_NE(last, 0);
    EXPECT_EQ(database.SeekTo(0, true), last);
    EXPECT_EQ(database.SeekTo(3, true), 0);
    EXPECT_EQ(database.SeekEqual({Key, L"C"}), 0);
    // Opening puts the cursor on the first record: two steps reach the last, a third fails.
    ASSERT_TRUE(database.Open(L"test"));
    EXPECT_TRUE(database.Next() && database.Next());
    EXPECT_FALSE(database.Next());
    // An empty database has no record to stand on.
    TestDatabase empty(1);
    EXPECT_TRUE(!empty.database.Next() && empty.database.AtEnd());
}

TEST(PropertyDatabase, UpdatesDeletesAndWhatARecordCanHold)
{
    TestDatabase test(1, {{L"b", L"old"}, {L"d", L"old"}, {L"f", L"old"}});
    PropertyDatabase& database = test.database;
    // An update that changes the key moves the record in the order.
    EXPECT_TRUE(database.UpdateAt(0, record(L"z", L"new")));
    EXPECT_EQ(column(database, Key), (std::vector<std::wstring> {L"d", L"f", L"z"}));
    EXPECT_EQ(database.ReadAt(2, Other), L"new");
    // A property the record did not have is added to it.
    EXPECT_TRUE(database.UpdateAt(0, std::array<Property, 1> {{{Third, L"3"}}}));
    EXPECT_EQ(database.ReadAt(0, Third) + database.ReadAt(0, Other), L"3old");
    EXPECT_FALSE(database.UpdateAt(3, record(L"x", L"x")));

    EXPECT_TRUE(database.DeleteAt(1));
    EXPECT_EQ(column(database, Key), (std::vector<std::wstring> {L"d", L"z"}));
    EXPECT_FALSE(database.DeleteAt(2));
    // With two sort orders a record has two properties.
    PropertyDatabase narrow(*test.store);
    narrow.Create(L"narrow", 1, 2, SortIds, 1);
    const std::array<Property, 3> three = {{{Key, L"k"}, {Other, std::wstring(L"a\0b", 3)}, {Third, L"t"}}};
    ASSERT_TRUE(narrow.Open(L"narrow") && narrow.Add(three, 0));
    EXPECT_EQ(narrow.ReadAt(0, Third), L"") << "only the property count's properties are written";
    EXPECT_EQ(narrow.ReadAt(0, Other), L"a") << "a stored string ends at a null character";

    narrow.UpdateAt(0, std::array<Property, 1> {{{Other, std::wstring(1200, L'x')}}});
    EXPECT_EQ(narrow.ReadAt(0, Other), std::wstring(999, L'x')) << "reads go through a 1000-character buffer";
    const auto all = narrow.ReadRecordAt(0);
    EXPECT_EQ(std::tuple(all.size(), all.at(1).text.size()), std::tuple(2u, 999u));
}

TEST(PropertyDatabase, AFailedPartOfATransactionRollsBackTheWhole)
{
    TestDatabase test(1);
    {
        ObjectStore::Transaction load(test.store->connection());
        test.database.Add(record(L"a", L""), 0);
        {
            ObjectStore::Transaction part(test.store->connection()); // joins the load, ends without commit
        }
        test.database.Add(record(L"b", L""), 0);
        EXPECT_FALSE(load.commit());
    }
    EXPECT_EQ(test.database.RecordCount(), 0) << "the in-memory order forgets the rolled-back records too";
    EXPECT_EQ(test.database.ReadAt(0, Key), L"");

    ObjectStore::Transaction next(test.store->connection());
    test.database.Add(record(L"c", L""), 0);
    EXPECT_TRUE(next.commit()) << "the failure belonged to the earlier transaction";
    EXPECT_EQ(test.database.RecordCount(), 1);
}
