// SPDX-License-Identifier: GPL-3.0-or-later
#include "store/PropertyDatabase.h"

#include "text/WideText.h"

#include <algorithm>
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

std::string utf8(std::wstring_view text)
{
    return WideToUtf8(text);
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
             .bind(1, utf8(name))
             .bind(2, std::int64_t {type})
             .run())
        return;
    const std::int64_t id = connection.lastInsertId();
    const auto orders = std::min({static_cast<std::size_t>(std::max(sortCount, 0)), MaxSortOrders, sortIds.size()});
    for (std::size_t slot = 0; slot < orders; ++slot) {
        const std::uint32_t flags = sortMode == 2 && slot == 0 ? CaseInsensitive : 0;
        connection.query("INSERT INTO sort_orders(db, slot, prop, flags) VALUES(?1, ?2, ?3, ?4)")
            .bind(1, id)
            .bind(2, static_cast<std::int64_t>(slot))
            .bind(3, std::int64_t {sortIds[slot]})
            .bind(4, std::int64_t {flags})
            .run();
    }
    if (transaction.commit()) {
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

bool PropertyDatabase::openWith(std::wstring_view name, std::optional<PropertyId> sortId)
{
    Close();
    SqliteConnection& connection = m_store.connection();
    std::int64_t id = 0;
    {
        SqliteQuery database = connection.query("SELECT id FROM databases WHERE name = ?1");
        if (!database.bind(1, utf8(name)).next())
            return false;
        id = database.integer(0);
    }
    std::vector<SortOrder> orders;
    {
        SqliteQuery sorts = connection.query("SELECT prop, flags FROM sort_orders WHERE db = ?1 ORDER BY slot");
        sorts.bind(1, id);
        while (sorts.next())
            orders.push_back({static_cast<PropertyId>(sorts.integer(0)), static_cast<std::uint32_t>(sorts.integer(1))});
    }
    SortOrder traversal;
    if (sortId) {
        const auto found
            = std::find_if(orders.begin(), orders.end(), [&](const SortOrder& o) { return o.id == *sortId; });
        if (found == orders.end())
            return false;
        traversal = *found;
    } else if (!orders.empty()) {
        traversal = orders.front();
    }
    m_databaseId = id;
    m_open = true;
    m_propertyCount = orders.size();
    m_sortOrders = std::move(orders);
    m_traversal = traversal;
    m_autoAdvance = true;
    m_atEnd = false;
    SeekFirst();
    return true;
}

void PropertyDatabase::Close()
{
    m_open = false;
    m_databaseId = 0;
    m_current = 0;
    m_atEnd = false;
    m_sortOrders.clear();
    m_index = RecordIndex();
    m_indexValid = false;
}

bool PropertyDatabase::refreshIndex()
{
    if (!m_open)
        return false;
    const ObjectStore::Stamp stamp = m_store.stamp();
    if (m_indexValid && stamp == m_indexStamp)
        return true;
    std::vector<StoredRecord> records;
    {
        SqliteQuery rows = m_store.connection().query(
            "SELECT r.id, p.prop, p.value FROM records r LEFT JOIN properties p ON p.record = r.id "
            "WHERE r.db = ?1 ORDER BY r.id, p.slot");
        rows.bind(1, m_databaseId);
        while (rows.next()) {
            const std::int64_t id = rows.integer(0);
            if (records.empty() || records.back().id != id)
                records.push_back({id, {}});
            if (!rows.isNull(1))
                records.back().properties.push_back(
                    {static_cast<PropertyId>(rows.integer(1)), Utf8ToWide(rows.text(2))});
        }
    }
    m_index = RecordIndex(std::move(records), m_traversal.id, (m_traversal.flags & CaseInsensitive) != 0);
    m_indexValid = true;
    m_indexStamp = stamp;
    return true;
}

const StoredRecord* PropertyDatabase::current() const
{
    const auto position = m_current == 0 ? std::nullopt : m_index.positionOf(m_current);
    return position ? &m_index.at(*position) : nullptr;
}

std::uint16_t PropertyDatabase::RecordCount()
{
    return refreshIndex() ? static_cast<std::uint16_t>(m_index.size()) : 0;
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
    m_current = 0;
    if (!refreshIndex() || position >= m_index.size())
        return 0;
    const std::size_t at = fromEnd ? m_index.size() - 1 - position : position;
    m_current = m_index.at(at).id;
    m_atEnd = false;
    return m_current;
}

bool PropertyDatabase::Next()
{
    const bool moved = m_current != 0 && refreshIndex() && step();
    m_atEnd = !moved;
    return moved;
}

// Moves to the next record of the current index; the cursor stays on the last record at the end.
bool PropertyDatabase::step()
{
    const auto position = m_index.positionOf(m_current);
    if (!position) {
        m_current = 0;
        return false;
    }
    if (*position + 1 >= m_index.size())
        return false;
    m_current = m_index.at(*position + 1).id;
    return true;
}

PropertyDatabase::RecordId PropertyDatabase::SeekEqual(const Property& value)
{
    m_current = 0;
    if (!m_open)
        return 0;
    std::vector<RecordId> matches;
    {
        SqliteQuery found = m_store.connection().query(
            "SELECT record FROM properties WHERE db = ?1 AND prop = ?2 AND lookup = ?3 ORDER BY record");
        found.bind(1, m_databaseId).bind(2, std::int64_t {value.id}).bind(3, utf8(lookupText(value.id, value.text)));
        while (found.next())
            matches.push_back(found.integer(0));
    }
    if (matches.empty())
        return 0;
    // On the traversal property equal values sort together, in order of addition; on another property
    // the first match in traversal order is wanted.
    RecordId first = matches.front();
    if (value.id != m_traversal.id && refreshIndex()) {
        const auto position = [this](RecordId id) { return m_index.positionOf(id).value_or(m_index.size()); };
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
    m_current = 0;
    if (!refreshIndex() || position >= m_index.size())
        return nullptr;
    const StoredRecord* record = &m_index.at(position);
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

bool PropertyDatabase::insertProperty(RecordId record, std::size_t slot, const Property& property)
{
    return m_store.connection()
        .query("INSERT INTO properties(record, slot, db, prop, value, lookup) VALUES(?1, ?2, ?3, ?4, ?5, ?6)")
        .bind(1, record)
        .bind(2, static_cast<std::int64_t>(slot))
        .bind(3, m_databaseId)
        .bind(4, std::int64_t {property.id})
        .bind(5, utf8(storable(property.text)))
        .bind(6, utf8(lookupText(property.id, property.text)))
        .run();
}

bool PropertyDatabase::writeProperty(RecordId record, const Property& property)
{
    SqliteConnection& connection = m_store.connection();
    std::int64_t slots = 0;
    bool present = false;
    {
        SqliteQuery existing = connection.query("SELECT count(*), sum(prop = ?2) FROM properties WHERE record = ?1");
        existing.bind(1, record).bind(2, std::int64_t {property.id});
        if (existing.next()) {
            slots = existing.integer(0);
            present = existing.integer(1) > 0;
        }
    }
    if (!present)
        return insertProperty(record, static_cast<std::size_t>(slots), property);
    return connection.query("UPDATE properties SET value = ?3, lookup = ?4 WHERE record = ?1 AND prop = ?2")
        .bind(1, record)
        .bind(2, std::int64_t {property.id})
        .bind(3, utf8(storable(property.text)))
        .bind(4, utf8(lookupText(property.id, property.text)))
        .run();
}

bool PropertyDatabase::touch()
{
    return m_store.connection()
        .query("UPDATE databases SET modified = ?2 WHERE id = ?1")
        .bind(1, m_databaseId)
        .bind(2, static_cast<std::int64_t>(fileTimeNow()))
        .run();
}

bool PropertyDatabase::recordExists(RecordId record)
{
    SqliteQuery exists = m_store.connection().query("SELECT 1 FROM records WHERE id = ?1 AND db = ?2");
    return exists.bind(1, record).bind(2, m_databaseId).next();
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
    bool written = connection.query("INSERT INTO records(db) VALUES(?1)").bind(1, m_databaseId).run();
    const RecordId record = connection.lastInsertId();
    for (std::size_t slot = 0; written && slot < std::min(properties.size(), m_propertyCount); ++slot)
        written = insertProperty(record, slot, properties[slot]);
    written = written && touch() && transaction.commit();
    if (!written)
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
    if (!m_open || m_current == 0 || !recordExists(m_current))
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
    const bool deleted = connection.query("DELETE FROM properties WHERE record = ?1").bind(1, record).run()
        && connection.query("DELETE FROM records WHERE id = ?1").bind(1, record).run() && touch()
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
    return set && m_databaseId != 0;
}
