// SPDX-License-Identifier: GPL-3.0-or-later
#include "store/InitialCurrencyList.h"

#include "device/DeviceFile.h"
#include "device/MessageSink.h"
#include "store/DelimitedFieldReader.h"
#include "text/StringTable.h"
#include "text/WideText.h"

namespace {

constexpr int CurrenciesFileMissing = 40033;

} // namespace

InitialCurrencyList ReadInitialCurrencies(const DevicePaths& paths, MessageSink& messages)
{
    auto bytes = ReadDeviceFile(paths, DevicePaths::besideProgram(L"\\currs.lst"));
    if (!bytes) {
        messages.showMessage(StringTable::Load(CurrenciesFileMissing), L"Wanderkit");
        return {};
    }
    return ParseInitialCurrencies(std::move(*bytes));
}

InitialCurrencyList ParseInitialCurrencies(std::string bytes)
{
    InitialCurrencyList list;
    DelimitedFieldReader reader(std::move(bytes));
    list.fromFile = true;
    list.count = Wtol(reader.read('\n'));
    while (static_cast<std::int32_t>(list.entries.size()) < list.size() && !reader.atEnd()) {
        CurrencyEntry entry;
        entry.code = reader.read('_');
        entry.name = reader.read('_');
        entry.rate = reader.read('#');
        list.entries.push_back(std::move(entry));
    }
    return list;
}
