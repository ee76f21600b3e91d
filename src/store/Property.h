// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstdint>
#include <string>

// Property identifiers are 16-bit numbers chosen by each store (101 for a city's name, ...).
using PropertyId = std::uint16_t;

// One string property of a record.
struct Property
{
    PropertyId id = 0;
    std::wstring text;

    friend bool operator==(const Property&, const Property&) = default;
};
