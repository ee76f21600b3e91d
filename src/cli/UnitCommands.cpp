// SPDX-License-Identifier: GPL-3.0-or-later
#include "cli/UnitCommands.h"

#include "cli/CommandSession.h"
#include "cli/CommandWords.h"
#include "cli/UnitLookup.h"
#include "text/StringTable.h"
#include "text/WideText.h"
#include "units/UnitCatalogue.h"
#include "units/UnitConversion.h"
#include "units/UnitLists.h"

#include <algorithm>
#include <optional>
#include <ostream>
#include <set>
#include <string>
#include <utility>
#include <vector>

namespace {

constexpr const char* ConvertUsage = "Usage: wanderkit convert AMOUNT FROM TO\n";
constexpr const char* UnitsUsage = "Usage: wanderkit units [CATEGORY]\n";
constexpr int BelowAbsoluteZero = 40055;

using UnitPair = std::pair<UnitPlace, UnitPlace>;

// The units as the Measurements screen reads them, the catalogue built first if needed.
std::optional<UnitLists> readLists(const CommandRequest& request, std::ostream& err)
{
    const auto session = CommandSession::open(request, err);
    if (!session)
        return std::nullopt;
    UnitCatalogue catalogue(session->device().objects());
    catalogue.Build();
    return UnitLists::Read(catalogue);
}

std::string title(int category)
{
    return WideToUtf8(StringTable::Load(UnitTables::Categories()[static_cast<std::size_t>(category)].titleId));
}

// Every from/to pair of one category.
std::vector<UnitPair> sameCategory(const std::vector<UnitPlace>& from, const std::vector<UnitPlace>& to)
{
    std::vector<UnitPair> pairs;
    for (const UnitPlace& f : from) {
        for (const UnitPlace& t : to) {
            if (f.category == t.category)
                pairs.emplace_back(f, t);
        }
    }
    return pairs;
}

// Lists the places of one side of `pairs` when they differ; true when it did.
bool listAmbiguous(std::ostream& err, const UnitLookup& lookup, const std::string& word,
    const std::vector<UnitPair>& pairs, UnitPlace UnitPair::*side)
{
    std::vector<UnitPlace> places;
    for (const UnitPair& pair : pairs) {
        if (std::find(places.begin(), places.end(), pair.*side) == places.end())
            places.push_back(pair.*side);
    }
    if (places.size() < 2)
        return false;
    err << "wanderkit convert: \"" << word << "\" names several units; give one of:\n";
    for (const UnitPlace& place : places)
        err << "  " << place.category << ':' << place.index << '\t' << lookup.describe(place) << '\n';
    return true;
}

// The one pair FROM and TO name, or nothing with the reason on `err`.
std::optional<UnitPair> resolve(
    std::ostream& err, const UnitLookup& lookup, const std::string& fromWord, const std::string& toWord)
{
    const auto from = lookup.find(fromWord);
    const auto to = lookup.find(toWord);
    if (from.empty() || to.empty()) {
        err << "wanderkit convert: no unit is named \"" << (from.empty() ? fromWord : toWord)
            << "\" (see wanderkit units)\n";
        return std::nullopt;
    }
    const auto pairs = sameCategory(from, to);
    if (pairs.empty()) {
        err << "wanderkit convert: \"" << fromWord << "\" and \"" << toWord << "\" are not units of one category\n";
        return std::nullopt;
    }
    const bool fromAmbiguous = listAmbiguous(err, lookup, fromWord, pairs, &UnitPair::first);
    // The same word on both sides is listed once.
    const bool toAmbiguous
        = (fromAmbiguous && toWord == fromWord) || listAmbiguous(err, lookup, toWord, pairs, &UnitPair::second);
    if (fromAmbiguous || toAmbiguous)
        return std::nullopt;
    return pairs.front();
}

std::optional<int> findCategory(const std::string& word)
{
    if (word.size() == 1 && word[0] >= '0' && word[0] < '0' + UnitTables::CategoryCount)
        return word[0] - '0';
    const std::wstring wanted = FoldLatin1(Utf8ToWide(word));
    std::set<int> starts;
    for (int category = 0; category < UnitTables::CategoryCount; ++category) {
        const std::wstring name = FoldLatin1(Utf8ToWide(title(category)));
        if (name == wanted)
            return category;
        if (name.starts_with(wanted))
            starts.insert(category);
    }
    return starts.size() == 1 ? std::optional<int>(*starts.begin()) : std::nullopt;
}

void printCategory(std::ostream& out, const UnitLists& lists, int category)
{
    out << title(category) << '\n';
    const auto names = lists.Names(category);
    for (std::size_t i = 0; i < names.size(); ++i)
        out << WideToUtf8(names[i]) << '\t' << WideToUtf8(lists.Factor(category, static_cast<int>(i))) << '\n';
}

} // namespace

int RunConvertCommand(const CommandRequest& request, std::ostream& out, std::ostream& err)
{
    return CommandWords::withoutOptions(request.args, "convert", ConvertUsage, err, [&](const CommandWords& args) {
        if (args.words.size() != 3) {
            err << ConvertUsage;
            return 2;
        }
        const auto lists = readLists(request, err);
        if (!lists)
            return 1;
        const UnitLookup lookup(*lists);
        const auto pair = resolve(err, lookup, args.words[1], args.words[2]);
        if (!pair)
            return 2;
        const auto [from, to] = *pair;
        const auto result
            = UnitConversion::Convert(*lists, from.category, from.index, to.index, Utf8ToWide(args.words[0]));
        out << WideToUtf8(result.text) << '\n';
        if (result.belowAbsoluteZero) {
            err << WideToUtf8(StringTable::Load(BelowAbsoluteZero)) << '\n';
            return 1;
        }
        return 0;
    });
}

int RunUnitsCommand(const CommandRequest& request, std::ostream& out, std::ostream& err)
{
    return CommandWords::withoutOptions(request.args, "units", UnitsUsage, err, [&](const CommandWords& args) {
        std::optional<int> only;
        if (!args.words.empty()) {
            only = findCategory(args.joined());
            if (!only) {
                err << "wanderkit units: no category \"" << args.joined() << "\"; choose 0 to 6 or one of:";
                for (int category = 0; category < UnitTables::CategoryCount; ++category)
                    err << (category ? ", " : " ") << title(category);
                err << '\n';
                return 2;
            }
        }
        const auto lists = readLists(request, err);
        if (!lists)
            return 1;
        for (int category = 0; category < UnitTables::CategoryCount; ++category) {
            if (only && *only != category)
                continue;
            out << (only || category == 0 ? "" : "\n");
            printCategory(out, *lists, category);
        }
        return 0;
    });
}
