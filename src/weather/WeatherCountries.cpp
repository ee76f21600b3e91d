// SPDX-License-Identifier: GPL-3.0-or-later
#include "weather/WeatherCountries.h"

#include "device/DevicePaths.h"
#include "text/WideText.h"

#include <algorithm>
#include <filesystem>
#include <system_error>

std::vector<std::wstring> ListWeatherCountries(const DevicePaths& paths)
{
    std::vector<std::wstring> countries;
    const auto folder = paths.hostPath(DevicePaths::besideProgram(L"\\weatcs"));
    std::error_code error;
    if (!folder)
        return countries;
    for (std::filesystem::directory_iterator it(*folder, error), end; !error && it != end; it.increment(error)) {
        if (!it->is_directory(error))
            countries.push_back(Utf8ToWide(it->path().filename().string()));
    }
    std::sort(countries.begin(), countries.end());
    return countries;
}
