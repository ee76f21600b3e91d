// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "store/PropertyDatabase.h"

#include <functional>
#include <initializer_list>
#include <span>
#include <string_view>
#include <vector>

// The shape a store gives its database when it creates it.
struct DatabaseShape
{
    std::wstring_view name;
    std::uint32_t type = 0;
    std::span<const PropertyId> sortIds;
    int sortMode = 0;

    // A record as the store writes it: `values` paired with the sort orders' properties, in their order.
    [[nodiscard]] std::vector<Property> record(std::initializer_list<std::wstring_view> values) const;
};

// A store's load from shipped data, done once per device: a database that holds at least one record is
// complete. Otherwise the database is created and `fill` writes its records, all in one transaction, so an
// interrupted load leaves the database as it was. `fill` returns false when its source file is missing
// (the empty database is kept and filled at a later start). Leaves `database` open.
class FirstStartLoad
{
public:
    enum class Result { AlreadyFilled, Filled, SourceMissing, Failed };

    static Result run(ObjectStore& store, PropertyDatabase& database, const DatabaseShape& shape,
        const std::function<bool(PropertyDatabase&)>& fill);
};
