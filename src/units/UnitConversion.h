// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>

class UnitLists;

// The measurement conversions: by factor texts, or for temperatures through kelvin. Shared by the
// Measurements screen and the `convert` command, so both print the same text.
namespace UnitConversion {

// Temperature units, in the order of the screen's temperature list.
enum class Temperature { Celsius, Fahrenheit, Rankine, Reaumur, Kelvin };

inline constexpr std::size_t MaxAmountLength = 49; // characters of the amount field that are read

struct Result
{
    std::wstring text; // the result field's text: "%f", or "0" below absolute zero
    bool belowAbsoluteZero = false;
};

// The amount field's text as it is read: its first 49 characters.
std::wstring AmountText(std::wstring_view field);

// amount × from ÷ to, each factor parsed from its text with wcstod (no number gives 0).
[[nodiscard]] double ByFactor(double amount, const std::wstring& fromFactor, const std::wstring& toFactor);

// A temperature in kelvin, and back. A unit index outside the five applies no formula.
[[nodiscard]] double ToKelvin(int unit, double value);
[[nodiscard]] double FromKelvin(int unit, double kelvin);
// `value` in unit `from` converted to unit `to`; nothing when it lies below absolute zero.
[[nodiscard]] std::optional<double> ConvertTemperature(int from, int to, double value);

// Converts the amount field's text from unit `from` to unit `to` of category `category` (indices as in the
// screen's lists), giving the result field's text.
[[nodiscard]] Result Convert(const UnitLists& lists, int category, int from, int to, std::wstring_view amountField);

} // namespace UnitConversion
