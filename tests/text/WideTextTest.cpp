// SPDX-License-Identifier: GPL-3.0-or-later
#include "text/WideText.h"

#include <gtest/gtest.h>

TEST(WideText, NumbersConvertAsTheCLibraryDoes)
{
    struct WtolCase
    {
        std::wstring text;
        std::int32_t value;
    };
    const WtolCase wtol[] = {
        {L"530", 530},
        {L"-330", -330},
        {L"  +7", 7},
        {L"12abc", 12},
        {L"abc", 0},
        {L"", 0},
        {L"99999999999", 2147483647},
        {L"-99999999999", -2147483647 - 1},
        {L"1\r", 1},
        {L"0:88", 0},
    };
    for (const auto& c : wtol)
        EXPECT_EQ(Wtol(c.text), c.value) << std::string(c.text.begin(), c.text.end());

    struct WcstodCase
    {
        std::wstring text;
        double value;
    };
    const WcstodCase wcstod[] = {
        {L"1.0e-9", 1.0e-9},
        {L"907,18474", 907.0},
        {L"  0.5x", 0.5},
        {L"-", 0.0},
        {L"", 0.0},
        {L"1609.344", 1609.344},
    };
    for (const auto& c : wcstod)
        EXPECT_DOUBLE_EQ(Wcstod(c.text), c.value) << std::string(c.text.begin(), c.text.end());
}

TEST(WideText, FormatsLikePrintf)
{
    EXPECT_EQ(FormatText(L"%d/%d %ls", 5, 3, L"Done"), L"5/3 Done");
    EXPECT_EQ(FormatText(L"%.8f", 1.0), L"1.00000000");
    EXPECT_EQ(FormatText(L"%f", 907.0), L"907.000000");
    const std::wstring longText(5000, L'x');
    EXPECT_EQ(FormatText(L"%ls!", longText.c_str()), longText + L"!");
}

TEST(WideText, ConvertsBetweenEncodings)
{
    EXPECT_EQ(Latin1ToWide("Z\xFCrich\xB0"), L"Z\u00FCrich\u00B0");
    const std::wstring text = L"\u00B5m\u00B2 \u00B0C \u20AC \U0001F30D";
    EXPECT_EQ(Utf8ToWide(WideToUtf8(text)), text);
    EXPECT_EQ(WideToUtf8(L"\u00B0"), "\xC2\xB0");
    EXPECT_EQ(Utf8ToWide("a\xFF"
                         "b"),
        L"a\uFFFDb");
}

TEST(WideText, FoldsLatin1Case)
{
    EXPECT_EQ(FoldLatin1(L"Euro \u00C9T\u00C9 \u00D7 \u00DF"), L"euro \u00E9t\u00E9 \u00D7 \u00DF");
}

TEST(WideText, SplitsAtTheFirstSeparator)
{
    EXPECT_EQ(BeforeFirst(L"Paris:France", L':'), L"Paris");
    EXPECT_EQ(AfterFirst(L"Paris:France", L':'), L"France");
    EXPECT_EQ(AfterFirst(L"01/01/2000:Le:Pays", L':'), L"Le:Pays");
    EXPECT_EQ(BeforeFirst(L"NoColon", L':'), L"NoColon");
    EXPECT_EQ(AfterFirst(L"NoColon", L':'), L"");
}
