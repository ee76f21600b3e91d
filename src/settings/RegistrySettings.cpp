// SPDX-License-Identifier: GPL-3.0-or-later
#include "settings/RegistrySettings.h"

#include "settings/RegistryValueText.h"
#include "settings/SettingsHive.h"

#include <array>
#include <vector>

RegistrySettings::RegistrySettings(SettingsHive& hive)
    : m_hive(hive)
{ }

std::optional<RegistryValue> RegistrySettings::read(std::wstring_view subkey, std::wstring_view name)
{
    if (!m_hive.keyExists(subkey)) {
        m_status = KeyMissing;
        return std::nullopt;
    }
    auto found = name.size() <= MaxValueNameLength ? m_hive.value(subkey, name) : std::nullopt;
    m_status = found ? Read : ValueMissing;
    return found;
}

std::wstring RegistrySettings::GetString(std::wstring_view subkey, std::wstring_view name)
{
    const auto value = read(subkey, name);
    return value ? RegistryTextOf(value->data) : std::wstring();
}

std::uint32_t RegistrySettings::GetDWORD(std::wstring_view subkey, std::wstring_view name)
{
    const auto value = read(subkey, name);
    return value ? RegistryDwordOf(value->data) : 0;
}

std::optional<RegistryValue> RegistrySettings::GetValue(std::wstring_view subkey, std::wstring_view name)
{
    return read(subkey, name);
}

bool RegistrySettings::SetString(std::wstring_view subkey, std::wstring_view name, std::wstring_view text)
{
    return m_hive.setValue(subkey, name, RegistryType::String, RegistryTextBytes(text));
}

bool RegistrySettings::SetDWORD(std::wstring_view subkey, std::wstring_view name, std::uint32_t value)
{
    const std::array<std::uint8_t, 4> bytes = {static_cast<std::uint8_t>(value), static_cast<std::uint8_t>(value >> 8),
        static_cast<std::uint8_t>(value >> 16), static_cast<std::uint8_t>(value >> 24)};
    return m_hive.setValue(subkey, name, RegistryType::Dword, bytes);
}

void RegistrySettings::SetBinary(
    std::wstring_view subkey, std::wstring_view name, const std::uint8_t* bytes, std::size_t length)
{
    m_hive.setValue(subkey, name, RegistryType::Binary, std::span<const std::uint8_t>(bytes, bytes ? length : 0));
}
