// SPDX-License-Identifier: GPL-3.0-or-later
#include "settings/RegistrySettings.h"

#include "settings/SettingsHive.h"

#include <array>
#include <vector>

namespace {

// REG_SZ: UTF-16LE, two bytes a character, no terminator.
std::vector<std::uint8_t> utf16Bytes(std::wstring_view text)
{
    std::vector<std::uint8_t> bytes;
    bytes.reserve(text.size() * 2);
    const auto put = [&bytes](std::uint32_t unit) {
        bytes.push_back(static_cast<std::uint8_t>(unit & 0xFF));
        bytes.push_back(static_cast<std::uint8_t>(unit >> 8));
    };
    for (const wchar_t c : text) {
        const auto code = static_cast<std::uint32_t>(c);
        if (code >= 0x10000 && code <= 0x10FFFF) {
            put(0xD800 + ((code - 0x10000) >> 10));
            put(0xDC00 + ((code - 0x10000) & 0x3FF));
        } else {
            put(code <= 0xFFFF ? code : 0xFFFD);
        }
    }
    return bytes;
}

// The stored bytes as a C string would read them: up to the first null character.
std::wstring textFromUtf16(const std::vector<std::uint8_t>& bytes)
{
    std::wstring text;
    for (std::size_t i = 0; i + 1 < bytes.size(); i += 2) {
        const std::uint32_t unit = bytes[i] | (std::uint32_t {bytes[i + 1]} << 8);
        if (unit == 0)
            break;
        const bool pair = unit >= 0xD800 && unit <= 0xDBFF && i + 3 < bytes.size();
        const std::uint32_t low = pair ? (bytes[i + 2] | (std::uint32_t {bytes[i + 3]} << 8)) : 0;
        if (pair && low >= 0xDC00 && low <= 0xDFFF) {
            text.push_back(static_cast<wchar_t>(0x10000 + ((unit - 0xD800) << 10) + (low - 0xDC00)));
            i += 2;
        } else {
            text.push_back(static_cast<wchar_t>(unit));
        }
    }
    return text;
}

} // namespace

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
    return value ? textFromUtf16(value->data) : std::wstring();
}

std::uint32_t RegistrySettings::GetDWORD(std::wstring_view subkey, std::wstring_view name)
{
    const auto value = read(subkey, name);
    std::uint32_t result = 0;
    for (std::size_t i = 0; value && i < 4 && i < value->data.size(); ++i)
        result |= std::uint32_t {value->data[i]} << (8 * i);
    return result;
}

void RegistrySettings::SetString(std::wstring_view subkey, std::wstring_view name, std::wstring_view text)
{
    m_hive.setValue(subkey, name, RegistryType::String, utf16Bytes(text));
}

void RegistrySettings::SetDWORD(std::wstring_view subkey, std::wstring_view name, std::uint32_t value)
{
    const std::array<std::uint8_t, 4> bytes = {static_cast<std::uint8_t>(value), static_cast<std::uint8_t>(value >> 8),
        static_cast<std::uint8_t>(value >> 16), static_cast<std::uint8_t>(value >> 24)};
    m_hive.setValue(subkey, name, RegistryType::Dword, bytes);
}

void RegistrySettings::SetBinary(
    std::wstring_view subkey, std::wstring_view name, const std::uint8_t* bytes, std::size_t length)
{
    m_hive.setValue(subkey, name, RegistryType::Binary, std::span<const std::uint8_t>(bytes, bytes ? length : 0));
}
