// SPDX-License-Identifier: GPL-3.0-or-later
#include "settings/MappingFile.h"

#include "settings/SettingsTable.h"
#include "support/TempDir.h"

#include <gtest/gtest.h>

#include <tuple>

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
    EXPECT_EQ(ReadMappingText(settings, paths), L"root;");

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
