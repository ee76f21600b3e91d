// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstdint>
#include <string>
#include <vector>

class DevicePaths;
class MessageSink;

// One entry of "\currs.lst", its three fields in file order.
struct CurrencyEntry
{
    std::wstring code;
    std::wstring name;
    std::wstring rate;

    friend bool operator==(const CurrencyEntry&, const CurrencyEntry&) = default;
};

// The currency list read from "\currs.lst" at every start, the seed of the currency store.
struct InitialCurrencyList
{
    static constexpr std::int32_t PresetCount = 189;

    // The count of the file's first line; stays 189 when the file is missing.
    std::int32_t count = PresetCount;
    // False when the file could not be opened: then there are no entries at all.
    bool fromFile = false;
    // The entries read before the end of the file. The file's count may promise more: those entries exist
    // but are empty, and are left implicit so that a huge count costs nothing.
    std::vector<CurrencyEntry> entries;

    // How many entries the list holds (implicit empty ones included).
    std::int32_t size() const { return fromFile && count > 0 ? count : 0; }
};

// Reads "\currs.lst" beside the program: a count line, then records "code_name_rate#" end to end.
// A missing file shows "Initial Currencies File not found!" and gives an empty list of count 189.
InitialCurrencyList ReadInitialCurrencies(const DevicePaths& paths, MessageSink& messages);
// The list held by the bytes of "\currs.lst".
InitialCurrencyList ParseInitialCurrencies(std::string bytes);
