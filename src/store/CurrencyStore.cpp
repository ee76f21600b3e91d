// SPDX-License-Identifier: GPL-3.0-or-later
#include "store/CurrencyStore.h"

#include "store/FirstStartLoad.h"

#include <array>
#include <chrono>

namespace {

constexpr std::array<PropertyId, 3> SortIds = {CurrencyStore::NameId, CurrencyStore::CodeId, CurrencyStore::RateId};
constexpr int NameCaseInsensitive = 2; // sort mode: the first order, on the name, ignores case
constexpr DatabaseShape Shape {L"wdkCurrencies", 98765, SortIds, NameCaseInsensitive};

// A currency's record, its properties written in the order name, code, rate.
std::vector<Property> currencyRecord(std::wstring_view code, std::wstring_view name, std::wstring_view rate)
{
    return Shape.record({name, code, rate});
}

constexpr std::int64_t FileTimeTicksPerDay = 864000000000LL; // 100 ns units
constexpr std::int64_t DaysFrom1601To1970 = 134774;

// FileTimeToSystemTime: nothing for a FILETIME beyond its range (the top bit set).
std::optional<SystemTime> toSystemTime(std::uint64_t fileTime)
{
    if (fileTime > static_cast<std::uint64_t>(INT64_MAX))
        return std::nullopt;
    using namespace std::chrono;
    const auto ticks = static_cast<std::int64_t>(fileTime);
    const sys_days day {days {ticks / FileTimeTicksPerDay - DaysFrom1601To1970}};
    const year_month_day date {day};
    const std::int64_t ticksOfDay = ticks % FileTimeTicksPerDay;
    const std::int64_t msOfDay = ticksOfDay / 10000;
    SystemTime time;
    time.year = static_cast<std::uint16_t>(static_cast<int>(date.year()));
    time.month = static_cast<std::uint16_t>(static_cast<unsigned>(date.month()));
    time.day = static_cast<std::uint16_t>(static_cast<unsigned>(date.day()));
    time.dayOfWeek = static_cast<std::uint16_t>(weekday {day}.c_encoding());
    time.hour = static_cast<std::uint16_t>(msOfDay / 3600000);
    time.minute = static_cast<std::uint16_t>(msOfDay / 60000 % 60);
    time.second = static_cast<std::uint16_t>(msOfDay / 1000 % 60);
    time.milliseconds = static_cast<std::uint16_t>(msOfDay % 1000);
    return time;
}

} // namespace

CurrencyStore::CurrencyStore(ObjectStore& store)
    : m_database(store)
    , m_store(store)
    , m_count(m_initial.count)
{ }

void CurrencyStore::SetInitialList(InitialCurrencyList list)
{
    m_initial = std::move(list);
    m_count = m_initial.count;
}

std::int32_t CurrencyStore::Load()
{
    const auto result = FirstStartLoad::run(m_store, m_database, Shape, [this](PropertyDatabase&) {
        fill();
        return true;
    });
    m_count = result == FirstStartLoad::Result::AlreadyFilled ? m_database.RecordCount() : m_initial.count;
    return m_count;
}

void CurrencyStore::fill()
{
    for (const CurrencyEntry& entry : m_initial.entries)
        m_database.Add(currencyRecord(entry.code, entry.name, entry.rate), 0);
    // The implicit empty entries past the end of the file: all alike, so only the first can be written.
    if (static_cast<std::size_t>(m_initial.size()) > m_initial.entries.size())
        m_database.Add(currencyRecord({}, {}, {}), 0);
    // A freshly loaded list reads as never updated.
    m_database.SetLastModified(0, 0);
}

std::uint64_t CurrencyStore::LastUpdate()
{
    return m_database.LastModified();
}

bool CurrencyStore::SetLastUpdate(std::uint64_t fileTime)
{
    return m_database.SetLastModified(static_cast<std::uint32_t>(fileTime), static_cast<std::uint32_t>(fileTime >> 32));
}

bool CurrencyStore::UpdateByName(std::wstring_view code, std::wstring_view name, std::wstring_view rate)
{
    if (m_database.SeekEqual({NameId, std::wstring(name)}) == 0)
        return false;
    return m_database.UpdateCurrent(currencyRecord(code, name, rate));
}

bool CurrencyStore::DeleteAt(std::uint32_t position)
{
    return m_database.DeleteAt(position);
}

std::optional<SystemTime> CurrencyStore::LastUpdateDate(std::uint64_t fileTime, int currentYear)
{
    const auto date = fileTime == 0 ? std::nullopt : toSystemTime(fileTime);
    if (!date || date->year < 1900 || date->year > currentYear)
        return std::nullopt;
    return date;
}
