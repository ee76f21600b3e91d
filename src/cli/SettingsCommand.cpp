// SPDX-License-Identifier: GPL-3.0-or-later
#include "cli/SettingsCommand.h"

#include "cli/CommandSession.h"
#include "cli/CommandWords.h"
#include "settings/RegistryValueText.h"
#include "text/WideText.h"

#include <charconv>
#include <cstdio>
#include <optional>
#include <ostream>
#include <string>
#include <vector>

namespace {

constexpr const char* Usage
    = "Usage: wanderkit settings [get KEY NAME | set KEY NAME VALUE [--type dword|string] | reset]\n";

// The words of the command with the value of --type set apart, or what is wrong with them.
struct SettingsWords
{
    std::vector<std::string> words;
    std::string type = "dword";
    std::string problem;
};

// An action, the number of its words (the action's own included) and what follows it.
struct SettingsAction
{
    std::string_view name;
    std::size_t words;
    std::string_view wants;
};

constexpr SettingsAction Actions[]
    = {{"get", 3, "KEY NAME"}, {"set", 4, "KEY NAME VALUE"}, {"reset", 1, "nothing after it"}};

// What is wrong with the words besides an unknown option: the type, the action or their number; empty if nothing.
std::string problemOf(const SettingsWords& split)
{
    if (split.type != "dword" && split.type != "string")
        return "--type wants dword or string, got \"" + split.type + "\"";
    if (split.words.empty())
        return {};
    for (const SettingsAction& action : Actions) {
        if (split.words[0] == action.name)
            return split.words.size() == action.words
                ? std::string()
                : std::string(action.name) + " wants " + std::string(action.wants);
    }
    return "unknown action \"" + split.words[0] + "\"";
}

SettingsWords splitWords(const std::vector<std::string>& args)
{
    SettingsWords split;
    for (std::size_t i = 0; i < args.size(); ++i) {
        if (auto type = CommandWords::optionValue(args, i, "--type")) {
            split.type = std::move(*type);
        } else if (args[i].starts_with("--")) {
            split.problem = "unknown option " + args[i];
            return split;
        } else {
            split.words.push_back(args[i]);
        }
    }
    split.problem = problemOf(split);
    return split;
}

std::string typeName(RegistryType type)
{
    switch (type) {
    case RegistryType::Dword:
        return "dword";
    case RegistryType::String:
        return "string";
    case RegistryType::Binary:
        return "binary";
    }
    return "type " + std::to_string(static_cast<std::uint32_t>(type));
}

// A number as a number, a text as UTF-8, anything else as hexadecimal bytes.
std::string valueText(const RegistryValue& value)
{
    if (value.type == RegistryType::Dword)
        return std::to_string(RegistryDwordOf(value.data));
    if (value.type == RegistryType::String)
        return WideToUtf8(RegistryTextOf(value.data));
    std::string hex;
    for (const std::uint8_t byte : value.data) {
        char pair[4];
        std::snprintf(pair, sizeof pair, "%s%02x", hex.empty() ? "" : " ", byte);
        hex += pair;
    }
    return hex;
}

// A 32-bit number written in decimal, negative ones as their two's complement.
std::optional<std::uint32_t> parseDword(const std::string& text)
{
    long long number = 0;
    const auto [end, ec] = std::from_chars(text.data(), text.data() + text.size(), number);
    if (ec != std::errc() || end != text.data() + text.size() || number < -2147483648LL || number > 4294967295LL)
        return std::nullopt;
    return static_cast<std::uint32_t>(number);
}

int list(RegistrySettings& settings, std::ostream& out)
{
    for (const StoredRegistryValue& stored : settings.ListValues())
        out << WideToUtf8(stored.key) << '\t' << WideToUtf8(stored.name) << '\t' << typeName(stored.value.type) << '\t'
            << valueText(stored.value) << '\n';
    return 0;
}

int get(
    RegistrySettings& settings, const std::string& key, const std::string& name, std::ostream& out, std::ostream& err)
{
    const auto value = settings.GetValue(Utf8ToWide(key), Utf8ToWide(name));
    if (!value) {
        err << "wanderkit settings: no value \"" << name << "\" under \"" << key << "\"\n";
        return 1;
    }
    out << valueText(*value) << '\n';
    return 0;
}

// Exit code of a write: a write that failed (the state file unwritable) is reported, never silently lost.
int stored(bool written, const std::vector<std::string>& words, std::ostream& err)
{
    if (!written)
        err << "wanderkit settings: could not store \"" << words[2] << "\" under \"" << words[1] << "\"\n";
    return written ? 0 : 1;
}

// The registry's own limits on a key. Every level of a key is stored as a key of its own, so a deeper or
// longer one would grow the state file with the square of its length.
constexpr std::size_t MaxKeyLevels = 512;
constexpr std::size_t MaxKeyLevelLength = 255;

bool withinKeyLimits(std::wstring_view key)
{
    std::size_t levels = 1, length = 0;
    for (const wchar_t c : key) {
        levels += c == L'\\' ? 1 : 0;
        length = c == L'\\' ? 0 : length + 1;
        if (levels > MaxKeyLevels || length > MaxKeyLevelLength)
            return false;
    }
    return true;
}

int set(RegistrySettings& settings, const std::vector<std::string>& words, const std::string& type, std::ostream& err)
{
    const std::wstring key = Utf8ToWide(words[1]);
    const std::wstring name = Utf8ToWide(words[2]);
    if (!withinKeyLimits(key)) {
        err << "wanderkit settings: a key has at most 512 levels of at most 255 characters each\n";
        return 2;
    }
    if (type == "string")
        return stored(settings.SetString(key, name, Utf8ToWide(words[3])), words, err);
    const auto number = parseDword(words[3]);
    if (!number) {
        err << "wanderkit settings: \"" << words[3] << "\" is not a whole number that fits in 32 bits"
            << " (-2147483648 to 4294967295)\n";
        return 2;
    }
    return stored(settings.SetDWORD(key, name, *number), words, err);
}

} // namespace

int RunSettingsCommand(const CommandRequest& request, std::ostream& out, std::ostream& err)
{
    const SettingsWords args = splitWords(request.args);
    if (!args.problem.empty()) {
        err << "wanderkit settings: " << args.problem << '\n' << Usage;
        return 2;
    }
    const std::vector<std::string>& words = args.words;
    const std::string action = words.empty() ? "" : words[0];
    const auto session = CommandSession::open(request, err);
    if (!session)
        return 1;
    RegistrySettings& settings = session->settings();
    if (action == "get")
        return get(settings, words[1], words[2], out, err);
    if (action == "set")
        return set(settings, words, args.type, err);
    if (action == "reset")
        return settings.Clear() ? 0 : 1;
    return list(settings, out);
}
