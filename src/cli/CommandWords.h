// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstddef>
#include <iosfwd>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

// The words after a text command, with its options ("-x", "--x") set apart from the other words; a
// negative number ("-40") is a word.
struct CommandWords
{
    std::vector<std::string> options;
    std::vector<std::string> words;

    static CommandWords split(const std::vector<std::string>& args);
    // The words of `command`, which takes no options; nothing, with "unknown option" and `usage` printed
    // on `err`, when an option is given.
    [[nodiscard]] static std::optional<CommandWords> withoutOptions(
        const std::vector<std::string>& args, std::string_view command, std::string_view usage, std::ostream& err);
    // The words from `first` on, joined by single blanks ("shirts and sweaters").
    std::string joined(std::size_t first = 0) const;
};
