// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstdint>

// A calendar date and time of day as the handheld kept it: every field 16 bits,
// day of week 0 = Sunday. Used for device local time and for daylight-saving boundaries.
struct SystemTime
{
    std::uint16_t year = 0;
    std::uint16_t month = 0;
    std::uint16_t dayOfWeek = 0;
    std::uint16_t day = 0;
    std::uint16_t hour = 0;
    std::uint16_t minute = 0;
    std::uint16_t second = 0;
    std::uint16_t milliseconds = 0;

    friend bool operator==(const SystemTime&, const SystemTime&) = default;
};
