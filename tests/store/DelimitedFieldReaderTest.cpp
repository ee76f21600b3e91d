// SPDX-License-Identifier: GPL-3.0-or-later
#include "store/DelimitedFieldReader.h"

#include <gtest/gtest.h>

#include <tuple>
#include <vector>

TEST(DelimitedFieldReader, ReadsFieldsAsTheDataFilesNeedThem)
{
    // The bytes, then one read per delimiter character.
    const std::tuple<const char*, std::string, std::string, std::vector<std::wstring>> cases[]
        = {{"fields up to each delimiter", "2\nUSD_Dollar_1.0#", "\n__#", {L"2", L"USD", L"Dollar", L"1.0"}},
            {"delimiters before a field are skipped", ";a;;;b;", ";;;", {L"a", L"b", L""}},
            {"line breaks after a record begin the next field", "x#\r\nEUR_", "#_", {L"x", L"\r\nEUR"}},
            {"end of file ends a field, then fields are empty", "abc", "##", {L"abc", L""}},
            {"bytes above 127 are Latin-1", "Z\xFCrich\xB0;\xFF", ";;", {L"Z\u00FCrich\u00B0", L"\u00FF"}},
            {"a null byte is a character", std::string("a\0b;", 4), ";", {std::wstring(L"a\0b", 3)}}};
    for (const auto& [what, bytes, delimiters, expected] : cases) {
        SCOPED_TRACE(what);
        DelimitedFieldReader reader(bytes);
        std::vector<std::wstring> fields;
        for (const char delimiter : delimiters)
            fields.push_back(reader.read(delimiter));
        EXPECT_EQ(fields, expected);
    }

    // At most 1499 characters a field are kept.
    DelimitedFieldReader reader(std::string(1600, 'a') + ";next;");
    EXPECT_EQ(reader.read(';'), std::wstring(1499, L'a'));
    EXPECT_EQ(reader.read(';'), L"next") << "the rest of the long field is dropped, not taken as the next field";
    EXPECT_TRUE(reader.atEnd());
}
