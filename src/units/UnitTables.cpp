// SPDX-License-Identifier: GPL-3.0-or-later
#include "units/UnitTables.h"

#include <array>

namespace {

// Names and factor texts are kept exactly as the tables were first published, odd entries included:
// "yard" (areas) and "Yard" (volumes) carry the square and cubic yard factors, "Statue Mile (Mile)" is
// 1609, and "Ton [short, US]" has a decimal comma, so wcstod reads it as 907.

constexpr std::array<UnitRow, 22> Areas {{
    {L"hectare", L"10000"},
    {L"square", L"9.290304"},
    {L"cm\u00b2 - square centimeter", L"0.0001"},
    {L"square decimeter", L"0.01"},
    {L"square dekameter", L"100"},
    {L"square foot", L"0.09290304"},
    {L"square gigameter", L"1000000000000000000"},
    {L"square hectometer", L"10000"},
    {L"square inch", L"0.00064516"},
    {L"km\u00b2 - square kilometer", L"1000000"},
    {L"square light year", L"89505412000000000000000000000000"},
    {L"square megameter", L"1000000000000"},
    {L"m\u00b2 - square meter", L"1"},
    {L"square microinch", L"0.00000000000000064516"},
    {L"\u00b5m\u00b2 - square micrometer", L"0.000000000001"},
    {L"square micron", L"0.000000000001"},
    {L"square mile", L"2589988.110336"},
    {L"mm\u00b2 - square millimeter", L"0.000001"},
    {L"square nanometer", L"0.000000000000000001"},
    {L"square terameter", L"1000000000000000000000000"},
    {L"square yard", L"0.83612736"},
    {L"yard", L"0.83612736"},
}};

constexpr std::array<UnitRow, 16> Lengths {{
    {L"Cable (in)", L"219.456"},
    {L"cm - Centimeter", L"0.01"},
    {L"Fth(Fm) - Fathom", L"1.83"},
    {L"Feet", L"0.3048"},
    {L"Inch", L"0.0254"},
    {L"km - Kilometer", L"1000"},
    {L"League", L"4828.0417"},
    {L"League [nautical]", L"5556"},
    {L"m - Meter", L"1"},
    {L"Microinch", L"0.0000000254"},
    {L"Mile", L"1609.344"},
    {L"mm - Millimeter", L"0.001"},
    {L"nm - Nanometer", L"1.0e-9"},
    {L"Nmi(NM,M) - Nautical Mile", L"1852"},
    {L"Statue Mile (Mile)", L"1609"},
    {L"Yard", L"0.9144"},
}};

constexpr std::array<UnitRow, 24> Pressures {{
    {L"atmosphere [standard]", L"101325.01"},
    {L"atmosphere [technical]", L"98066.5"},
    {L"bar", L"100000"},
    {L"centibar", L"1000"},
    {L"centihg", L"1333.2239"},
    {L"centipascal", L"0.01"},
    {L"decibar", L"10000"},
    {L"decipascal", L"0.1"},
    {L"gigabar", L"1.0e+14"},
    {L"gigapascal", L"1.0e+9"},
    {L"hectobar", L"1.0e+7"},
    {L"hectopascal", L"100"},
    {L"kilobar", L"1.0e+8"},
    {L"kilopascal", L"1000"},
    {L"megabar", L"1.0e+11"},
    {L"megapascal", L"1000000"},
    {L"microbar", L"0.1"},
    {L"micropascal", L"0.000001"},
    {L"millipascal", L"0.001"},
    {L"nanobar", L"0.0001"},
    {L"nanopascal", L"1.0e-9"},
    {L"pascal", L"1"},
    {L"zettabar", L"1.0e+26"},
    {L"zettapascal", L"1.0e+21"},
}};

constexpr std::array<UnitRow, 13> Speeds {{
    {L"centimeter/second", L"0.01"},
    {L"foot/second", L"0.3048"},
    {L"inch/second", L"0.0254"},
    {L"kph - kilometer/hour", L"0.27777777777777777777777777777778"},
    {L"kilometer/second", L"1000"},
    {L"kn - knot", L"0.51444444444444444444444444444444"},
    {L"mach", L"340.29"},
    {L"m/s - meter/second", L"1"},
    {L"mile/hour (mph)", L"0.44704"},
    {L"mile/second", L"1609.344"},
    {L"millimeter/second", L"0.001"},
    {L"speed of light [vacuum]", L"299792458"},
    {L"speed of sound [air]", L"340.29"},
}};

constexpr std::array<UnitRow, 5> Temperatures {{
    {L"\u00b0C - Degree Celsius", L"-"},
    {L"\u00b0F - Degree Fahrenheit", L"-"},
    {L"Degree Rankine", L"-"},
    {L"Degree Reaumur", L"-"},
    {L"K - Kelvin", L"-"},
}};

constexpr std::array<UnitRow, 23> Volumes {{
    {L"Centiliter", L"0.00001"},
    {L"cm3 - Cubic centimeter", L"0.000001"},
    {L"Cubic cubit [ancient egypt]", L"0.144"},
    {L"Cubic decimeter", L"0.001"},
    {L"Cubic dekameter", L"1000"},
    {L"Cubic foot", L"0.028316846711688311688311688311688"},
    {L"Cubic inch", L"1.6387064069264069264069264069264e-5"},
    {L"Cubic kilometer", L"1.0e+9"},
    {L"Cubic meter", L"1"},
    {L"Cubic mile", L"4168181843.0584539428571428571429"},
    {L"Cubic micrometer", L"1.0e-18"},
    {L"Cubic millimeter", L"1.0e-9"},
    {L"Cubic yard", L"0.76455486121558441558441558441558"},
    {L"Deciliter", L"0.0001"},
    {L"Dekaliter", L"0.01"},
    {L"Hectare meter", L"10000"},
    {L"Hectoliter", L"0.1"},
    {L"kl - Kiloliter", L"1"},
    {L"Liter", L"0.001"},
    {L"Megaliter", L"1000"},
    {L"Microliter", L"1.0e-9"},
    {L"Milliliter", L"0.000001"},
    {L"Yard", L"0.76455486121558441558441558441558"},
}};

constexpr std::array<UnitRow, 23> Weights {{
    {L"cg - Centigram", L"0.00001"},
    {L"dg - Decigram", L"0.0001"},
    {L"Dekagram", L"0.01"},
    {L"Dram", L"0.0017718451953125"},
    {L"Grain", L"0.00006479891"},
    {L"gr - Gram", L"0.001"},
    {L"Hectogram", L"0.1"},
    {L"Hundredweight [long, UK]", L"50.80234544"},
    {L"Hundredweight [short, US]", L"45.359237"},
    {L"kg - Kilogram", L"1"},
    {L"Lb, Lbs", L"0.45359237"},
    {L"Long ton", L"1016.0469088"},
    {L"Megagram", L"1000"},
    {L"Metric ton", L"1000"},
    {L"Microgram", L"0.000000001"},
    {L"mg - Milligram", L"0.000001"},
    {L"Ounce", L"0.028349523125"},
    {L"Pound", L"0.45359237"},
    {L"Short ton", L"907.18474"},
    {L"Ton [long, UK]", L"1016.0469088"},
    {L"Ton [metric]", L"1000"},
    {L"Ton [short, US]", L"907,18474"},
    {L"Tonne", L"1000"},
}};

constexpr std::array<UnitCategory, UnitTables::CategoryCount> AllCategories {{
    {L'0', 40004, Areas},
    {L'1', 40005, Lengths},
    {L'2', 40006, Pressures},
    {L'3', 40048, Speeds},
    {L'4', 40049, Temperatures},
    {L'5', 40050, Volumes},
    {L'6', 40051, Weights},
}};

} // namespace

std::span<const UnitCategory> UnitTables::Categories()
{
    return AllCategories;
}
