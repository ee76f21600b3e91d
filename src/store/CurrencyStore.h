// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "store/InitialCurrencyList.h"
#include "store/PropertyDatabase.h"
#include "time/SystemTime.h"

#include <cstdint>
#include <optional>
#include <string>

// The currency store "wdkCurrencies" (database type 98765), filled once from the initial list. A currency
// is addressed by its position in ascending, case-insensitive order of its name.
class CurrencyStore
{
public:
    static constexpr PropertyId CodeId = 401;
    static constexpr PropertyId NameId = 402;
    static constexpr PropertyId RateId = 403;

    explicit CurrencyStore(ObjectStore& store);

    // The list the next first-start load copies from (the launcher's, read from "\currs.lst").
    void SetInitialList(InitialCurrencyList list);
    // Opens the store, filling it from the initial list when it holds no currency (all or nothing; the
    // last-update stamp is then set to zero). Returns the count: the records of a filled store, or the
    // initial list's count after a first-start load (skipped duplicates included).
    std::int32_t Load();

    std::wstring Code(std::uint32_t position) { return m_database.ReadAt(position, CodeId); }
    std::wstring Name(std::uint32_t position) { return m_database.ReadAt(position, NameId); }
    std::wstring RateText(std::uint32_t position) { return m_database.ReadAt(position, RateId); }
    std::uint16_t RecordCount() { return m_database.RecordCount(); }
    std::int32_t Count() const { return m_count; }

    // The last-update stamp: a FILETIME, 0 when never updated.
    std::uint64_t LastUpdate();
    // Sets the last-update stamp (a FILETIME); a rates import sets it to the date of its rates.
    bool SetLastUpdate(std::uint64_t fileTime);
    // Overwrites code, name and rate of the first currency named `name`; false when there is none.
    bool UpdateByName(std::wstring_view code, std::wstring_view name, std::wstring_view rate);
    bool DeleteAt(std::uint32_t position);

    // The date of a last-update stamp, or nothing ("Never") when the stamp is zero or its year lies
    // outside 1900 to `currentYear`.
    static std::optional<SystemTime> LastUpdateDate(std::uint64_t fileTime, int currentYear);

private:
    void fill();

    PropertyDatabase m_database;
    ObjectStore& m_store;
    InitialCurrencyList m_initial;
    std::int32_t m_count;
};
