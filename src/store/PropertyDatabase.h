// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "store/ObjectStore.h"
#include "store/Property.h"
#include "store/RecordIndex.h"

#include <cstdint>
#include <memory>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

// One record database of the object store, with a cursor over its records. Records hold string
// properties; positions count records in the traversal order (the first sort order, or the one chosen by
// OpenSorted). Reads by position are served from the store's in-memory copy of that order.
class PropertyDatabase
{
public:
    using RecordId = std::int64_t;

    static constexpr int NoKey = -1; // Add without the duplicate check
    static constexpr std::uint32_t CaseInsensitive = 2; // sort order flag
    static constexpr std::size_t MaxSortOrders = 4;
    static constexpr std::size_t MaxRecords = 65535; // the most a 16-bit record count can tell
    // A read text is formatted into a buffer of 1000 characters: at most 999 of them come back.
    static constexpr std::size_t MaxReadLength = 999;

    explicit PropertyDatabase(ObjectStore& store);

    // Creates the database (nothing happens when one of that name exists). Sort orders are taken from the
    // first min(sortCount, 4) identifiers. Sort mode 0: every order case-sensitive; 1: the same; 2: the first
    // order case-insensitive.
    void Create(
        std::wstring_view name, std::uint32_t type, int sortCount, std::span<const PropertyId> sortIds, int sortMode);
    // Opens for traversal in the first sort order; the cursor starts on the first record.
    bool Open(std::wstring_view name);
    // Opens for traversal in the order of property `id`; false when the database has no such sort order.
    bool OpenSorted(std::wstring_view name, PropertyId id);
    void Close();
    bool IsOpen() const { return m_open; }

    // Number of records (a 16-bit count); 0 when not open.
    std::uint16_t RecordCount();
    bool SeekFirst();
    bool SeekLast();
    // The record at `position` counted from the beginning, or from the last record when `fromEnd`; 0 on failure.
    RecordId SeekTo(std::uint32_t position, bool fromEnd = false);
    bool Next();
    // The first record, in traversal order, whose property equals `value` (compared as that property's
    // sort order compares); 0 when there is none.
    RecordId SeekEqual(const Property& value);
    bool AtEnd() const { return m_atEnd; }

    // Property `id` of the record at `position`; empty when there is no such record or property.
    std::wstring ReadAt(std::uint32_t position, PropertyId id);
    // The same property's part before its first ":" (all of it when there is none) and the part after it,
    // for properties that hold two texts ("city:country").
    std::wstring ReadBeforeColonAt(std::uint32_t position, PropertyId id);
    std::wstring ReadAfterColonAt(std::uint32_t position, PropertyId id);
    // The first four properties of the record at `position`, in written order, in one read.
    std::vector<Property> ReadRecordAt(std::uint32_t position);

    // Writes a new record with the first property-count `properties`. With a key index (0 to 3), nothing is
    // written and false returned when a record with the same key property exists: the first one wins.
    bool Add(std::span<const Property> properties, int keyIndex);
    // Writes each property into the record at `position` (replacing a property of the same identifier).
    bool UpdateAt(std::uint32_t position, std::span<const Property> properties);
    // The same on the record under the cursor.
    bool UpdateCurrent(std::span<const Property> properties);
    bool DeleteAt(std::uint32_t position);

    // The database's modification time as a FILETIME (100 ns units since 1601); every write sets it to now.
    std::uint64_t LastModified();
    bool SetLastModified(std::uint32_t low, std::uint32_t high);

private:
    struct SortOrder
    {
        PropertyId id = 0;
        std::uint32_t flags = 0;
    };

    [[nodiscard]] std::optional<std::int64_t> findDatabase(std::wstring_view name);
    std::vector<SortOrder> sortOrdersOf(std::int64_t databaseId);
    // Opens with the traversal of `sortId`'s order, or of the first order when there is none.
    bool openWith(std::wstring_view name, std::optional<PropertyId> sortId);
    bool refreshIndex();
    void settleCursor();
    bool step();
    const StoredRecord* readRecord(std::uint32_t position);
    std::wstring lookupText(PropertyId id, std::wstring_view text) const;
    void bindSlot(SqliteQuery& query, int first, const Property& property) const;
    bool writeProperty(RecordId record, const Property& property);
    bool touch();

    ObjectStore& m_store;
    std::int64_t m_databaseId = 0; // the object identifier, set by Create and Open
    bool m_open = false;
    std::vector<SortOrder> m_sortOrders;
    SortOrder m_traversal; // the order positions are counted in
    std::size_t m_propertyCount = 0; // the number of sort orders; also the properties written by Add
    bool m_autoAdvance = false; // set by every open: a read or a write moves on to the next record
    bool m_atEnd = false;
    RecordId m_current = 0; // the record under the cursor, 0 for none
    bool m_firstPending = false; // just opened: the cursor is on the first record, found when first needed

    std::shared_ptr<const RecordIndex> m_index; // the traversal as of the last operation
    std::uint64_t m_touchedIn = 0; // the transaction that last set the modification time
};
