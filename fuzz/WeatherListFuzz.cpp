// SPDX-License-Identifier: GPL-3.0-or-later
// The weather favourites list "\cities.wet": loaded into a fresh store, every favourite read back and
// looked for by name and by location code.
#include "FuzzDevice.h"
#include "store/WeatherFavourites.h"

#include <algorithm>

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    FuzzDevice& device = FuzzDevice::emptied();
    WeatherFavourites favourites(*device.store, device.paths, device.messages);
    favourites.loadFavouritesOnce(FuzzDevice::bytes(data, size));
    const std::uint32_t count = std::min<std::uint32_t>(favourites.count(), 16);
    for (std::uint32_t i = 0; i < count; ++i) {
        favourites.getLastUpdate(i);
        favourites.getCountryFile(i);
        favourites.findByName(favourites.getName(i));
        favourites.findByLocationCode(favourites.getLocationCode(i));
    }
    return 0;
}
