// SPDX-License-Identifier: GPL-3.0-or-later
#include "settings/SettingsTable.h"

namespace {

bool writesBack(std::int32_t status, WriteBack rule)
{
    switch (rule) {
    case WriteBack::WhenMissing:
        return status != RegistrySettings::Read;
    case WriteBack::WhenKeyMissing:
        return status == RegistrySettings::KeyMissing;
    case WriteBack::Never:
        break;
    }
    return false;
}

} // namespace

std::uint32_t ReadSetting(RegistrySettings& settings, const DwordSetting& setting)
{
    const std::uint32_t value = settings.GetDWORD(setting.subkey, setting.name);
    if (settings.Status() == RegistrySettings::Read)
        return value;
    if (writesBack(settings.Status(), setting.writeBack))
        settings.SetDWORD(setting.subkey, setting.name, setting.fallback);
    return setting.fallback;
}

std::wstring ReadSetting(RegistrySettings& settings, const StringSetting& setting)
{
    std::wstring text = settings.GetString(setting.subkey, setting.name);
    if (settings.Status() == RegistrySettings::Read)
        return text;
    if (writesBack(settings.Status(), setting.writeBack))
        settings.SetString(setting.subkey, setting.name, setting.fallback);
    return std::wstring(setting.fallback);
}

void WriteSetting(RegistrySettings& settings, const DwordSetting& setting, std::uint32_t value)
{
    settings.SetDWORD(setting.subkey, setting.name, value);
}

void WriteSetting(RegistrySettings& settings, const StringSetting& setting, std::wstring_view text)
{
    settings.SetString(setting.subkey, setting.name, text);
}
