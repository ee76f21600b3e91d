// SPDX-License-Identifier: GPL-3.0-or-later
#include "currency/RatesImport.h"

#include "store/CurrencyStore.h"
#include "store/ObjectStore.h"
#include "text/WideText.h"

#include <algorithm>
#include <array>
#include <charconv>

namespace {

constexpr std::string_view BaseCode = "USD";
constexpr std::string_view EuroCode = "EUR";
constexpr std::uint64_t FileTimeTicksPerDay = 864000000000ULL; // 100 ns units
constexpr std::int64_t DaysFrom1601To1970 = 134774;

std::string isoDate(std::chrono::year_month_day date)
{
    char text[16];
    std::snprintf(text, sizeof text, "%04d-%02u-%02u", static_cast<int>(date.year()),
        static_cast<unsigned>(date.month()), static_cast<unsigned>(date.day()));
    return text;
}

} // namespace

std::string RatesImport::refusal(const EcbRates& rates, const SystemTime& today)
{
    const std::chrono::year_month_day now {
        std::chrono::year {today.year}, std::chrono::month {today.month}, std::chrono::day {today.day}};
    if (rates.date > now)
        return "its date " + isoDate(rates.date) + " lies after today, " + isoDate(now);
    if (!rates.find(BaseCode))
        return "it has no usable USD rate, which the store's rates (US dollars per unit) are worked out from";
    return {};
}

RatesImport::Plan RatesImport::plan(CurrencyStore& store, const EcbRates& rates)
{
    Plan plan;
    plan.stamp = fileTimeOf(rates.date);
    const EcbRate* dollar = rates.find(BaseCode);
    if (!dollar)
        return plan;
    std::vector<std::string> priced;
    const std::uint32_t count = store.RecordCount();
    for (std::uint32_t position = 0; position < count; ++position) {
        const std::wstring code = store.Code(position);
        const std::string key = WideToUtf8(code);
        const EcbRate* rate = rates.find(key);
        if (!rate && key != EuroCode)
            continue;
        priced.push_back(key);
        plan.updates.push_back({code, store.Name(position), dollarRateText(dollar->perEuro, rate ? rate->perEuro : 1)});
    }
    for (const EcbRate& rate : rates.rates) {
        if (std::ranges::find(priced, rate.code) == priced.end())
            plan.notInStore.push_back(rate.code);
    }
    return plan;
}

bool RatesImport::apply(ObjectStore& objects, CurrencyStore& store, const Plan& plan)
{
    ObjectStore::Transaction transaction(objects.connection());
    if (!transaction.active())
        return false;
    for (const Plan::Update& update : plan.updates) {
        if (!store.UpdateByName(update.code, update.name, update.rate))
            return false;
    }
    return store.SetLastUpdate(plan.stamp) && transaction.commit();
}

std::wstring RatesImport::dollarRateText(double usdPerEuro, double unitsPerEuro)
{
    std::array<char, 400> text {};
    const auto result
        = std::to_chars(text.data(), text.data() + text.size(), usdPerEuro / unitsPerEuro, std::chars_format::fixed);
    return Utf8ToWide(std::string_view(text.data(), result.ptr));
}

std::uint64_t RatesImport::fileTimeOf(std::chrono::year_month_day date)
{
    const auto days = std::chrono::sys_days {date}.time_since_epoch().count() + DaysFrom1601To1970;
    return static_cast<std::uint64_t>(days) * FileTimeTicksPerDay;
}
