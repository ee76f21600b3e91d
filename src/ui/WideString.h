// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

#include <string>
#include <string_view>

// The one conversion between the core's wide strings and Qt's strings.
inline QString ToQString(std::wstring_view text)
{
    return QString::fromWCharArray(text.data(), static_cast<qsizetype>(text.size()));
}

inline std::wstring ToWide(const QString& text)
{
    return text.toStdWString();
}
