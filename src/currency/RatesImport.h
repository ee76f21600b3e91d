// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "currency/EcbRatesReader.h"
#include "time/SystemTime.h"

#include <cstdint>
#include <string>
#include <vector>

class CurrencyStore;
class ObjectStore;

// Brings the ECB's reference rates into the currency store. The store keeps each currency's value in US
// dollars; the ECB publishes units per euro, so a currency's new rate is (USD per euro) / (its units per
// euro), and the euro's is the USD rate itself.
namespace RatesImport {

// What an import writes: the new rate text of each store currency the file prices, and the stamp.
struct Plan
{
    struct Update
    {
        std::wstring code;
        std::wstring name;
        std::wstring rate;
    };
    std::vector<Update> updates;
    std::vector<std::string> notInStore; // codes of the file that no store currency has
    std::uint64_t stamp = 0; // the file's date at midnight, as a FILETIME
};

// Why `rates` cannot be imported on `today` (a date after today, no USD rate to convert with); empty when
// they can.
[[nodiscard]] std::string refusal(const EcbRates& rates, const SystemTime& today);
// The updates for every currency of `store` that the (accepted) rates price.
[[nodiscard]] Plan plan(CurrencyStore& store, const EcbRates& rates);
// Writes the updates through the store's update-by-name and then the stamp, all in one transaction:
// false, with the store as it was, when any write fails.
[[nodiscard]] bool apply(ObjectStore& objects, CurrencyStore& store, const Plan& plan);

// The value in US dollars of one unit priced at `unitsPerEuro`, as the shortest text that wcstod reads
// back as exactly the quotient of the two published rates.
[[nodiscard]] std::wstring dollarRateText(double usdPerEuro, double unitsPerEuro);
// The FILETIME (100 ns units since 1601) of midnight starting `date`.
[[nodiscard]] std::uint64_t fileTimeOf(std::chrono::year_month_day date);

} // namespace RatesImport
