// SPDX-License-Identifier: GPL-3.0-or-later
#include "settings/RegistrySettings.h"

#include "text/WideText.h"

#include <gtest/gtest.h>

#include <tuple>

namespace {

struct Hive
{
    std::unique_ptr<SettingsHive> hive = SettingsHive::openInMemory();
    RegistrySettings settings {*hive};
};

} // namespace

TEST(RegistrySettings, StatusOfEachRead)
{
    Hive h;
    h.settings.SetDWORD(L"Wanderkit\\wrldclk", L"clock1", 684);
    h.settings.SetDWORD(L"Wanderkit\\measurs", L"twenty_characters_xx", 20);
    h.settings.SetDWORD(L"Wanderkit\\measurs", L"twenty_one_characters", 21);

    const std::tuple<const wchar_t*, const wchar_t*, std::int32_t, std::uint32_t> cases[] = {
        {L"Wanderkit\\wrldclk", L"clock1", 0, 684}, {L"WANDERKIT\\WrldClk", L"clock1", 0, 684}, // key paths ignore case
        {L"Wanderkit\\wrldclk", L"Clock1", -1, 0}, // value names do not
        {L"Wanderkit\\weather", L"wetp", -2, 0},
        {L"Wanderkit", L"twelvehour", -1, 0}, // a parent of a created key exists
        {L"Wanderkit\\measurs", L"twenty_characters_xx", 0, 20},
        {L"Wanderkit\\measurs", L"twenty_one_characters", -1, 0}, // longer than 20: never found
        {L"", L"clock1", -1, 0}, // the root key always exists
    };
    for (const auto& [subkey, name, status, value] : cases) {
        SCOPED_TRACE(testing::Message() << WideToUtf8(subkey) << " " << WideToUtf8(name));
        EXPECT_EQ(h.settings.GetDWORD(subkey, name), value);
        EXPECT_EQ(h.settings.Status(), status);
        h.settings.GetString(subkey, name);
        EXPECT_EQ(h.settings.Status(), status) << "GetString reports the same status";
    }
}

TEST(RegistrySettings, StoredForms)
{
    Hive h;
    const std::tuple<const char*, std::wstring, std::vector<std::uint8_t>> strings[]
        = {{"two bytes a character, no terminator", L"\\wiconset\\",
               {'\\', 0, 'w', 0, 'i', 0, 'c', 0, 'o', 0, 'n', 0, 's', 0, 'e', 0, 't', 0, '\\', 0}},
            {"empty", L"", {}}, {"outside the basic plane: a surrogate pair", L"\U0001F30D", {0x3C, 0xD8, 0x0D, 0xDF}}};
    for (const auto& [what, text, bytes] : strings) {
        SCOPED_TRACE(what);
        h.settings.SetString(L"Wanderkit\\weather", L"icondir", text);
        const auto stored = h.hive->value(L"Wanderkit\\weather", L"icondir");
        ASSERT_TRUE(stored);
        EXPECT_EQ(stored->type, RegistryType::String);
        EXPECT_EQ(stored->data, bytes);
        EXPECT_EQ(h.settings.GetString(L"Wanderkit\\weather", L"icondir"), text);
    }

    h.settings.SetDWORD(L"Wanderkit", L"twelvehour", 0x01020304);
    const auto dword = h.hive->value(L"Wanderkit", L"twelvehour");
    ASSERT_TRUE(dword);
    EXPECT_EQ(dword->type, RegistryType::Dword);
    EXPECT_EQ(dword->data, (std::vector<std::uint8_t> {4, 3, 2, 1}));
    EXPECT_EQ(h.settings.GetDWORD(L"Wanderkit", L"twelvehour"), 0x01020304u) << "all four bytes are read";

    const std::uint8_t binary[] = {0xFF, 0xFE, 0x41, 0x00, 0x00, 0x00, 0x42, 0x00};
    h.settings.SetBinary(L"Wanderkit", L"blob", binary, sizeof binary);
    EXPECT_EQ(h.hive->value(L"Wanderkit", L"blob")->type, RegistryType::Binary);
    EXPECT_EQ(h.settings.GetDWORD(L"Wanderkit", L"blob"), 0x0041FEFFu) << "a DWORD read takes the first four bytes";
    EXPECT_EQ(h.settings.GetString(L"Wanderkit", L"blob"), L"\uFEFFA") << "a string read stops at a null character";
    h.settings.SetBinary(L"Wanderkit", L"short", binary, 1);
    EXPECT_EQ(h.settings.GetDWORD(L"Wanderkit", L"short"), 0xFFu);

    // A value keeps its name's case and its latest type.
    h.settings.SetString(L"WANDERKIT", L"twelvehour", L"1");
    EXPECT_EQ(h.hive->value(L"Wanderkit", L"twelvehour")->type, RegistryType::String);
}
