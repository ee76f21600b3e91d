// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

// Text helpers of the core. Texts are wide strings, as on the handheld; numbers kept as text are
// converted at the moment of use with the C library's rules.

// `_wtol`: wcstol in base 10 (leading blanks, optional sign, digits), clamped to 32 bits; 0 for no number.
std::int32_t Wtol(const std::wstring& text);
// `wcstod`: the C library's conversion; text after the number is ignored, no number gives 0.
double Wcstod(const std::wstring& text);

// printf-style formatting into a wide string (C wide printf: a wide string argument is "%ls").
std::wstring FormatText(const wchar_t* format, ...);

// Each byte becomes the character of the same code (0 to 255).
std::wstring Latin1ToWide(std::string_view bytes);
std::string WideToUtf8(std::wstring_view text);
std::wstring Utf8ToWide(std::string_view text);

// Latin-1 case folding to lower case; other characters are returned unchanged.
wchar_t FoldLatin1(wchar_t c);
std::wstring FoldLatin1(std::wstring_view text);

// The part before the first `separator` (all of it when there is none) and the part after it (empty).
std::wstring_view BeforeFirst(std::wstring_view text, wchar_t separator);
std::wstring_view AfterFirst(std::wstring_view text, wchar_t separator);
