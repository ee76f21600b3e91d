// SPDX-License-Identifier: GPL-3.0-or-later
#include "units/UnitConversion.h"

#include "text/WideText.h"
#include "units/UnitLists.h"

namespace {

using UnitConversion::Temperature;

constexpr double ZeroCelsius = 273.15; // kelvin
constexpr double FiveNinths = 0.5555555555555556;
constexpr double NineFifths = 1.8;

} // namespace

std::wstring UnitConversion::AmountText(std::wstring_view field)
{
    return std::wstring(field.substr(0, MaxAmountLength));
}

double UnitConversion::ByFactor(double amount, const std::wstring& fromFactor, const std::wstring& toFactor)
{
    return amount * Wcstod(fromFactor) / Wcstod(toFactor);
}

double UnitConversion::ToKelvin(int unit, double value)
{
    switch (static_cast<Temperature>(unit)) {
    case Temperature::Celsius:
        return value + ZeroCelsius;
    case Temperature::Fahrenheit:
        return (value - 32) * FiveNinths + ZeroCelsius;
    case Temperature::Rankine:
        return value * FiveNinths;
    case Temperature::Reaumur:
        return value * 1.25 + ZeroCelsius;
    case Temperature::Kelvin:
        break;
    }
    return value;
}

double UnitConversion::FromKelvin(int unit, double kelvin)
{
    switch (static_cast<Temperature>(unit)) {
    case Temperature::Celsius:
        return kelvin - ZeroCelsius;
    case Temperature::Fahrenheit:
        return (kelvin - ZeroCelsius) * NineFifths + 32;
    case Temperature::Rankine:
        return kelvin * NineFifths;
    case Temperature::Reaumur:
        return (kelvin - ZeroCelsius) * 0.8;
    case Temperature::Kelvin:
        break;
    }
    return kelvin;
}

std::optional<double> UnitConversion::ConvertTemperature(int from, int to, double value)
{
    const double kelvin = ToKelvin(from, value);
    if (kelvin < 0)
        return std::nullopt;
    return FromKelvin(to, kelvin);
}

UnitConversion::Result UnitConversion::Convert(
    const UnitLists& lists, int category, int from, int to, std::wstring_view amountField)
{
    const double amount = Wcstod(AmountText(amountField));
    if (category == UnitTables::TemperatureCategory) {
        const auto converted = ConvertTemperature(from, to, amount);
        if (!converted)
            return {L"0", true};
        return {FormatText(L"%f", *converted), false};
    }
    const std::wstring fromFactor(lists.Factor(category, from));
    const std::wstring toFactor(lists.Factor(category, to));
    return {FormatText(L"%f", ByFactor(amount, fromFactor, toFactor)), false};
}
