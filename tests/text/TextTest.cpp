// SPDX-License-Identifier: GPL-3.0-or-later
#include "text/StringTable.h"
#include "text/WideText.h"

#include <gtest/gtest.h>

#include <tuple>

TEST(StringTable, HoldsTheProgramTexts)
{
    const std::pair<int, std::wstring_view> cases[]
        = {{40003, L"Menu"}, {40083, L"Region(State)"}, {40007, L""}, {39999, L""}, {40084, L""}};
    for (const auto& [id, text] : cases)
        EXPECT_EQ(StringTable::Load(id), text) << id;
}

TEST(WideText, ConvertsNumbersAndEncodingsFormatsFoldsCaseAndSplits)
{
    // wcstol's own parsing is the C library's; the clamp to 32 bits is ours.
    const std::pair<std::wstring, std::int32_t> wtol[]
        = {{L"-330", -330}, {L"12abc", 12}, {L"99999999999", 2147483647}, {L"-99999999999", -2147483647 - 1}};
    for (const auto& [text, value] : wtol)
        EXPECT_EQ(Wtol(text), value) << WideToUtf8(text);
    const std::pair<std::wstring, double> wcstod[] = {{L"1.0e-9", 1.0e-9}, {L"907,18474", 907.0}, {L"-", 0.0}};
    for (const auto& [text, value] : wcstod)
        EXPECT_DOUBLE_EQ(Wcstod(text), value) << WideToUtf8(text);

    EXPECT_EQ(FormatText(L"%d/%d %ls", 5, 3, L"Done"), L"5/3 Done");
    const std::wstring longText(5000, L'x');
    EXPECT_EQ(FormatText(L"%ls!", longText.c_str()), longText + L"!");

    EXPECT_EQ(Latin1ToWide("Z\xFCrich\xB0"), L"Z\u00FCrich\u00B0");
    const std::wstring text = L"\u00B5m\u00B2 \u00B0C \u20AC \U0001F30D";
    EXPECT_EQ(Utf8ToWide(WideToUtf8(text)), text);
    EXPECT_EQ(WideToUtf8(L"\u00B0"), "\xC2\xB0");
    EXPECT_EQ(Utf8ToWide(std::string("a\xFF") + "b"), L"a\uFFFDb");
    EXPECT_EQ(FoldLatin1(L"Euro \u00C9T\u00C9 \u00D7 \u00DF"), L"euro \u00E9t\u00E9 \u00D7 \u00DF");
    EXPECT_EQ(BeforeFirst(L"Paris:France", L':'), L"Paris");
    EXPECT_EQ(AfterFirst(L"01/01/2000:Le:Pays", L':'), L"Le:Pays");
    EXPECT_EQ(std::tuple(BeforeFirst(L"NoColon", L':'), AfterFirst(L"NoColon", L':')), std::tuple(L"NoColon", L""));
}
