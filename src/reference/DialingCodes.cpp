// SPDX-License-Identifier: GPL-3.0-or-later
#include "reference/DialingCodes.h"

#include "text/TabSeparatedRows.h"
#include "text/WideText.h"

#include <algorithm>
#include <iterator>

// The tables as text, one row a line, fields separated by tabs, in list order: country, code and GMT
// offset (international-codes.tsv); state, city and code (us-area-codes.tsv). Both are built into the
// program by src/reference/CMakeLists.txt. Calling codes and offsets are checked against named public
// sources by the reference tests (tests/reference/dialing-sources.tsv, written by tools/dialing).
std::wstring_view InternationalCodesText();
std::wstring_view UsAreaCodesText();

namespace DialingCodes {
namespace {

// The rows of `text`, each made from its three fields in order.
template<typename Row>
std::vector<Row> rowsOf(std::wstring_view text)
{
    std::vector<Row> rows;
    for (const auto& [first, second, third] : TabSeparatedRows<3>(text))
        rows.push_back({first, second, third});
    return rows;
}

const std::vector<Country>& internationalRows()
{
    static const std::vector<Country> rows = rowsOf<Country>(InternationalCodesText());
    return rows;
}

const std::vector<AreaCode>& areaCodeRows()
{
    static const std::vector<AreaCode> rows = rowsOf<AreaCode>(UsAreaCodesText());
    return rows;
}

bool ContainsIgnoringCase(std::wstring_view text, const std::wstring& foldedPart)
{
    return FoldLatin1(text).find(foldedPart) != std::wstring::npos;
}

} // namespace

std::span<const Country> International()
{
    return internationalRows();
}

std::span<const AreaCode> UsAreaCodes()
{
    return areaCodeRows();
}

std::wstring ShownCode(const Country& row)
{
    return L"+" + std::wstring(row.code);
}

std::vector<Country> FindCountries(std::wstring_view text)
{
    const std::wstring part = FoldLatin1(text);
    std::vector<Country> found;
    std::ranges::copy_if(internationalRows(), std::back_inserter(found),
        [&](const Country& row) { return ContainsIgnoringCase(row.country, part); });
    return found;
}

std::vector<AreaCode> FindAreaCodes(std::wstring_view text)
{
    const std::wstring part = FoldLatin1(text);
    std::vector<AreaCode> found;
    std::ranges::copy_if(areaCodeRows(), std::back_inserter(found), [&](const AreaCode& row) {
        return ContainsIgnoringCase(row.city, part) || ContainsIgnoringCase(row.state, part);
    });
    return found;
}

} // namespace DialingCodes
