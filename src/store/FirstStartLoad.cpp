// SPDX-License-Identifier: GPL-3.0-or-later
#include "store/FirstStartLoad.h"

std::vector<Property> DatabaseShape::record(std::initializer_list<std::wstring_view> values) const
{
    std::vector<Property> properties;
    for (std::size_t i = 0; i < values.size() && i < sortIds.size(); ++i)
        properties.push_back({sortIds[i], std::wstring(values.begin()[i])});
    return properties;
}

namespace {

bool isFilled(PropertyDatabase& database, const DatabaseShape& shape)
{
    return database.Open(shape.name) && database.RecordCount() > 0;
}

FirstStartLoad::Result loadInTransaction(ObjectStore& store, PropertyDatabase& database, const DatabaseShape& shape,
    const std::function<bool(PropertyDatabase&)>& fill)
{
    ObjectStore::Transaction transaction(store.connection());
    if (!transaction.active())
        return FirstStartLoad::Result::Failed;
    // Another process may have filled it since the first look.
    if (isFilled(database, shape))
        return transaction.commit() ? FirstStartLoad::Result::AlreadyFilled : FirstStartLoad::Result::Failed;
    database.Create(shape.name, shape.type, static_cast<int>(shape.sortIds.size()), shape.sortIds, shape.sortMode);
    if (!database.Open(shape.name))
        return FirstStartLoad::Result::Failed;
    const bool filled = fill(database);
    if (!transaction.commit())
        return FirstStartLoad::Result::Failed;
    return filled ? FirstStartLoad::Result::Filled : FirstStartLoad::Result::SourceMissing;
}

} // namespace

FirstStartLoad::Result FirstStartLoad::run(ObjectStore& store, PropertyDatabase& database, const DatabaseShape& shape,
    const std::function<bool(PropertyDatabase&)>& fill)
{
    // The usual case, a filled database, needs no write lock.
    if (isFilled(database, shape))
        return Result::AlreadyFilled;
    const Result result = loadInTransaction(store, database, shape, fill);
    // After a rollback the handle may name a database that no longer exists: open what is really there.
    if (result == Result::Failed)
        database.Open(shape.name);
    return result;
}
