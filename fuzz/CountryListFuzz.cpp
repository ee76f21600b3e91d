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
    for (const std::wstring& city : list.cities()) {
        list.codeOf(city);
        list.codeOf(std::wstring_view(city).substr(city.size() / 2));
    }
    list.codeOf(L";");
    list.codeOf(L"\n");
    return 0;
}
