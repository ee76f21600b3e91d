// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <string_view>

// Words for the WMO weather interpretation codes (WMO code table 4677) that forecast services report
// as a day's weather; empty for any other code.
[[nodiscard]] std::wstring_view WmoWeatherWords(int code);
