// SPDX-License-Identifier: GPL-3.0-or-later
#include "store/CountryCityList.h"

#include "device/DeviceFile.h"
#include "device/DevicePaths.h"
#include "text/WideText.h"

CountryCityList CountryCityList::read(const DevicePaths& paths, std::wstring_view country)
{
    const auto bytes = ReadDeviceFile(paths, DevicePaths::besideProgram(L"\\weatcs\\") + std::wstring(country));
    return bytes ? parse(*bytes) : CountryCityList {};
}

CountryCityList CountryCityList::parse(std::string_view bytes)
{
    CountryCityList list;
    const std::wstring content = Latin1ToWide(bytes);
    std::size_t start = 0;
    while (start < content.size()) {
        std::size_t end = content.find(L'\n', start);
        if (end == std::wstring::npos)
            end = content.size();
        const std::wstring_view line = std::wstring_view(content).substr(start, end - start);
        start = end + 1;
        if (line.find(L'>') != std::wstring_view::npos)
            break;
        list.m_text.append(line).push_back(L'\n');
        list.m_cities.emplace_back(BeforeFirst(line, L';'));
    }
    return list;
}

std::optional<std::wstring> CountryCityList::codeOf(std::wstring_view city) const
{
    if (city.empty())
        return std::nullopt;
    const std::size_t at = m_text.find(city);
    if (at == std::wstring::npos)
        return std::nullopt;
    const std::size_t separator = m_text.find(L';', at + city.size());
    if (separator == std::wstring::npos)
        return std::nullopt;
    const std::size_t lineEnd = m_text.find(L'\n', separator);
    std::wstring code = m_text.substr(separator + 1, lineEnd - separator - 1);
    if (!code.empty() && code.back() == L'\r')
        code.pop_back();
    return code;
}
