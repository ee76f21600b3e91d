// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>

// The bytes of one fuzz run, taken apart front to back: small numbers and pieces up to a separator.
class FuzzInput
{
public:
    FuzzInput(const std::uint8_t* data, std::size_t size)
        : m_rest(reinterpret_cast<const char*>(data), size)
    { }

    // The next byte, 0 when none is left.
    std::uint8_t byte()
    {
        if (m_rest.empty())
            return 0;
        const auto value = static_cast<std::uint8_t>(m_rest.front());
        m_rest.remove_prefix(1);
        return value;
    }

    // The next four bytes, little-endian.
    std::uint32_t word()
    {
        std::uint32_t value = 0;
        for (int i = 0; i < 4; ++i)
            value |= std::uint32_t {byte()} << (8 * i);
        return value;
    }

    // The bytes up to the next `separator` (dropped), or all that is left.
    std::string piece(char separator = '\0')
    {
        const std::size_t end = m_rest.find(separator);
        std::string text(m_rest.substr(0, end));
        m_rest.remove_prefix(end == std::string_view::npos ? m_rest.size() : end + 1);
        return text;
    }

    std::string rest()
    {
        std::string text(m_rest);
        m_rest = {};
        return text;
    }
    bool empty() const { return m_rest.empty(); }

private:
    std::string_view m_rest;
};
