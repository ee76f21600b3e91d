// SPDX-License-Identifier: GPL-3.0-or-later
#include "currency/EcbRatesReader.h"

#include "support/EcbFile.h"
#include "support/TempDir.h"

#include <gtest/gtest.h>

#include <sstream>
#include <tuple>

namespace {

using namespace std::chrono_literals;

const std::string Envelope = "<gesmes:Envelope xmlns:gesmes=\"http://www.gesmes.org/xml/2002-08-01\" "
                             "xmlns=\"http://www.ecb.int/vocabulary/2002-08-01/eurofxref\">";

std::string replaced(std::string text, const std::string& what, const std::string& by)
{
    return text.replace(text.find(what), what.size(), by);
}

std::string manyRates(int count)
{
    std::vector<std::pair<std::string, std::string>> rates;
    for (int i = 0; i < count; ++i)
        rates.push_back({{char('A' + i / 676), char('A' + i / 26 % 26), char('A' + i % 26)}, "1.5"});
    return EcbFile("2024-05-17", rates);
}

} // namespace

TEST(EcbRatesReader, ReadsTheDailyFileAndSaysWhyAnEntryIsSkipped)
{
    std::string file = EcbFile("2024-05-17",
        {{"USD", "1.0859"}, {"GBP", "0.85420"}, {"JPY", "-169.03"}, {"CHF", "0.000"}, {"SEK", "1e3"}, {"ISK", ""},
            {"EURO", "1"}, {"EUR", "1"}, {"USD", "1.2"}, {"CZK", "25.1"}});
    file = replaced(file, "<Cube currency='CZK' rate='25.1'/>",
        "<Cube currency='CZK'/><Cube currency='U\xC3\xA9"
        "D' rate='1'/>");
    std::string error;
    const auto rates = EcbRatesReader::readBytes(file, error);
    ASSERT_TRUE(rates) << error;
    EXPECT_EQ(rates->date, 2024y / 5 / 17);
    EXPECT_EQ(rates->rates, (std::vector<EcbRate> {{"USD", "1.0859", 1.0859}, {"GBP", "0.85420", 0.8542}}));
    EXPECT_TRUE(rates->find("GBP") == &rates->rates[1] && rates->find("CHF") == nullptr);
    const std::vector<std::string> skipped {"skipped JPY: its rate \"-169.03\" is not a positive decimal number",
        "skipped CHF: its rate \"0.000\" is not a positive decimal number",
        "skipped SEK: its rate \"1e3\" is not a positive decimal number",
        "skipped ISK: its rate \"\" is not a positive decimal number",
        "skipped the rate of \"EURO\": not a three-letter currency code",
        "skipped EUR: the euro is the base the file's rates are given in", "skipped the second rate of USD",
        "skipped CZK: it has no rate", "skipped the rate of \"U??D\": not a three-letter currency code"};
    EXPECT_EQ(rates->skipped, skipped);

    // The same from a file, which is read as a stream.
    TempDir dir;
    EXPECT_EQ(EcbRatesReader::readFile(dir.write("eurofxref-daily.xml", file), error), rates);
    EXPECT_FALSE(EcbRatesReader::readFile(dir.path() / "missing.xml", error));
    EXPECT_EQ(error, "it cannot be opened");
}

TEST(EcbRatesReader, RefusesFilesThatAreNotADailyRatesFile)
{
    const std::string good = EcbFile("2024-05-17", {{"USD", "1.0859"}, {"JPY", "169.03"}});
    // What the file is, its bytes, and the start of the reason given.
    const std::tuple<const char*, std::string, std::string> cases[] = {
        {"an entity declared in a document type",
            "<!DOCTYPE x SYSTEM \"file:///etc/passwd\">" + Envelope + "&x;</gesmes:Envelope>",
            "it declares a document type"},
        {"empty", "", "it is not well-formed XML (line 1, column 0): no element found"},
        {"another XML file", "<html><body>404</body></html>", "its root element is not the gesmes:Envelope"},
        {"Cube without its namespace",
            replaced(good, " xmlns=\"http://www.ecb.int/vocabulary/2002-08-01/eurofxref\"", ""),
            "it holds no dated Cube"},
        {"a rate outside the day", replaced(good, "time='2024-05-17'", "id='x'"), "the rate of \"USD\" stands outside"},
        {"impossible date", replaced(good, "2024-05-17", "2024-02-30"), "its date \"2024-02-30\" is not a date"},
        {"before the euro", replaced(good, "2024-05-17", "1998-12-31"), "its date \"1998-12-31\" is not a date"},
        {"too many rates", manyRates(1001), "it lists more than 1000 rates"},
        {"larger than 1 MiB", replaced(good, "Reference rates", std::string(1 << 20, 'x')), "it is larger than 1 MiB"},
    };
    for (const auto& [what, bytes, reason] : cases) {
        SCOPED_TRACE(what);
        std::string error, streamError;
        EXPECT_FALSE(EcbRatesReader::readBytes(bytes, error));
        EXPECT_TRUE(error.starts_with(reason)) << error;
        std::istringstream stream(bytes);
        EXPECT_FALSE(EcbRatesReader::read(stream, streamError));
        EXPECT_EQ(streamError, error);
    }
    std::string error;
    EXPECT_TRUE(EcbRatesReader::readBytes(manyRates(1000), error)) << error;

    // 4 MiB in an attribute value: reading stops one chunk past 1 MiB.
    std::istringstream in(
        Envelope + "<Cube><Cube time='2024-05-17'><Cube currency='USD' rate='1." + std::string(4 << 20, '7'));
    EXPECT_FALSE(EcbRatesReader::read(in, error));
    EXPECT_EQ(error, "it is larger than 1 MiB, and the daily rates file is a few kilobytes");
    const std::streamoff consumed = in.rdbuf()->pubseekoff(0, std::ios::cur, std::ios::in);
    EXPECT_LE(consumed, std::streamoff {EcbRatesReader::MaxBytes + 2 * 65536});
}
