// SPDX-License-Identifier: GPL-3.0-or-later
// Registry values another program or an older version may have stored: the run's first byte is the
// stored type, the rest its data. The value is stored under a number setting and a text setting, read
// back through the accessor the screens use, and its text converted to numbers as the screens do.
#include "FuzzInput.h"
#include "settings/MappingFile.h"
#include "settings/RegistryValueText.h"
#include "settings/SettingsTable.h"
#include "text/WideText.h"

#include <cstdlib>

namespace {

void store(SettingsHive& hive, auto setting, RegistryType type, const std::string& data)
{
    hive.setValue(
        setting.subkey, setting.name, type, std::span(reinterpret_cast<const std::uint8_t*>(data.data()), data.size()));
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    FuzzInput input(data, size);
    const auto type = static_cast<RegistryType>(input.byte());
    const std::string bytes = input.rest();
    static const auto hive = SettingsHive::openInMemory(); // each run overwrites the same three values
    store(*hive, Settings::Currency1, type, bytes);
    store(*hive, Settings::CurrencyAmount, type, bytes);
    store(*hive, Settings::InstallDir, type, bytes);

    RegistrySettings settings(*hive);
    ReadSetting(settings, Settings::Currency1);
    const std::wstring amount = ReadSetting(settings, Settings::CurrencyAmount);
    Wtol(amount);
    Wcstod(amount);
    ReadInstallFolder(settings);
    // Text read from any bytes is stored again unchanged.
    if (RegistryTextOf(RegistryTextBytes(amount)) != amount)
        std::abort();
    return 0;
}
