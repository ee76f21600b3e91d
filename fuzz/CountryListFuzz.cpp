// SPDX-License-Identifier: GPL-3.0-or-later
// A country's weather city list "\weatcs\<country>": parsed, and the location code of every city and of
// a few names that are not whole lines looked up.
#include "store/CountryCityList.h"

#include <cstddef>
#include <cstdint>
#include <string_view>

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    const auto list = CountryCityList::parse(std::string_view(reinterpret_cast<const char*>(data), size));
    std::size_t found = 0;
    for (const std::wstring& city : list.cities()) {
        found += list.codeOf(city).has_value();
        found += list.codeOf(std::wstring_view(city).substr(city.size() / 2)).has_value();
    }
    found += list.codeOf(L";").has_value() + list.codeOf(L"\n").has_value();
    if (found > 2 * list.cities().size() + 2) // each lookup answers at most once
        __builtin_trap();
    return 0;
}
