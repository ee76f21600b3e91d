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
    // Runs `body(words)` for `command`, which takes no options, and gives its exit code; an option is
    // refused with "unknown option" and `usage` printed on `err` (exit code 2).
    template<typename Body>
    [[nodiscard]] static int withoutOptions(const std::vector<std::string>& args, std::string_view command,
        std::string_view usage, std::ostream& err, Body body)
    {
        const CommandWords words = split(args);
        if (!words.options.empty())
            return refuseOption(words.options.front(), command, usage, err);
        return body(words);
    }
    // Prints that `option` is unknown to `command`, then `usage`; gives the usage-error exit code.
    static int refuseOption(
        const std::string& option, std::string_view command, std::string_view usage, std::ostream& err);
    // The value of option `name` at args[i], given as "NAME VALUE" (i then steps over the value; "" when
    // none follows) or as "NAME=VALUE"; nothing when args[i] is another word.
    static std::optional<std::string> optionValue(
        const std::vector<std::string>& args, std::size_t& i, std::string_view name);
    // Takes `word` as the command's one positional word into `slot`. An option, or a second word, is printed
    // as unexpected on `err` with `usage`, and gives false.
    [[nodiscard]] static bool takeOnlyWord(const std::string& word, std::string& slot, std::string_view command,
        std::string_view usage, std::ostream& err);
    // The words from `first` on, joined by single blanks ("shirts and sweaters").
    std::string joined(std::size_t first = 0) const;
};
