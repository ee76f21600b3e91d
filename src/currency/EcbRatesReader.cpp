// SPDX-License-Identifier: GPL-3.0-or-later
#include "currency/EcbRatesReader.h"

#include <algorithm>
#include <charconv>
#include <expat.h>
#include <fstream>
#include <istream>
#include <vector>

namespace {

// Element names as expat reports them with namespace processing: namespace URI, '|', local name.
constexpr char NamespaceSeparator = '|';
constexpr std::string_view EnvelopeName = "http://www.gesmes.org/xml/2002-08-01|Envelope";
constexpr std::string_view CubeName = "http://www.ecb.int/vocabulary/2002-08-01/eurofxref|Cube";
constexpr std::size_t ChunkBytes = 1 << 16;
constexpr int FirstRatesYear = 1999; // the euro's first reference rates
constexpr const char* TooLarge = "it is larger than 1 MiB, and the daily rates file is a few kilobytes";

// A text from the file as it may be quoted in a message: printable ASCII, at most 24 characters.
std::string quoted(std::string_view text)
{
    std::string shown = "\"";
    for (const char c : text.substr(0, 24))
        shown += c >= ' ' && c <= '~' ? c : '?';
    return shown + (text.size() > 24 ? "...\"" : "\"");
}

// "YYYY-MM-DD", a real calendar date.
std::optional<std::chrono::year_month_day> parseDate(std::string_view text)
{
    const auto digitsAt = [&](std::size_t from, std::size_t count) {
        return std::all_of(
            text.begin() + from, text.begin() + from + count, [](char c) { return c >= '0' && c <= '9'; });
    };
    if (text.size() != 10 || text[4] != '-' || text[7] != '-' || !digitsAt(0, 4) || !digitsAt(5, 2) || !digitsAt(8, 2))
        return std::nullopt;
    const auto number = [&](std::size_t from, std::size_t count) {
        int value = 0;
        std::from_chars(text.data() + from, text.data() + from + count, value);
        return value;
    };
    const std::chrono::year_month_day date {std::chrono::year {number(0, 4)},
        std::chrono::month {static_cast<unsigned>(number(5, 2))},
        std::chrono::day {static_cast<unsigned>(number(8, 2))}};
    return date.ok() ? std::optional(date) : std::nullopt;
}

// Digits with an optional fraction ("1.0859", "162"): no sign, exponent or blanks.
std::optional<double> parseDecimal(std::string_view text)
{
    const auto point = text.find('.');
    const auto isDigit = [](char c) { return c >= '0' && c <= '9'; };
    const std::string_view whole = text.substr(0, point);
    const std::string_view fraction = point == std::string_view::npos ? "0" : text.substr(point + 1);
    if (whole.empty() || fraction.empty() || !std::all_of(whole.begin(), whole.end(), isDigit)
        || !std::all_of(fraction.begin(), fraction.end(), isDigit) || text.size() > 32)
        return std::nullopt;
    double value = 0;
    const auto [end, status] = std::from_chars(text.data(), text.data() + text.size(), value);
    return status == std::errc() && end == text.data() + text.size() ? std::optional(value) : std::nullopt;
}

bool isCurrencyCode(std::string_view text)
{
    return text.size() == 3 && std::all_of(text.begin(), text.end(), [](char c) { return c >= 'A' && c <= 'Z'; });
}

std::optional<std::string_view> attribute(const XML_Char** attributes, std::string_view name)
{
    for (const XML_Char** a = attributes; *a; a += 2) {
        if (name == a[0])
            return std::string_view(a[1]);
    }
    return std::nullopt;
}

} // namespace

const EcbRate* EcbRates::find(std::string_view code) const
{
    const auto it = std::ranges::find(rates, code, &EcbRate::code);
    return it == rates.end() ? nullptr : &*it;
}

// One parse: expat's callbacks collect the date and the rates, or stop at the first reason to refuse.
class EcbRatesReader::Parser
{
public:
    Parser()
        : m_parser(XML_ParserCreateNS(nullptr, NamespaceSeparator))
    {
        XML_SetUserData(m_parser, this);
        XML_SetElementHandler(m_parser, &Parser::onStart, &Parser::onEnd);
        XML_SetStartDoctypeDeclHandler(m_parser, &Parser::onDoctype);
        XML_SetEntityDeclHandler(m_parser, &Parser::onEntity);
        XML_SetParamEntityParsing(m_parser, XML_PARAM_ENTITY_PARSING_NEVER);
    }
    ~Parser() { XML_ParserFree(m_parser); }
    Parser(const Parser&) = delete;
    Parser& operator=(const Parser&) = delete;

    bool feed(std::string_view bytes, bool last)
    {
        if (XML_Parse(m_parser, bytes.data(), static_cast<int>(bytes.size()), last) == XML_STATUS_OK)
            return true;
        if (m_error.empty())
            m_error = "it is not well-formed XML (line " + std::to_string(XML_GetCurrentLineNumber(m_parser))
                + ", column " + std::to_string(XML_GetCurrentColumnNumber(m_parser))
                + "): " + XML_ErrorString(XML_GetErrorCode(m_parser));
        return false;
    }

    std::optional<EcbRates> finish(std::string& error)
    {
        if (m_error.empty() && !m_dated)
            m_error = "it holds no dated Cube (<Cube time=\"YYYY-MM-DD\">) with the day's rates";
        if (!m_error.empty()) {
            error = m_error;
            return std::nullopt;
        }
        return std::move(m_rates);
    }

private:
    static void XMLCALL onStart(void* self, const XML_Char* name, const XML_Char** attributes)
    {
        static_cast<Parser*>(self)->start(name, attributes);
    }
    static void XMLCALL onEnd(void* self, const XML_Char*)
    {
        auto& parser = *static_cast<Parser*>(self);
        if (parser.m_depth-- == parser.m_dayDepth)
            parser.m_dayDepth = 0;
    }
    static void XMLCALL onDoctype(void* self, const XML_Char*, const XML_Char*, const XML_Char*, int)
    {
        static_cast<Parser*>(self)->fail("it declares a document type (<!DOCTYPE>): a rates file has none, and the "
                                         "entities of one are never expanded");
    }
    static void XMLCALL onEntity(void* self, const XML_Char*, int, const XML_Char*, int, const XML_Char*,
        const XML_Char*, const XML_Char*, const XML_Char*)
    {
        static_cast<Parser*>(self)->fail("it declares an entity: entities are never expanded");
    }

    void fail(std::string reason)
    {
        if (m_error.empty())
            m_error = std::move(reason);
        XML_StopParser(m_parser, XML_FALSE);
    }

    void start(std::string_view name, const XML_Char** attributes)
    {
        ++m_depth;
        if (!m_error.empty())
            return;
        if (m_depth == 1 && name != EnvelopeName)
            return fail("its root element is not the gesmes:Envelope of the ECB's reference rates");
        if (name != CubeName)
            return;
        if (const auto time = attribute(attributes, "time"))
            return startDay(*time);
        if (const auto code = attribute(attributes, "currency")) {
            if (m_dayDepth == 0)
                return fail("the rate of " + quoted(*code) + " stands outside the dated Cube");
            addRate(*code, attribute(attributes, "rate"));
        }
    }

    void startDay(std::string_view time)
    {
        if (m_dated)
            return fail("it holds the rates of more than one day; give it the daily file eurofxref-daily.xml");
        const auto date = parseDate(time);
        if (!date || date->year() < std::chrono::year {FirstRatesYear})
            return fail("its date " + quoted(time) + " is not a date YYYY-MM-DD from 1999 on");
        m_dated = true;
        m_dayDepth = m_depth;
        m_rates.date = *date;
    }

    void addRate(std::string_view code, std::optional<std::string_view> text)
    {
        if (m_rates.rates.size() + m_rates.skipped.size() >= MaxRates)
            return fail("it lists more than " + std::to_string(MaxRates) + " rates");
        // Not a plain decimal number reads as 0, which is refused like a zero rate.
        const double value = text ? parseDecimal(*text).value_or(0) : 0;
        if (!isCurrencyCode(code))
            m_rates.skipped.push_back("skipped the rate of " + quoted(code) + ": not a three-letter currency code");
        else if (!text)
            m_rates.skipped.push_back("skipped " + std::string(code) + ": it has no rate");
        else if (!(value > 0))
            m_rates.skipped.push_back(
                "skipped " + std::string(code) + ": its rate " + quoted(*text) + " is not a positive decimal number");
        else if (code == "EUR")
            m_rates.skipped.push_back("skipped EUR: the euro is the base the file's rates are given in");
        else if (m_rates.find(code))
            m_rates.skipped.push_back("skipped the second rate of " + std::string(code));
        else
            m_rates.rates.push_back({std::string(code), std::string(*text), value});
    }

    XML_Parser m_parser;
    std::string m_error;
    int m_depth = 0;
    int m_dayDepth = 0; // the depth of the dated Cube while inside it, else 0
    bool m_dated = false;
    EcbRates m_rates;
};

std::optional<EcbRates> EcbRatesReader::read(std::istream& in, std::string& error)
{
    Parser parser;
    std::vector<char> chunk(ChunkBytes);
    std::size_t total = 0;
    for (bool last = false; !last;) {
        in.read(chunk.data(), static_cast<std::streamsize>(chunk.size()));
        const auto got = static_cast<std::size_t>(in.gcount());
        if (in.bad()) {
            error = "it could not be read";
            return std::nullopt;
        }
        total += got;
        if (total > MaxBytes) {
            error = TooLarge;
            return std::nullopt;
        }
        last = got < chunk.size();
        if (!parser.feed({chunk.data(), got}, last))
            break;
    }
    return parser.finish(error);
}

std::optional<EcbRates> EcbRatesReader::readBytes(std::string_view bytes, std::string& error)
{
    if (bytes.size() > MaxBytes) {
        error = TooLarge;
        return std::nullopt;
    }
    Parser parser;
    parser.feed(bytes, true);
    return parser.finish(error);
}

std::optional<EcbRates> EcbRatesReader::readFile(const std::filesystem::path& file, std::string& error)
{
    std::ifstream in(file, std::ios::binary);
    if (!in) {
        error = "it cannot be opened";
        return std::nullopt;
    }
    return read(in, error);
}
