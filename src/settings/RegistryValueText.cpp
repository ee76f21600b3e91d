// SPDX-License-Identifier: GPL-3.0-or-later
#include "settings/RegistryValueText.h"

std::vector<std::uint8_t> RegistryTextBytes(std::wstring_view text)
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

std::wstring RegistryTextOf(std::span<const std::uint8_t> bytes)
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

std::uint32_t RegistryDwordOf(std::span<const std::uint8_t> bytes)
{
    std::uint32_t result = 0;
    for (std::size_t i = 0; i < 4 && i < bytes.size(); ++i)
        result |= std::uint32_t {bytes[i]} << (8 * i);
    return result;
}
