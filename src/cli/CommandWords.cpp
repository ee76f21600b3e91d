// SPDX-License-Identifier: GPL-3.0-or-later
#include "cli/CommandWords.h"

CommandWords CommandWords::split(const std::vector<std::string>& args)
{
    CommandWords split;
    for (const std::string& arg : args)
        (arg.starts_with('-') ? split.options : split.words).push_back(arg);
    return split;
}

std::string CommandWords::joined(std::size_t first) const
{
    std::string text;
    for (std::size_t i = first; i < words.size(); ++i)
        text += (text.empty() ? "" : " ") + words[i];
    return text;
}
