// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstdint>
#include <span>
#include <string>
#include <string_view>
#include <vector>

// How registry values are kept as bytes: REG_SZ as UTF-16LE without a terminator, REG_DWORD as four
// bytes little-endian. Reads accept any bytes another program may have stored.

// REG_SZ bytes of `text`; characters past U+FFFF become surrogate pairs, invalid ones U+FFFD.
std::vector<std::uint8_t> RegistryTextBytes(std::wstring_view text);
// The stored bytes as a C string would read them: up to the first null character; an odd last byte is dropped and
// unpaired surrogates are kept as they are.
std::wstring RegistryTextOf(std::span<const std::uint8_t> bytes);
// The first four stored bytes, little-endian; missing bytes read as 0.
std::uint32_t RegistryDwordOf(std::span<const std::uint8_t> bytes);
