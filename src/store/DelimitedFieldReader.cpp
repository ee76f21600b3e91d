// SPDX-License-Identifier: GPL-3.0-or-later
#include "store/DelimitedFieldReader.h"

DelimitedFieldReader::DelimitedFieldReader(std::string bytes)
    : m_bytes(std::move(bytes))
{ }

std::wstring DelimitedFieldReader::read(char delimiter)
{
    std::wstring field;
    while (m_next < m_bytes.size()) {
        const char byte = m_bytes[m_next++];
        if (byte == delimiter) {
            if (field.empty())
                continue;
            break;
        }
        if (field.size() < MaxFieldLength)
            field.push_back(static_cast<wchar_t>(static_cast<unsigned char>(byte)));
    }
    return field;
}
