// SPDX-License-Identifier: GPL-3.0-or-later
#include "cli/CurrencyCommands.h"

#include "CommandFixture.h"
#include "EcbFile.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <sstream>
#include <tuple>

namespace {

// In name order: British Pound, Euro, Japanese Yen, US Dollar; rates in US dollars per unit. The
// conversion arithmetic is checked in the currency tests.
class CurrencyCommands : public CommandFixture
{
protected:
    void SetUp() override
    {
        now = "2024-05-20 10:00:00";
        device.write(
            "currs.lst", "4\nUSD_US Dollar_1#EUR_Euro_1.25#JPY_Japanese Yen_0.0078125#GBP_British Pound_1.5625#");
    }
};

} // namespace

TEST_F(CurrencyCommands, CurrencyShowsWhatTheConverterFieldsShowOrSaysWhatIsWrong)
{
    // 100 dollars: 100 / 1.25 euros and 100 / 0.0078125 yen; names and codes ignore case.
    EXPECT_TRUE(run("currency", {"100", "usd", "Euro", "jpy"}).printed("EUR\t80.00000000\nJPY\t12800.00000000\n"));

    // Without targets, the converter's three currencies: the positions of US Dollar, Euro, British Pound.
    const std::pair<const char*, const char*> positions[] = {{"curp", "3"}, {"curp2", "1"}, {"curp3", "0"}};
    for (const auto& [name, position] : positions)
        ASSERT_EQ(run("settings", {"set", "Wanderkit\\currencies", name, position}).code, 0);
    EXPECT_TRUE(run("currency", {"10", "JPY"}).printed("USD\t0.07812500\nEUR\t0.06250000\nGBP\t0.05000000\n"));

    const std::tuple<std::string, std::vector<std::string>, std::string> cases[]
        = {{"currency", {"1"}, "give an amount and the currency it is in"},
            {"currency", {"1", "EUR", "USD", "Dollar"}, "unknown currency \"Dollar\""},
            {"rates", {"import", "a", "b"}, "Usage: wanderkit rates [import FILE]"}};
    for (const auto& [command, args, message] : cases)
        EXPECT_TRUE(run(command, args).refused(2, message));
}

TEST_F(CurrencyCommands, ImportRewritesTheListedRatesAndTheStampOrNothing)
{
    const auto file = state.write("eurofxref-daily.xml",
        EcbFile("2024-05-17", {{"USD", "1.08"}, {"JPY", "162.5"}, {"ISK", "150"}, {"PLN", "-4.3"}}));
    const CommandResult r = run("rates", {"import", file.string()});
    EXPECT_EQ(std::tie(r.code, r.out, r.err),
        std::tuple(0, "Rates of 17/5/2024: 3 currencies updated, 1 keep their rates\nNot in the store, left out: ISK\n",
            "wanderkit: rates import: " + file.string()
                + ": skipped PLN: its rate \"-4.3\" is not a positive decimal number\n"));
    // Dollars per euro 1.08: the euro at 1.08, the yen at 1.08 / 162.5; the pound is not listed.
    EXPECT_TRUE(run("rates", {})
                    .printed("GBP\tBritish Pound\t1.5625\nEUR\tEuro\t1.08\nJPY\tJapanese "
                             "Yen\t0.006646153846153847\nUSD\tUS Dollar\t1\nLast update: 17/5/2024 \n"));

    // "-" reads standard input.
    std::istringstream in(EcbFile("2024-05-20", {{"USD", "1.0"}}));
    std::ostringstream out, err;
    EXPECT_EQ(RunRatesCommandWithInput({options(), {"import", "-"}}, in, out, err), 0);
    EXPECT_EQ(out.str(), "Rates of 20/5/2024: 2 currencies updated, 2 keep their rates\n");
    const std::string before = TempDir::read(state.path() / "objectstore.db");
    ASSERT_FALSE(before.empty());

    // A folder, refused by the reader (whose refusals are checked in its own tests); a day after today and
    // no usable dollar rate, refused by the import.
    const std::pair<std::string, std::string> cases[] = {{state.path().string(), "it could not be read"},
        {state.write("late.xml", EcbFile("2024-05-21", {{"USD", "1.1"}})).string(), "lies after today, 2024-05-20"},
        {state.write("bad.xml", EcbFile("2024-05-20", {{"USD", "-1.1"}, {"JPY", "160"}})).string(),
            "no usable USD rate"}};
    for (const auto& [refusedFile, reason] : cases) {
        const CommandResult refused = run("rates", {"import", refusedFile});
        EXPECT_TRUE(refused.refused(2, reason));
        EXPECT_TRUE(refused.err.ends_with("; the store is unchanged\n")) << refused.err;
        EXPECT_EQ(TempDir::read(state.path() / "objectstore.db"), before);
    }
}
