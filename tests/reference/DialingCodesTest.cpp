// SPDX-License-Identifier: GPL-3.0-or-later
#include "reference/DialingCodes.h"

#include "text/WideText.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <fstream>
#include <map>
#include <regex>
#include <set>
#include <sstream>
#include <string>
#include <vector>

namespace {

using DialingCodes::AreaCode;
using DialingCodes::Country;

// The rows of the snapshot written by tools/dialing: row, country, iso, code, capital, zone, gmt.
std::vector<std::vector<std::string>> SnapshotRows()
{
    std::ifstream in(WANDERKIT_DIALING_SNAPSHOT);
    std::vector<std::vector<std::string>> rows;
    for (std::string line; std::getline(in, line);) {
        if (line.starts_with('#') || line.starts_with("row\t"))
            continue;
        std::istringstream fields(line);
        rows.emplace_back();
        for (std::string field; std::getline(fields, field, '\t');)
            rows.back().push_back(field);
    }
    return rows;
}

} // namespace

// Every code is the calling code of the named public source and every offset the capital's standard
// offset from tzdata, except where the printed rows give their own texts.
TEST(DialingCodes, InternationalRowsMatchTheirSources)
{
    const std::set<std::string> statedRows {"Afghanistan", "American Samoa", "Antigua and Barbuda", "Bermuda",
        "Cocos Islands", "Comoros", "Diego Garcia", "Fyrom (Macedonia)", "Iran", "Norfolk Island", "Puerto Rico"};
    const std::set<std::string> statedOffsets {"Australia"};

    std::map<std::string, const Country*> stated;
    const auto sources = SnapshotRows();
    const auto rows = DialingCodes::International();
    ASSERT_EQ(sources.size(), rows.size()) << "snapshot " << WANDERKIT_DIALING_SNAPSHOT;
    for (std::size_t i = 0; i < rows.size(); ++i) {
        const auto& source = sources[i];
        ASSERT_EQ(source.size(), 7u) << "snapshot row " << i;
        const std::string country = WideToUtf8(rows[i].country.substr(0, rows[i].country.find_last_not_of(L' ') + 1));
        SCOPED_TRACE(country);
        EXPECT_EQ(source[0], std::to_string(i));
        EXPECT_EQ(source[1], country);
        if (statedRows.contains(country)) {
            stated[country] = &rows[i];
            continue;
        }
        EXPECT_EQ(WideToUtf8(rows[i].code), source[3]) << "calling code of " << source[2];
        if (!statedOffsets.contains(country)) {
            EXPECT_EQ(WideToUtf8(rows[i].gmt), source[6]) << "standard offset of " << source[5];
        }
    }
    // The rows the sources do not give keep their printed texts, trailing blanks included.
    EXPECT_EQ(DialingCodes::ShownCode(*stated.at("Bermuda")), L"+1 +441 or 809 ");
    EXPECT_EQ(DialingCodes::ShownCode(*stated.at("Afghanistan")), L"+93");
    EXPECT_EQ(stated.at("Cocos Islands")->gmt, L"+x");
}

TEST(DialingCodes, AreaCodeRowsAreWellFormedAndInCityOrder)
{
    const std::wregex state(LR"([A-Z][A-Za-z ]+\([A-Z]{2}\))");
    const std::wregex code(LR"(\+[2-9][0-9]{2})");
    std::set<std::wstring_view> states;
    std::set<std::wstring> cityCodes;
    std::wstring_view previousCity;
    for (const AreaCode& row : DialingCodes::UsAreaCodes()) {
        cityCodes.insert(std::wstring(row.city) + std::wstring(row.code));
        EXPECT_TRUE(std::regex_match(std::wstring(row.state), state)) << WideToUtf8(row.state);
        EXPECT_TRUE(std::regex_match(std::wstring(row.code), code)) << WideToUtf8(row.code);
        EXPECT_LE(previousCity, row.city);
        previousCity = row.city;
        states.insert(row.state);
    }
    EXPECT_EQ(DialingCodes::UsAreaCodes().size(), 259u);
    EXPECT_EQ(states.size(), 51u);
    // A city with several codes has one row per code, and the one repeated row of the list is kept.
    EXPECT_EQ(cityCodes.size(), 258u);
    EXPECT_EQ(std::ranges::count(DialingCodes::UsAreaCodes(), L"Dallas", &AreaCode::city), 3);
}
