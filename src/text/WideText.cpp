// SPDX-License-Identifier: GPL-3.0-or-later
#include "text/WideText.h"

#include <cstdarg>
#include <cwchar>
#include <limits>
#include <vector>

std::int32_t Wtol(const std::wstring& text)
{
    const long value = std::wcstol(text.c_str(), nullptr, 10);
    if (value > std::numeric_limits<std::int32_t>::max())
        return std::numeric_limits<std::int32_t>::max();
    if (value < std::numeric_limits<std::int32_t>::min())
        return std::numeric_limits<std::int32_t>::min();
    return static_cast<std::int32_t>(value);
}

double Wcstod(const std::wstring& text)
{
    return std::wcstod(text.c_str(), nullptr);
}

std::wstring FormatText(const wchar_t* format, ...)
{
    std::vector<wchar_t> buffer(256);
    for (;;) {
        va_list args;
        va_start(args, format);
        const int written = std::vswprintf(buffer.data(), buffer.size(), format, args);
        va_end(args);
        if (written >= 0)
            return std::wstring(buffer.data(), static_cast<std::size_t>(written));
        // vswprintf reports -1 both for a short buffer and for an encoding error; stop growing at some point.
        if (buffer.size() >= (1u << 20))
            return {};
        buffer.resize(buffer.size() * 4);
    }
}

std::wstring Latin1ToWide(std::string_view bytes)
{
    std::wstring text;
    text.reserve(bytes.size());
    for (const char c : bytes)
        text.push_back(static_cast<wchar_t>(static_cast<unsigned char>(c)));
    return text;
}

std::string WideToUtf8(std::wstring_view text)
{
    std::string out;
    out.reserve(text.size());
    for (const wchar_t wc : text) {
        auto c = static_cast<std::uint32_t>(wc);
        if (c > 0x10FFFF || (c >= 0xD800 && c <= 0xDFFF))
            c = 0xFFFD;
        if (c < 0x80) {
            out.push_back(static_cast<char>(c));
        } else if (c < 0x800) {
            out.push_back(static_cast<char>(0xC0 | (c >> 6)));
            out.push_back(static_cast<char>(0x80 | (c & 0x3F)));
        } else if (c < 0x10000) {
            out.push_back(static_cast<char>(0xE0 | (c >> 12)));
            out.push_back(static_cast<char>(0x80 | ((c >> 6) & 0x3F)));
            out.push_back(static_cast<char>(0x80 | (c & 0x3F)));
        } else {
            out.push_back(static_cast<char>(0xF0 | (c >> 18)));
            out.push_back(static_cast<char>(0x80 | ((c >> 12) & 0x3F)));
            out.push_back(static_cast<char>(0x80 | ((c >> 6) & 0x3F)));
            out.push_back(static_cast<char>(0x80 | (c & 0x3F)));
        }
    }
    return out;
}

std::wstring Utf8ToWide(std::string_view text)
{
    std::wstring out;
    out.reserve(text.size());
    std::size_t i = 0;
    while (i < text.size()) {
        const auto lead = static_cast<unsigned char>(text[i]);
        int length = lead < 0x80 ? 1 : (lead >> 5) == 0x6 ? 2 : (lead >> 4) == 0xE ? 3 : (lead >> 3) == 0x1E ? 4 : 0;
        std::uint32_t c = length == 1 ? lead
            : length == 2             ? (lead & 0x1F)
            : length == 3             ? (lead & 0x0F)
                                      : (lead & 0x07);
        bool valid = length > 0 && i + static_cast<std::size_t>(length) <= text.size();
        for (int k = 1; valid && k < length; ++k) {
            const auto next = static_cast<unsigned char>(text[i + static_cast<std::size_t>(k)]);
            valid = (next >> 6) == 0x2;
            c = (c << 6) | (next & 0x3F);
        }
        out.push_back(valid ? static_cast<wchar_t>(c) : L'\xFFFD');
        i += valid ? static_cast<std::size_t>(length) : 1;
    }
    return out;
}

wchar_t FoldLatin1(wchar_t c)
{
    if ((c >= L'A' && c <= L'Z') || (c >= 0xC0 && c <= 0xDE && c != 0xD7))
        return static_cast<wchar_t>(c + 32);
    return c;
}

std::wstring FoldLatin1(std::wstring_view text)
{
    std::wstring folded(text);
    for (wchar_t& c : folded)
        c = FoldLatin1(c);
    return folded;
}

std::wstring_view BeforeFirst(std::wstring_view text, wchar_t separator)
{
    return text.substr(0, text.find(separator));
}

std::wstring_view AfterFirst(std::wstring_view text, wchar_t separator)
{
    const std::size_t at = text.find(separator);
    return at == std::wstring_view::npos ? std::wstring_view() : text.substr(at + 1);
}
