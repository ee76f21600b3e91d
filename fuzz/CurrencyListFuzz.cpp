// SPDX-License-Identifier: GPL-3.0-or-later
// The currency list "\currs.lst": parsed, loaded into a fresh currency store and read back.
#include "FuzzDevice.h"
#include "store/CurrencyStore.h"
#include "store/InitialCurrencyList.h"
#include "text/WideText.h"

#include <algorithm>

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    FuzzDevice& device = FuzzDevice::emptied();
    CurrencyStore currencies(*device.store);
    currencies.SetInitialList(ParseInitialCurrencies(std::string(reinterpret_cast<const char*>(data), size)));
    currencies.Load();
    const std::uint32_t count = std::min<std::uint32_t>(currencies.RecordCount(), 64);
    for (std::uint32_t i = 0; i < count; ++i) {
        currencies.Code(i);
        currencies.Name(i);
        Wcstod(currencies.RateText(i));
    }
    return 0;
}
