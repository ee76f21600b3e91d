// SPDX-License-Identifier: GPL-3.0-or-later
#include "store/RecordIndex.h"

#include "text/WideText.h"

#include <algorithm>
#include <numeric>

namespace {

struct SortKey
{
    bool missing = true;
    std::wstring text;
};

SortKey sortKey(const StoredRecord& record, PropertyId sortId, bool caseInsensitive)
{
    for (const Property& property : record.properties) {
        if (property.id == sortId)
            return {false, caseInsensitive ? FoldLatin1(property.text) : property.text};
    }
    return {};
}

} // namespace

RecordIndex::RecordIndex(std::vector<StoredRecord> records, PropertyId sortId, bool caseInsensitive)
{
    std::vector<SortKey> keys;
    keys.reserve(records.size());
    for (const StoredRecord& record : records)
        keys.push_back(sortKey(record, sortId, caseInsensitive));
    std::vector<std::size_t> order(records.size());
    std::iota(order.begin(), order.end(), std::size_t {0});
    // Stable: records of equal key keep their order of addition.
    std::stable_sort(order.begin(), order.end(), [&keys](std::size_t a, std::size_t b) {
        if (keys[a].missing != keys[b].missing)
            return keys[b].missing;
        return keys[a].text < keys[b].text;
    });
    m_records.reserve(records.size());
    m_positions.reserve(records.size());
    for (const std::size_t from : order) {
        m_positions.emplace(records[from].id, m_records.size());
        m_records.push_back(std::move(records[from]));
    }
}

std::optional<std::size_t> RecordIndex::positionOf(std::int64_t id) const
{
    const auto found = m_positions.find(id);
    return found == m_positions.end() ? std::nullopt : std::optional<std::size_t>(found->second);
}
