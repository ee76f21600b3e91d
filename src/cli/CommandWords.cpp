// SPDX-License-Identifier: GPL-3.0-or-later
#include "cli/CommandWords.h"

#include <cctype>
#include <ostream>

namespace {

// "-40", "-.5": a negative number is a word, not an option.
bool isOption(const std::string& arg)
{
    if (!arg.starts_with('-'))
        return false;
    const std::size_t digit = arg.size() > 2 && arg[1] == '.' ? 2 : 1;
    return !(arg.size() > digit && std::isdigit(static_cast<unsigned char>(arg[digit])));
}

} // namespace

CommandWords CommandWords::split(const std::vector<std::string>& args)
{
    CommandWords split;
    for (const std::string& arg : args)
        (isOption(arg) ? split.options : split.words).push_back(arg);
    return split;
}

int CommandWords::refuseOption(
    const std::string& option, std::string_view command, std::string_view usage, std::ostream& err)
{
    err << "wanderkit " << command << ": unknown option " << option << '\n' << usage;
    return 2;
}

bool CommandWords::takeOnlyWord(
    const std::string& word, std::string& slot, std::string_view command, std::string_view usage, std::ostream& err)
{
    if (word.starts_with("-") || !slot.empty()) {
        err << "wanderkit: " << command << ": unexpected \"" << word << "\"\n" << usage;
        return false;
    }
    slot = word;
    return true;
}

std::string CommandWords::joined(std::size_t first) const
{
    std::string text;
    for (std::size_t i = first; i < words.size(); ++i)
        text += (text.empty() ? "" : " ") + words[i];
    return text;
}

std::optional<std::string> CommandWords::optionValue(
    const std::vector<std::string>& args, std::size_t& i, std::string_view name)
{
    const std::string& word = args[i];
    if (word == name)
        return i + 1 < args.size() ? args[++i] : std::string();
    if (word.size() > name.size() && word.starts_with(name) && word[name.size()] == '=')
        return word.substr(name.size() + 1);
    return std::nullopt;
}
