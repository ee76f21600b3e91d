// SPDX-License-Identifier: GPL-3.0-or-later
#include "store/PropertyDatabase.h"

#include "text/WideText.h"

#include <algorithm>
#include <array>
#include <chrono>

namespace {

// 100 ns intervals between 1601-01-01 and 1970-01-01.
constexpr std::uint64_t UnixEpochAsFileTime = 116444736000000000ULL;

std::uint64_t fileTimeNow()
{
    const auto sinceEpoch = std::chrono::system_clock::now().time_since_epoch();
    return UnixEpochAsFileTime
        + static_cast<std::uint64_t>(std::chrono::duration_cast<std::chrono::nanoseconds>(sinceEpoch).count() / 100);
}

// A stored string ends at its first null character, as a C string would.
std::wstring_view storable(std::wstring_view text)
{
    return text.substr(0, text.find(L'\0'));
}

std::wstring readable(const std::wstring& text)
{
    return text.substr(0, PropertyDatabase::MaxReadLength);
}

} // namespace

PropertyDatabase::PropertyDatabase(ObjectStore& store)
    : m_store(store)
{ }

void PropertyDatabase::Create(
    std::wstring_view name, std::uint32_t type, int sortCount, std::span<const PropertyId> sortIds, int sortMode)
{
    SqliteConnection& connection = m_store.connection();
    ObjectStore::Transaction transaction(connection);
    m_databaseId = 0;
    if (!connection.query("INSERT INTO databases(name, type) VALUES(?1, ?2)")
             .bind(1, WideToUtf8(name))
             .bind(2, std::int64_t {type})
             .run()) {
        transaction.commit(); // a database of that name exists: nothing was written
        return;
    }
    const std::int64_t id = connection.lastInsertId();
    const auto orders = std::min({static_cast<std::size_t>(std::max(sortCount, 0)), MaxSortOrders, sortIds.size()});
    bool written = true;
    for (std::size_t slot = 0; written && slot < orders; ++slot) {
        const std::uint32_t flags = sortMode == 2 && slot == 0 ? CaseInsensitive : 0;
        written = connection.query("INSERT INTO sort_orders(db, slot, prop, flags) VALUES(?1, ?2, ?3, ?4)")
                      .bind(1, id)
                      .bind(2, static_cast<std::int64_t>(slot))
                      .bind(3, std::int64_t {sortIds[slot]})
                      .bind(4, std::int64_t {flags})
                      .run();
    }
    if (written && transaction.commit()) {
        m_databaseId = id;
        connection.noteChange();
    }
}

bool PropertyDatabase::Open(std::wstring_view name)
{
    return openWith(name, std::nullopt);
}

bool PropertyDatabase::OpenSorted(std::wstring_view name, PropertyId id)
{
    return openWith(name, id);
}

std::optional<std::int64_t> PropertyDatabase::findDatabase(std::wstring_view name)
{
    SqliteQuery database = m_store.connection().query("SELECT id FROM databases WHERE name = ?1");
    if (!database.bind(1, WideToUtf8(name)).next())
        return std::nullopt;
    return database.integer(0);
}

std::vector<PropertyDatabase::SortOrder> PropertyDatabase::sortOrdersOf(std::int64_t databaseId)
{
    std::vector<SortOrder> orders;
    SqliteQuery sorts = m_store.connection().query("SELECT prop, flags FROM sort_orders WHERE db = ?1 ORDER BY slot");
    sorts.bind(1, databaseId);
    while (sorts.next())
        orders.push_back({static_cast<PropertyId>(sorts.integer(0)), static_cast<std::uint32_t>(sorts.integer(1))});
    return orders;
}

bool PropertyDatabase::openWith(std::wstring_view name, std::optional<PropertyId> sortId)
{
    Close();
    const auto id = findDatabase(name);
    if (!id)
        return false;
    std::vector<SortOrder> orders = sortOrdersOf(*id);
    const auto traversal = sortId
        ? std::find_if(orders.begin(), orders.end(), [&](const SortOrder& o) { return o.id == *sortId; })
        : orders.begin();
    if (sortId && traversal == orders.end())
        return false;
    m_traversal = traversal == orders.end() ? SortOrder {} : *traversal;
    m_databaseId = *id;
    m_open = true;
    m_propertyCount = orders.size();
    m_sortOrders = std::move(orders);
    m_autoAdvance = true;
    m_atEnd = false;
    m_current = 0;
    // An empty database leaves the cursor on no record, as a seek to its first record would.
    m_firstPending = m_store.recordCount(m_databaseId) > 0;
    return true;
}

// Puts the cursor on the first record if the database was just opened and nothing has moved it since.
void PropertyDatabase::settleCursor()
{
    if (m_firstPending) {
        m_firstPending = false;
        SeekFirst();
    }
}

void PropertyDatabase::Close()
{
    m_open = false;
    m_firstPending = false;
    m_databaseId = 0;
    m_current = 0;
    m_atEnd = false;
    m_sortOrders.clear();
    m_index.reset();
}

bool PropertyDatabase::refreshIndex()
{
    if (!m_open)
        return false;
    m_index = m_store.traversal(m_databaseId, m_traversal.id, (m_traversal.flags & CaseInsensitive) != 0);
    return true;
}

std::uint16_t PropertyDatabase::RecordCount()
{
    return m_open ? static_cast<std::uint16_t>(m_store.recordCount(m_databaseId)) : 0;
}

bool PropertyDatabase::SeekFirst()
{
    m_atEnd = false;
    return SeekTo(0) != 0;
}

bool PropertyDatabase::SeekLast()
{
    m_atEnd = false;
    return SeekTo(0, true) != 0;
}

PropertyDatabase::RecordId PropertyDatabase::SeekTo(std::uint32_t position, bool fromEnd)
{
    m_firstPending = false;
    m_current = 0;
    if (!refreshIndex() || position >= m_index->size())
        return 0;
    const std::size_t at = fromEnd ? m_index->size() - 1 - position : position;
    m_current = m_index->at(at).id;
    m_atEnd = false;
    return m_current;
}

bool PropertyDatabase::Next()
{
    settleCursor();
    const bool moved = m_current != 0 && refreshIndex() && step();
    m_atEnd = !moved;
    return moved;
}

// Moves to the next record of the current index; the cursor stays on the last record at the end.
bool PropertyDatabase::step()
{
    const auto position = m_index->positionOf(m_current);
    if (!position) {
        m_current = 0;
        return false;
    }
    if (*position + 1 >= m_index->size())
        return false;
    m_current = m_index->at(*position + 1).id;
    return true;
}

PropertyDatabase::RecordId PropertyDatabase::SeekEqual(const Property& value)
{
    m_firstPending = false;
    m_current = 0;
    if (!m_open)
        return 0;
    std::vector<RecordId> matches;
    {
        SqliteQuery found = m_store.connection().query(
            "SELECT id FROM records WHERE (db = ?1 AND prop0 = ?2 AND lookup0 = ?3) "
            "OR (db = ?1 AND prop1 = ?2 AND lookup1 = ?3) OR (db = ?1 AND prop2 = ?2 AND lookup2 = ?3) "
            "OR (db = ?1 AND prop3 = ?2 AND lookup3 = ?3) ORDER BY id");
        found.bind(1, m_databaseId)
            .bind(2, std::int64_t {value.id})
            .bind(3, WideToUtf8(lookupText(value.id, value.text)));
        while (found.next())
            matches.push_back(found.integer(0));
    }
    if (matches.empty())
        return 0;
    // On the traversal property equal values sort together, in order of addition; on another property
    // the first match in traversal order is wanted.
    RecordId first = matches.front();
    if (value.id != m_traversal.id && refreshIndex()) {
        const auto position = [this](RecordId id) { return m_index->positionOf(id).value_or(m_index->size()); };
        first = *std::min_element(
            matches.begin(), matches.end(), [&](RecordId a, RecordId b) { return position(a) < position(b); });
    }
    m_current = first;
    m_atEnd = false;
    return first;
}

// Seeks to the first record, then `position` records on, reads, and moves on when auto-advance is set.
const StoredRecord* PropertyDatabase::readRecord(std::uint32_t position)
{
    m_atEnd = false;
    m_firstPending = false;
    m_current = 0;
    if (!refreshIndex() || position >= m_index->size())
        return nullptr;
    const StoredRecord* record = &m_index->at(position);
    m_current = record->id;
    if (m_autoAdvance)
        m_atEnd = !step();
    return record;
}

std::wstring PropertyDatabase::ReadAt(std::uint32_t position, PropertyId id)
{
    const StoredRecord* record = readRecord(position);
    if (!record)
        return {};
    const auto& properties = record->properties;
    const auto end = properties.begin() + static_cast<std::ptrdiff_t>(std::min(properties.size(), MaxSortOrders));
    const auto found = std::find_if(properties.begin(), end, [id](const Property& p) { return p.id == id; });
    return found == end ? std::wstring() : readable(found->text);
}

std::wstring PropertyDatabase::ReadBeforeColonAt(std::uint32_t position, PropertyId id)
{
    return std::wstring(BeforeFirst(ReadAt(position, id), L':'));
}

std::wstring PropertyDatabase::ReadAfterColonAt(std::uint32_t position, PropertyId id)
{
    return std::wstring(AfterFirst(ReadAt(position, id), L':'));
}

std::vector<Property> PropertyDatabase::ReadRecordAt(std::uint32_t position)
{
    std::vector<Property> result;
    if (const StoredRecord* record = readRecord(position)) {
        for (std::size_t i = 0; i < std::min(record->properties.size(), MaxSortOrders); ++i)
            result.push_back({record->properties[i].id, readable(record->properties[i].text)});
    }
    return result;
}

std::wstring PropertyDatabase::lookupText(PropertyId id, std::wstring_view text) const
{
    const auto order
        = std::find_if(m_sortOrders.begin(), m_sortOrders.end(), [id](const SortOrder& o) { return o.id == id; });
    const bool fold = order != m_sortOrders.end() && (order->flags & CaseInsensitive) != 0;
    return fold ? FoldLatin1(storable(text)) : std::wstring(storable(text));
}

// Binds a property to the three parameters of its slot, from `first` on.
void PropertyDatabase::bindSlot(SqliteQuery& query, int first, const Property& property) const
{
    query.bind(first, std::int64_t {property.id})
        .bind(first + 1, WideToUtf8(storable(property.text)))
        .bind(first + 2, WideToUtf8(lookupText(property.id, property.text)));
}

// Writes one property into its slot of `record`: the slot holding that identifier, or the first free one.
bool PropertyDatabase::writeProperty(RecordId record, const Property& property)
{
    static constexpr std::array<const char*, MaxSortOrders> UpdateSlot = {
        "UPDATE records SET prop0 = ?2, value0 = ?3, lookup0 = ?4 WHERE id = ?1",
        "UPDATE records SET prop1 = ?2, value1 = ?3, lookup1 = ?4 WHERE id = ?1",
        "UPDATE records SET prop2 = ?2, value2 = ?3, lookup2 = ?4 WHERE id = ?1",
        "UPDATE records SET prop3 = ?2, value3 = ?3, lookup3 = ?4 WHERE id = ?1",
    };
    SqliteConnection& connection = m_store.connection();
    std::optional<std::size_t> same;
    std::optional<std::size_t> free;
    {
        SqliteQuery slots = connection.query("SELECT prop0, prop1, prop2, prop3 FROM records WHERE id = ?1");
        if (!slots.bind(1, record).next())
            return false;
        for (std::size_t i = 0; i < MaxSortOrders && !same; ++i) {
            const int column = static_cast<int>(i);
            if (slots.isNull(column))
                free = free.value_or(i);
            else if (slots.integer(column) == property.id)
                same = i;
        }
    }
    const auto slot = same ? same : free;
    if (!slot)
        return false; // a record holds four properties
    SqliteQuery update = connection.query(UpdateSlot[*slot]);
    update.bind(1, record);
    bindSlot(update, 2, property);
    return update.run();
}

// Sets the modification time once per transaction: a load of a thousand records stamps it once.
bool PropertyDatabase::touch()
{
    SqliteConnection& connection = m_store.connection();
    if (m_touchedIn == connection.transactionSerial())
        return true;
    const bool stamped = connection.query("UPDATE databases SET modified = ?2 WHERE id = ?1")
                             .bind(1, m_databaseId)
                             .bind(2, static_cast<std::int64_t>(fileTimeNow()))
                             .run();
    if (stamped)
        m_touchedIn = connection.transactionSerial();
    return stamped;
}

bool PropertyDatabase::Add(std::span<const Property> properties, int keyIndex)
{
    if (!m_open)
        return false;
    const bool keyed = keyIndex >= 0 && static_cast<std::size_t>(keyIndex) < properties.size();
    if (keyed && SeekEqual(properties[static_cast<std::size_t>(keyIndex)]) != 0)
        return false;
    SqliteConnection& connection = m_store.connection();
    ObjectStore::Transaction transaction(connection);
    SqliteQuery insert = connection.query("INSERT INTO records(db, prop0, value0, lookup0, prop1, value1, lookup1, "
                                          "prop2, value2, lookup2, prop3, value3, lookup3) "
                                          "VALUES(?1, ?2, ?3, ?4, ?5, ?6, ?7, ?8, ?9, ?10, ?11, ?12, ?13)");
    insert.bind(1, m_databaseId);
    const std::size_t written = std::min({properties.size(), m_propertyCount, MaxSortOrders});
    for (std::size_t slot = 0; slot < written; ++slot)
        bindSlot(insert, 2 + 3 * static_cast<int>(slot), properties[slot]);
    if (!insert.run() || !touch() || !transaction.commit())
        return false;
    connection.noteChange();
    if (m_autoAdvance)
        Next();
    return true;
}

bool PropertyDatabase::UpdateAt(std::uint32_t position, std::span<const Property> properties)
{
    return SeekTo(position) != 0 && UpdateCurrent(properties);
}

bool PropertyDatabase::UpdateCurrent(std::span<const Property> properties)
{
    settleCursor();
    if (!m_open || m_current == 0)
        return false;
    SqliteConnection& connection = m_store.connection();
    ObjectStore::Transaction transaction(connection);
    bool lastWrite = false;
    for (const Property& property : properties)
        lastWrite = writeProperty(m_current, property);
    if (!touch() || !transaction.commit())
        return false;
    connection.noteChange();
    return lastWrite;
}

bool PropertyDatabase::DeleteAt(std::uint32_t position)
{
    const RecordId record = SeekTo(position);
    if (record == 0)
        return false;
    SqliteConnection& connection = m_store.connection();
    ObjectStore::Transaction transaction(connection);
    const bool deleted = connection.query("DELETE FROM records WHERE id = ?1").bind(1, record).run() && touch()
        && transaction.commit();
    if (deleted) {
        connection.noteChange();
        m_current = 0;
    }
    return deleted;
}

std::uint64_t PropertyDatabase::LastModified()
{
    SqliteQuery modified = m_store.connection().query("SELECT modified FROM databases WHERE id = ?1");
    return modified.bind(1, m_databaseId).next() ? static_cast<std::uint64_t>(modified.integer(0)) : 0;
}

bool PropertyDatabase::SetLastModified(std::uint32_t low, std::uint32_t high)
{
    const std::uint64_t time = (std::uint64_t {high} << 32) | low;
    SqliteConnection& connection = m_store.connection();
    const bool set = connection.query("UPDATE databases SET modified = ?2 WHERE id = ?1")
                         .bind(1, m_databaseId)
                         .bind(2, static_cast<std::int64_t>(time))
                         .run();
    connection.noteChange();
    m_touchedIn = 0; // a later write stamps the time again
    return set && m_databaseId != 0;
}
