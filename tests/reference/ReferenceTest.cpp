// SPDX-License-Identifier: GPL-3.0-or-later
#include "reference/ClothingSizes.h"
#include "reference/DialingCodes.h"
#include "text/StringTable.h"
#include "text/WideText.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <fstream>
#include <map>
#include <regex>
#include <set>
#include <sstream>
#include <string>
#include <tuple>
#include <vector>

namespace {

// The sizes of a row, after its region's name.
std::vector<double> Sizes(std::wstring_view row)
{
    std::wistringstream in {std::wstring(row.substr(row.find(L' ')))};
    std::vector<double> sizes;
    for (double size; in >> size;)
        sizes.push_back(size);
    return sizes;
}

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

TEST(ClothingSizes, EveryTableNamesItsRegionsInOrderUnderItsOwnTitle)
{
    // Rows compare USA, Europe, the UK (France for bras) and Japan (international sizes for bras).
    std::set<std::wstring_view> titles;
    for (const int wearer : {0, 1, 2}) {
        for (std::size_t garment = 0; garment < ClothingSizes::Garments(wearer).size(); ++garment) {
            const ClothingSizes::Table* table = ClothingSizes::Find(wearer, static_cast<int>(garment));
            ASSERT_NE(table, nullptr);
            EXPECT_TRUE(titles.insert(StringTable::Load(table->titleId)).second);
            const bool bras = wearer == 1 && garment == 0;
            const std::wstring_view regions[]
                = {L"USA ", L"Europe ", bras ? L"France " : L"UK ", bras ? L"INTL " : L"Japan "};
            for (std::size_t row = 0; row < 4; ++row)
                EXPECT_TRUE(table->rows[row].starts_with(regions[row])) << wearer << "/" << garment << ": " << row;
        }
    }
    EXPECT_EQ(titles.size(), 12u);
    // Women's blouses reuse the UK line of men's suits, as the printed chart does.
    EXPECT_EQ(ClothingSizes::Find(1, 2)->rows[2], ClothingSizes::Find(0, 2)->rows[2]);

    // No table outside the lists (the sizes command lists the wearers' and garments' names when refusing).
    EXPECT_TRUE(ClothingSizes::Garments(-1).empty() && ClothingSizes::Garments(3).empty());
    const std::pair<int, int> outside[] = {{-1, 0}, {3, 0}, {0, -1}, {0, 4}, {1, 5}, {2, 3}};
    for (const auto& [wearer, garment] : outside)
        EXPECT_EQ(ClothingSizes::Find(wearer, garment), nullptr) << wearer << ", " << garment;
}

// Size systems that follow each other by a rule, so a slipped or mistyped size breaks the rule: in every
// column, size in row `to` = size in row `from` x factor + offset.
TEST(ClothingSizes, RowsFollowTheRulesBetweenSizeSystems)
{
    // Wearer, garment, from row, to row, factor, offset. Men's shirts: UK = US collar, Japan = Europe (cm);
    // shoes: UK = US - 1; suits: Europe = US chest + 10; trousers: Europe = US waist + 16, Japan = Europe.
    // Bras: Europe = France - 15, INTL = France - 20; women's blouses: Europe = US + 28, Japan = US - 1; shoes:
    // UK = US - 1.5, Europe = US + 31; trousers: UK = US + 2. Children's clothing: Japan = Europe + 50;
    // children's trousers: Japan = 5 x US + 80.
    const std::tuple<int, int, int, int, double, double> rules[]
        = {{0, 0, 0, 2, 1, 0}, {0, 0, 1, 3, 1, 0}, {0, 1, 0, 2, 1, -1}, {0, 2, 0, 1, 1, 10}, {0, 3, 0, 1, 1, 16},
            {0, 3, 1, 3, 1, 0}, {1, 0, 2, 1, 1, -15}, {1, 0, 2, 3, 1, -20}, {1, 2, 0, 1, 1, 28}, {1, 2, 0, 3, 1, -1},
            {1, 3, 0, 2, 1, -1.5}, {1, 3, 0, 1, 1, 31}, {1, 4, 0, 2, 1, 2}, {2, 0, 1, 3, 1, 50}, {2, 2, 0, 3, 5, 80}};
    for (const auto& [wearer, garment, from, to, factor, offset] : rules) {
        const ClothingSizes::Table* table = ClothingSizes::Find(wearer, garment);
        const std::vector<double> given = Sizes(table->rows[static_cast<std::size_t>(from)]);
        std::vector<double> expected;
        for (const double size : given)
            expected.push_back(size * factor + offset);
        EXPECT_EQ(Sizes(table->rows[static_cast<std::size_t>(to)]), expected) << wearer << "/" << garment;
        EXPECT_GE(given.size(), 5u);
    }
}

TEST(ClothingSizes, ShiftHidesTenMoreLeadingCharactersEachStep)
{
    // Steps outside 0..2 are held at the nearest end; a row shorter than the hidden part shows nothing.
    const std::wstring_view shirts = ClothingSizes::Find(0, 0)->rows[0];
    const std::wstring_view japan = ClothingSizes::Find(0, 2)->rows[3];
    const std::tuple<std::wstring_view, int, std::wstring_view> cases[]
        = {{shirts, 0, shirts}, {shirts, 1, L"14  14.5   15   15.5   16  16.5  17  17.5"}, {japan, -1, japan},
            {japan, 3, L" 34/S   38/M  40/L  44/LL"}, {L"UK  12", 1, L""}};
    for (const auto& [row, shift, shown] : cases)
        EXPECT_EQ(ClothingSizes::Shifted(row, shift), shown) << "shift " << shift;
}

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
