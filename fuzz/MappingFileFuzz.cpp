// SPDX-License-Identifier: GPL-3.0-or-later
// The weather icon mapping "mapping.cfg": parsed into its mapping text.
#include "settings/MappingFile.h"

#include <cstddef>
#include <cstdint>
#include <string_view>

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    ParseMappingText(std::string_view(reinterpret_cast<const char*>(data), size));
    return 0;
}
