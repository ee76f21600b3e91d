// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <array>
#include <cstdint>

class RegistrySettings;

// Which catalogue cities the World Map shows: the five World Clocks cities as markers and the
// selected city of "mapclock".
namespace MapCities {

constexpr std::size_t MarkerCount = 5;

// "clock" and "clock1" to "clock4", defaulting to 0, 684, 756, 565 and 988. With `writeBack`, a
// missing value's default is stored, as the map screen does; without, nothing is written.
[[nodiscard]] std::array<std::uint32_t, MarkerCount> markedPositions(RegistrySettings& settings, bool writeBack);

// The position "mapclock" holds, as the signed value the screen keeps.
[[nodiscard]] std::int32_t storedSelection(RegistrySettings& settings);

// A stored selection made a catalogue position. One that is negative or past the end (a catalogue
// that shrank, a value written by hand) shows the first city, the one a missing "mapclock" gives.
[[nodiscard]] std::int32_t validSelection(std::int32_t stored, std::uint32_t cityCount);

// The next city for a spinner step: a negative delta moves back, wrapping from the first to the last,
// a positive one forward, wrapping from the last to the first.
[[nodiscard]] std::int32_t steppedSelection(std::int32_t selected, int delta, std::uint32_t cityCount);

} // namespace MapCities
