// SPDX-License-Identifier: GPL-3.0-or-later
#include "currency/CurrencyConversion.h"

#include "store/CurrencyStore.h"
#include "text/WideText.h"

ConverterCurrency ReadConverterCurrency(CurrencyStore& store, std::uint32_t position)
{
    ConverterCurrency currency;
    currency.code = store.Code(position);
    currency.label = currency.code + L" - " + store.Name(position);
    currency.rate = Wcstod(store.RateText(position));
    return currency;
}

std::wstring ConvertedFieldText(const std::wstring& fieldText, double fromRate, double toRate)
{
    if (fieldText.empty())
        return {};
    return FormatText(L"%.8f", fromRate / toRate * Wcstod(fieldText));
}

std::wstring FirstRateLine(const ConverterCurrency& first, const ConverterCurrency& second)
{
    return FormatText(L"1 %ls = %f %ls", first.code.c_str(), first.rate / second.rate, second.code.c_str());
}

std::wstring FirstRateLineLead(const ConverterCurrency& first)
{
    return FormatText(L"1 %ls ", first.code.c_str());
}

std::wstring SecondRateLine(const ConverterCurrency& first, const ConverterCurrency& third)
{
    return FormatText(L"= %f %ls", first.rate / third.rate, third.code.c_str());
}

std::wstring LastUpdateText(std::uint64_t fileTime, int currentYear)
{
    const auto date = CurrencyStore::LastUpdateDate(fileTime, currentYear);
    const std::wstring when = date ? FormatText(L"%d/%d/%d", date->day, date->month, date->year) : L"Never";
    return L"Last update: " + when + L" ";
}
