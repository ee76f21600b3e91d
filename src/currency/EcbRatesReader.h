// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <chrono>
#include <cstddef>
#include <filesystem>
#include <iosfwd>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

// One rate of the European Central Bank's daily file: units of `code` per 1 euro.
struct EcbRate
{
    std::string code;
    std::string text; // as published, e.g. "1.0859"
    double perEuro = 0;

    friend bool operator==(const EcbRate&, const EcbRate&) = default;
};

// The reference rates of one day.
struct EcbRates
{
    std::chrono::year_month_day date;
    std::vector<EcbRate> rates;
    // One sentence per entry left out (an unusable code or rate, a repeated currency).
    std::vector<std::string> skipped;

    const EcbRate* find(std::string_view code) const;
    friend bool operator==(const EcbRates&, const EcbRates&) = default;
};

// Reads the ECB's daily reference rates ("eurofxref-daily.xml": a Cube with a `time` attribute holding
// Cube elements with `currency` and `rate`). Anything else is refused with a reason: not well-formed XML,
// a document type declaration (entities are never expanded), more than MaxBytes, no date, several days.
class EcbRatesReader
{
public:
    // The daily file is about 2 KB; the limit keeps a hostile stream from being read to its end.
    static constexpr std::size_t MaxBytes = 1 << 20;
    static constexpr std::size_t MaxRates = 1000;

    static std::optional<EcbRates> read(std::istream& in, std::string& error);
    static std::optional<EcbRates> readBytes(std::string_view bytes, std::string& error);
    static std::optional<EcbRates> readFile(const std::filesystem::path& file, std::string& error);

private:
    class Parser;
};
