// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstddef>
#include <string>

// Reads the fields of an 8-bit data file ("\cities.lst", "\currs.lst") one byte at a time, each byte
// widened as Latin-1. A field runs up to a one-character delimiter or the end of the file; delimiters met
// before the first character of a field are skipped, so a field comes back empty only at the end of the file.
class DelimitedFieldReader
{
public:
    // Characters kept of one field (the handheld's buffer held 1500 with the terminator); the rest of a
    // longer field is read and dropped.
    static constexpr std::size_t MaxFieldLength = 1499;

    explicit DelimitedFieldReader(std::string bytes);

    std::wstring read(char delimiter);
    bool atEnd() const { return m_next >= m_bytes.size(); }

private:
    std::string m_bytes;
    std::size_t m_next = 0;
};
