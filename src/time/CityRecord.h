// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <string>

// One city of the catalogue, read in one go: the stored properties split into their parts.
struct CityRecord
{
    std::wstring name; // property 101 before its first ":"
    std::wstring country; // property 101 after it
    std::wstring coordinate1; // property 103 before its first ":"
    std::wstring coordinate2; // property 103 after it
    std::wstring timeZone; // property 108
    std::wstring daylightRule; // property 104

    friend bool operator==(const CityRecord&, const CityRecord&) = default;
};
