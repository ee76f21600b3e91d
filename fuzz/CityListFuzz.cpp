// SPDX-License-Identifier: GPL-3.0-or-later
// The city list "\cities.lst": loaded into a fresh catalogue, then every city read back and its
// information panel (offsets, daylight-saving state and dates) computed.
#include "FuzzDevice.h"
#include "store/CityCatalogue.h"
#include "time/CityInformation.h"

#include <algorithm>

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    FuzzDevice& device = FuzzDevice::emptied();
    CityCatalogue catalogue(*device.store, device.paths, device.messages);
    catalogue.Load(FuzzDevice::bytes(data, size));
    const std::uint32_t count = std::min<std::uint32_t>(catalogue.Count(), 64);
    for (std::uint32_t i = 0; i < count; ++i)
        CityInformationLines(catalogue.Record(i), {1, 0}, FuzzDevice::Now);
    return 0;
}
