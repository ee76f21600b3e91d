// SPDX-License-Identifier: GPL-3.0-or-later
#include "cli/DialCommand.h"

#include "cli/CommandWords.h"
#include "reference/DialingCodes.h"
#include "text/WideText.h"

#include <ostream>
#include <string>

namespace {

void PrintLine(std::ostream& out, std::wstring_view a, std::wstring_view b, std::wstring_view c)
{
    out << WideToUtf8(a) << '\t' << WideToUtf8(b) << '\t' << WideToUtf8(c) << '\n';
}

// Prints the matching rows; false when none matched.
bool PrintCountries(std::ostream& out, const std::wstring& text)
{
    const auto rows = DialingCodes::FindCountries(text);
    for (const DialingCodes::Country& row : rows)
        PrintLine(out, row.country, DialingCodes::ShownCode(row), row.gmt);
    return !rows.empty();
}

bool PrintAreaCodes(std::ostream& out, const std::wstring& text)
{
    const auto rows = DialingCodes::FindAreaCodes(text);
    for (const DialingCodes::AreaCode& row : rows)
        PrintLine(out, row.city, row.state, row.code);
    return !rows.empty();
}

} // namespace

int RunDialCommand(const CommandRequest& request, std::ostream& out, std::ostream& err)
{
    const CommandWords args = CommandWords::split(request.args);
    bool us = false;
    for (const std::string& option : args.options) {
        if (option != "--us") {
            err << "wanderkit dial: unknown option " << option << "\nUsage: wanderkit dial [--us] [TEXT]\n";
            return 2;
        }
        us = true;
    }
    const std::string text = args.joined();
    const bool found = us ? PrintAreaCodes(out, Utf8ToWide(text)) : PrintCountries(out, Utf8ToWide(text));
    if (!found)
        err << "wanderkit dial: no " << (us ? "city or state" : "country") << " contains \"" << text << "\"\n";
    return 0;
}
