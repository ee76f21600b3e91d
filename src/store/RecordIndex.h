// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "store/Property.h"

#include <cstddef>
#include <cstdint>
#include <optional>
#include <unordered_map>
#include <vector>

// A stored record: its identifier (which grows with every addition) and its properties in written order.
struct StoredRecord
{
    std::int64_t id = 0;
    std::vector<Property> properties;
};

// The records of one database in traversal order, so that a read by position costs O(1):
// ascending by the sort property compared character by character (after Latin-1 case folding for a
// case-insensitive order), equal keys in order of addition, records without the property last.
class RecordIndex
{
public:
    RecordIndex() = default;
    // `records` in order of addition.
    RecordIndex(std::vector<StoredRecord> records, PropertyId sortId, bool caseInsensitive);

    std::size_t size() const { return m_records.size(); }
    const StoredRecord& at(std::size_t position) const { return m_records[position]; }
    std::optional<std::size_t> positionOf(std::int64_t id) const;

private:
    std::vector<StoredRecord> m_records;
    std::unordered_map<std::int64_t, std::size_t> m_positions;
};
