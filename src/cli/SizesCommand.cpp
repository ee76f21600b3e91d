// SPDX-License-Identifier: GPL-3.0-or-later
#include "cli/SizesCommand.h"

#include "cli/CommandWords.h"
#include "reference/ClothingSizes.h"
#include "text/StringTable.h"
#include "text/WideText.h"

#include <optional>
#include <ostream>
#include <span>
#include <string>

namespace {

constexpr const char* Usage = "Usage: wanderkit sizes [WEARER [GARMENT]]\n";

// The position of the string id whose text is `name`, ignoring case.
std::optional<int> FindByName(std::span<const int> ids, const std::string& name)
{
    const std::wstring wanted = FoldLatin1(Utf8ToWide(name));
    for (std::size_t i = 0; i < ids.size(); ++i) {
        if (FoldLatin1(StringTable::Load(ids[i])) == wanted)
            return static_cast<int>(i);
    }
    return std::nullopt;
}

std::string Choices(std::span<const int> ids)
{
    std::string text;
    for (const int id : ids)
        text += (text.empty() ? "" : ", ") + WideToUtf8(StringTable::Load(id));
    return text;
}

int UnknownName(std::ostream& err, const char* what, const std::string& name, std::span<const int> choices)
{
    err << "wanderkit sizes: unknown " << what << " \"" << name << "\"; choose one of: " << Choices(choices) << '\n';
    return 2;
}

void PrintTable(std::ostream& out, const ClothingSizes::Table& table)
{
    out << WideToUtf8(StringTable::Load(table.titleId)) << '\n';
    for (const std::wstring_view row : table.rows)
        out << WideToUtf8(row) << '\n';
}

// Prints the tables of `wearer`, only the one of `garment` when given.
void PrintWearer(std::ostream& out, int wearer, std::optional<int> garment, bool& first)
{
    const int count = static_cast<int>(ClothingSizes::Garments(wearer).size());
    for (int g = 0; g < count; ++g) {
        if (garment && *garment != g)
            continue;
        out << (first ? "" : "\n");
        PrintTable(out, *ClothingSizes::Find(wearer, g));
        first = false;
    }
}

} // namespace

int RunSizesCommand(const CommandRequest& request, std::ostream& out, std::ostream& err)
{
    return CommandWords::withoutOptions(request.args, "sizes", Usage, err, [&](const CommandWords& args) {
        std::optional<int> wearer;
        std::optional<int> garment;
        if (!args.words.empty()) {
            wearer = FindByName(ClothingSizes::Wearers(), args.words.front());
            if (!wearer)
                return UnknownName(err, "wearer", args.words.front(), ClothingSizes::Wearers());
        }
        if (args.words.size() > 1) {
            const std::string name = args.joined(1);
            garment = FindByName(ClothingSizes::Garments(*wearer), name);
            if (!garment)
                return UnknownName(err, "garment", name, ClothingSizes::Garments(*wearer));
        }
        bool first = true;
        const int wearers = static_cast<int>(ClothingSizes::Wearers().size());
        for (int w = 0; w < wearers; ++w) {
            if (!wearer || *wearer == w)
                PrintWearer(out, w, garment, first);
        }
        return 0;
    });
}
