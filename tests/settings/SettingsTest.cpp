// SPDX-License-Identifier: GPL-3.0-or-later
#include "settings/MappingFile.h"
#include "settings/RegistrySettings.h"
#include "settings/SettingsTable.h"
#include "support/TempDir.h"
#include "text/WideText.h"

#include <gtest/gtest.h>

#include <tuple>

TEST(RegistrySettings, StatusOfEachRead)
{
    auto hive = SettingsHive::openInMemory();
    RegistrySettings settings(*hive);
    settings.SetDWORD(L"Wanderkit\\wrldclk", L"clock1", 684);
    settings.SetDWORD(L"Wanderkit\\measurs", L"twenty_characters_xx", 20);
    settings.SetDWORD(L"Wanderkit\\measurs", L"twenty_one_characters", 21);
    // Key paths ignore case, value names do not; a parent of a created key exists, and so does the root; a
    // name longer than 20 characters is never found.
    const std::tuple<const wchar_t*, const wchar_t*, std::int32_t, std::uint32_t> cases[]
        = {{L"Wanderkit\\wrldclk", L"clock1", 0, 684}, {L"WANDERKIT\\WrldClk", L"clock1", 0, 684},
            {L"Wanderkit\\wrldclk", L"Clock1", -1, 0}, {L"Wanderkit\\weather", L"wetp", -2, 0},
            {L"Wanderkit", L"twelvehour", -1, 0}, {L"", L"clock1", -1, 0},
            {L"Wanderkit\\measurs", L"twenty_characters_xx", 0, 20},
            {L"Wanderkit\\measurs", L"twenty_one_characters", -1, 0}};
    for (const auto& [subkey, name, status, value] : cases) {
        SCOPED_TRACE(testing::Message() << WideToUtf8(subkey) << " " << WideToUtf8(name));
        EXPECT_EQ(settings.GetDWORD(subkey, name), value);
        EXPECT_EQ(settings.Status(), status);
    }
}

TEST(RegistrySettings, StoredForms)
{
    auto hive = SettingsHive::openInMemory();
    RegistrySettings settings(*hive);
    const std::tuple<const char*, std::wstring, std::vector<std::uint8_t>> strings[]
        = {{"two bytes a character, no terminator", L"\\w", {'\\', 0, 'w', 0}}, {"empty", L"", {}},
            {"outside the basic plane: a surrogate pair", L"\U0001F30D", {0x3C, 0xD8, 0x0D, 0xDF}}};
    for (const auto& [what, text, bytes] : strings) {
        SCOPED_TRACE(what);
        settings.SetString(L"Wanderkit\\weather", L"icondir", text);
        const auto stored = hive->value(L"Wanderkit\\weather", L"icondir").value_or(RegistryValue {});
        EXPECT_EQ(std::tuple(stored.type, stored.data), std::tuple(RegistryType::String, bytes));
        EXPECT_EQ(settings.GetString(L"Wanderkit\\weather", L"icondir"), text);
    }

    settings.SetDWORD(L"Wanderkit", L"twelvehour", 0x01020304);
    const auto dword = hive->value(L"Wanderkit", L"twelvehour").value_or(RegistryValue {});
    EXPECT_EQ(
        std::tuple(dword.type, dword.data), std::tuple(RegistryType::Dword, std::vector<std::uint8_t> {4, 3, 2, 1}));
    EXPECT_EQ(settings.GetDWORD(L"Wanderkit", L"twelvehour"), 0x01020304u) << "all four bytes are read";

    const std::uint8_t binary[] = {0xFF, 0xFE, 0x41, 0x00, 0x00, 0x00, 0x42, 0x00};
    settings.SetBinary(L"Wanderkit", L"blob", binary, sizeof binary);
    EXPECT_EQ(hive->value(L"Wanderkit", L"blob")->type, RegistryType::Binary);
    EXPECT_EQ(settings.GetDWORD(L"Wanderkit", L"blob"), 0x0041FEFFu) << "a DWORD read takes the first four bytes";
    EXPECT_EQ(settings.GetString(L"Wanderkit", L"blob"), L"\uFEFFA") << "a string read stops at a null character";
    settings.SetBinary(L"Wanderkit", L"short", binary, 1);
    EXPECT_EQ(settings.GetDWORD(L"Wanderkit", L"short"), 0xFFu);
    // A value keeps its latest type, whatever case its key path is written in.
    settings.SetString(L"WANDERKIT", L"twelvehour", L"1");
    EXPECT_EQ(hive->value(L"Wanderkit", L"twelvehour")->type, RegistryType::String);
}

TEST(SettingsTable, DefaultsAndWriteBack)
{
    // What the hive holds before the read: nothing, the key with another value, or the value 5.
    enum class Before { FreshDevice, KeyOnly, Stored };
    const std::tuple<const char*, const DwordSetting&, Before, std::uint32_t, bool> cases[]
        = {{"clock1, fresh device: default, written", Settings::Clock1, Before::FreshDevice, 684, true},
            {"clock2, value deleted: default, not written", Settings::Clock2, Before::KeyOnly, 756, false},
            {"clock3 present", Settings::Clock3, Before::Stored, 5, true},
            {"curp2, value missing: written", Settings::Currency2, Before::KeyOnly, 180, true}};
    for (const auto& [what, setting, before, read, storedAfter] : cases) {
        SCOPED_TRACE(what);
        auto hive = SettingsHive::openInMemory();
        RegistrySettings settings(*hive);
        if (before != Before::FreshDevice)
            settings.SetDWORD(setting.subkey, before == Before::Stored ? setting.name : L"another value", 5);
        EXPECT_EQ(ReadSetting(settings, setting), read);
        EXPECT_EQ(settings.GetDWORD(setting.subkey, setting.name), storedAfter ? read : 0u);
    }

    // String rows.
    auto hive = SettingsHive::openInMemory();
    RegistrySettings settings(*hive);
    EXPECT_EQ(ReadSetting(settings, Settings::IconFolder), L"\\wiconset\\");
    EXPECT_FALSE(hive->value(Settings::IconFolder.subkey, Settings::IconFolder.name));
    WriteSetting(settings, Settings::MeasureValue, L"");
    EXPECT_EQ(ReadSetting(settings, Settings::MeasureValue), L"");
    EXPECT_EQ(settings.Status(), RegistrySettings::Read) << "an empty string is a stored value";
}

TEST(MappingFile, ReadsWordsUpToTheEndMarker)
{
    const std::tuple<const char*, std::string, std::wstring> cases[]
        = {{"words up to the word with '>'", "01=sun 02=cloud\n03=rain >end 04=snow\n", L"01=sun;02=cloud;03=rain;"},
            {"'>' inside a word ends it too", "a b>c d", L"a;"},
            {"any white space separates", "\t a\r\n\v\fb  \n>", L"a;b;"},
            {"no '>' at all: the end of the file", "a b\n", L"a;b;"},
            {"bytes above 127 are Latin-1", "\xE9t\xE9 >", L"\u00E9t\u00E9;"}};
    for (const auto& [what, file, mapping] : cases)
        EXPECT_EQ(ParseMappingText(file), mapping) << what;
}

TEST(MappingFile, IsFoundThroughTheInstallFolder)
{
    TempDir dir;
    dir.write("Program Files/Wanderkit/mapping.cfg", "x=y >");
    dir.write("mapping.cfg", "root >");
    const DevicePaths paths(dir.path());
    auto hive = SettingsHive::openInMemory();
    RegistrySettings settings(*hive);
    EXPECT_EQ(ReadInstallFolder(settings), L"") << "no key: the root";
    WriteSetting(settings, Settings::InstallDir, L"\\Program Files\\Wanderkit");
    EXPECT_EQ(ReadInstallFolder(settings), L"\\Program Files\\Wanderkit");
    EXPECT_EQ(ReadMappingText(settings, paths), L"x=y;");
    WriteSetting(settings, Settings::InstallDir, L"\\Elsewhere");
    EXPECT_EQ(ReadMappingText(settings, paths), L"") << "a missing file gives no mapping";

    WriteSetting(settings, Settings::InstallDir, std::wstring(50, L'a'));
    EXPECT_EQ(ReadInstallFolder(settings), std::wstring(50, L'a'));
    WriteSetting(settings, Settings::InstallDir, std::wstring(51, L'a'));
    EXPECT_EQ(ReadInstallFolder(settings), L"") << "a folder that does not fit the 50-character buffer";
}
