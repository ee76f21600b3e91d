// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "settings/SettingsHive.h"

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

// The registry accessor every screen owns: reads and writes values under HKEY_LOCAL_MACHINE and keeps
// the status of its last read, so that the caller can apply its own default.
class RegistrySettings
{
public:
    static constexpr std::int32_t Read = 0;
    static constexpr std::int32_t ValueMissing = -1; // the key exists, the value does not
    static constexpr std::int32_t KeyMissing = -2;
    // Value names are looked up through a buffer of this many characters: a longer name is never found.
    static constexpr std::size_t MaxValueNameLength = 20;

    explicit RegistrySettings(SettingsHive& hive);

    // The stored text (stored without a terminator); empty on any miss.
    std::wstring GetString(std::wstring_view subkey, std::wstring_view name);
    // The first four stored bytes, little-endian; 0 on any miss.
    std::uint32_t GetDWORD(std::wstring_view subkey, std::wstring_view name);
    // The stored value with its type; nothing on any miss.
    std::optional<RegistryValue> GetValue(std::wstring_view subkey, std::wstring_view name);
    // True when the value was stored (screens ignore a failed write, the settings command reports it).
    bool SetString(std::wstring_view subkey, std::wstring_view name, std::wstring_view text);
    bool SetDWORD(std::wstring_view subkey, std::wstring_view name, std::uint32_t value);
    void SetBinary(std::wstring_view subkey, std::wstring_view name, const std::uint8_t* bytes, std::size_t length);
    // Every stored value, by key and name; and emptying the registry, so that the next start writes the
    // defaults.
    std::vector<StoredRegistryValue> ListValues() { return m_hive.values(); }
    bool Clear() { return m_hive.clear(); }
    // The values `writes` sets, stored all together or not at all.
    bool writeTogether(const std::function<void()>& writes) { return m_hive.writeTogether(writes); }
    // The status of the last read: 0 read, -1 value missing, -2 key missing.
    std::int32_t Status() const { return m_status; }

private:
    // The value, enumerated as the handheld did; sets the status.
    [[nodiscard]] std::optional<RegistryValue> read(std::wstring_view subkey, std::wstring_view name);

    SettingsHive& m_hive;
    std::int32_t m_status = Read;
};
