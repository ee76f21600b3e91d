// SPDX-License-Identifier: GPL-3.0-or-later
#include "cli/CurrencyCommands.h"

#include "CityFixture.h"
#include "CommandResult.h"
#include "EcbFile.h"
#include "TempDir.h"
#include "device/SystemDeviceClock.h"
#include "settings/RegistrySettings.h"
#include "settings/SettingsHive.h"
#include "support/RecordingMessageSink.h"

#include <gtest/gtest.h>

#include <sstream>
#include <tuple>

namespace {

// In name order: British Pound, Euro, Japanese Yen, US Dollar; rates in US dollars per unit.
constexpr const char* Currencies
    = "4\nUSD_US Dollar_1#EUR_Euro_1.25#JPY_Japanese Yen_0.0078125#GBP_British Pound_1.5625#";

class CurrencyCommands : public ::testing::Test
{
protected:
    void SetUp() override
    {
        CityFixture::write(device, {});
        device.write("currs.lst", Currencies);
    }

    DeviceOptions options() const
    {
        DeviceOptions o;
        o.stateDir = state.path();
        o.deviceRoot = device.path();
        o.now = SystemDeviceClock::parseLocalTime("2024-05-20 10:00:00");
        return o;
    }

    CommandResult run(const std::string& command, const std::vector<std::string>& args) const
    {
        return CommandResult::of(command, args, options());
    }

    void setPositions(std::uint32_t first, std::uint32_t second, std::uint32_t third) const
    {
        RecordingMessageSink messages;
        auto hive = SettingsHive::open(state.path() / "registry.db", messages);
        RegistrySettings settings(*hive);
        settings.SetDWORD(L"Wanderkit\\currencies", L"curp", first);
        settings.SetDWORD(L"Wanderkit\\currencies", L"curp2", second);
        settings.SetDWORD(L"Wanderkit\\currencies", L"curp3", third);
    }

    TempDir device;
    TempDir state;
};

} // namespace

TEST_F(CurrencyCommands, CurrencyShowsWhatTheConverterFieldsShow)
{
    // 100 dollars: 100 / 1.25 euros and 100 / 0.0078125 yen; a euro is 1.25 / 1.5625 pounds.
    using Case = std::tuple<std::vector<std::string>, std::string>;
    const Case cases[] = {
        {{"100", "usd", "EUR", "jpy"}, "EUR\t80.00000000\nJPY\t12800.00000000\n"},
        {{"1", "Euro", "british POUND"}, "GBP\t0.80000000\n"},
        {{"", "EUR", "USD", "GBP"}, "USD\t\nGBP\t\n"},
    };
    for (const auto& [args, out] : cases) {
        const CommandResult r = run("currency", args);
        EXPECT_EQ(r.code, 0) << r.err;
        EXPECT_EQ(r.out, out);
        EXPECT_EQ(r.err, "");
    }
}

TEST_F(CurrencyCommands, CurrencyDefaultsToTheConvertersThreeCurrencies)
{
    // Positions of US Dollar, Euro, British Pound; 10 yen are 0.078125 dollars.
    setPositions(3, 1, 0);
    EXPECT_EQ(run("currency", {"10", "JPY"}).out, "USD\t0.07812500\nEUR\t0.06250000\nGBP\t0.05000000\n");

    // With nothing saved, the shipped list's euro, dollar and pound; the defaults are written as the screen
    // writes them.
    TempDir fresh;
    DeviceOptions shipped;
    shipped.stateDir = fresh.path();
    shipped.deviceRoot = WANDERKIT_SHIPPED_DEVICE_ROOT;
    const CommandResult r = CommandResult::of("currency", {"1", "usd"}, shipped);
    EXPECT_EQ(r.code, 0) << r.err;
    ASSERT_EQ(std::count(r.out.begin(), r.out.end(), '\n'), 3) << r.out;
    EXPECT_TRUE(r.out.starts_with("EUR\t"));
    EXPECT_NE(r.out.find("\nUSD\t1.00000000\nGBP\t"), std::string::npos) << r.out;
    RecordingMessageSink messages;
    auto hive = SettingsHive::open(fresh.path() / "registry.db", messages);
    EXPECT_EQ(RegistrySettings(*hive).GetDWORD(L"Wanderkit\\currencies", L"curp2"), 180u);
}

TEST_F(CurrencyCommands, UnknownCurrenciesAndMissingWordsAreUsageErrors)
{
    // The arguments, and part of the message.
    using Case = std::tuple<std::vector<std::string>, std::string>;
    const Case cases[] = {
        {std::vector<std::string> {}, "give an amount and the currency it is in"},
        {{"1"}, "give an amount and the currency it is in"},
        {{"1", "XYZ"}, "unknown currency \"XYZ\""},
        {{"1", "EUR", "USD", "Dollar"}, "unknown currency \"Dollar\""},
    };
    for (const auto& [args, message] : cases) {
        const CommandResult r = run("currency", args);
        EXPECT_EQ(r.code, 2);
        EXPECT_EQ(r.out, "");
        EXPECT_NE(r.err.find(message), std::string::npos) << r.err;
    }
}

TEST_F(CurrencyCommands, RatesListsTheStoreThenTheLastUpdateLine)
{
    EXPECT_EQ(run("rates", {}).out,
        "GBP\tBritish Pound\t1.5625\nEUR\tEuro\t1.25\nJPY\tJapanese Yen\t0.0078125\nUSD\tUS Dollar\t1\n"
        "Last update: Never \n");
    for (const auto& args : std::vector<std::vector<std::string>> {{"import"}, {"update"}, {"import", "a", "b"}}) {
        const CommandResult r = run("rates", args);
        EXPECT_EQ(r.code, 2);
        EXPECT_NE(r.err.find("Usage: wanderkit rates [import FILE]"), std::string::npos);
    }
}

TEST_F(CurrencyCommands, ImportRewritesTheListedRatesAndTheStamp)
{
    const auto file = state.write("eurofxref-daily.xml",
        EcbFile("2024-05-17", {{"USD", "1.08"}, {"JPY", "162.5"}, {"ISK", "150"}, {"PLN", "-4.3"}}));
    const CommandResult r = run("rates", {"import", file.string()});
    EXPECT_EQ(r.code, 0) << r.err;
    EXPECT_EQ(r.out, "Rates of 17/5/2024: 3 currencies updated, 1 keep their rates\nNot in the store, left out: ISK\n");
    EXPECT_EQ(r.err,
        "wanderkit: rates import: " + file.string()
            + ": skipped PLN: its rate \"-4.3\" is not a positive decimal number\n");
    // Dollars per euro 1.08: the euro at 1.08, the yen at 1.08 / 162.5; the pound is not listed.
    EXPECT_EQ(run("rates", {}).out,
        "GBP\tBritish Pound\t1.5625\nEUR\tEuro\t1.08\nJPY\tJapanese Yen\t0.006646153846153847\nUSD\tUS Dollar\t1\n"
        "Last update: 17/5/2024 \n");
    EXPECT_EQ(run("currency", {"1", "EUR", "USD"}).out, "USD\t1.08000000\n");

    // "-" reads standard input.
    std::istringstream in(EcbFile("2024-05-20", {{"USD", "1.0"}}));
    std::ostringstream out, err;
    EXPECT_EQ(RunRatesCommandWithInput({options(), {"import", "-"}}, in, out, err), 0);
    EXPECT_EQ(out.str(), "Rates of 20/5/2024: 2 currencies updated, 2 keep their rates\n");
    EXPECT_TRUE(run("rates", {})
                    .out.ends_with("EUR\tEuro\t1\nJPY\tJapanese Yen\t0.006646153846153847\nUSD\tUS "
                                   "Dollar\t1\nLast update: 20/5/2024 \n"));
}

TEST_F(CurrencyCommands, ARefusedFileLeavesTheStoreByteForByte)
{
    const std::string good = EcbFile("2024-05-17", {{"USD", "1.08"}, {"JPY", "162.5"}});
    ASSERT_EQ(run("rates", {"import", state.write("good.xml", good).string()}).code, 0);
    const auto storeFile = state.path() / "objectstore.db";
    const std::string before = TempDir::read(storeFile);
    ASSERT_FALSE(before.empty());
    // What the file is, its bytes, and part of the reason. The reader's own refusals are tested with the
    // reader; one of them here, and the refusals of the import itself.
    using Case = std::tuple<const char*, std::string, std::string>;
    const Case cases[] = {
        {"truncated", good.substr(0, good.size() - 30), "not well-formed XML"},
        {"a date in the future", EcbFile("2024-05-21", {{"USD", "1.1"}}), "lies after today, 2024-05-20"},
        {"a negative dollar", EcbFile("2024-05-20", {{"USD", "-1.1"}, {"JPY", "160"}}), "no usable USD rate"},
        {"a zero dollar", EcbFile("2024-05-20", {{"USD", "0"}, {"JPY", "160"}}), "no usable USD rate"},
        {"no dollar", EcbFile("2024-05-20", {{"JPY", "160"}}), "no usable USD rate"},
    };
    for (const auto& [what, bytes, reason] : cases) {
        SCOPED_TRACE(what);
        const auto file = state.write("bad.xml", bytes);
        const CommandResult r = run("rates", {"import", file.string()});
        EXPECT_EQ(r.code, 2);
        EXPECT_EQ(r.out, "");
        EXPECT_NE(r.err.find(reason), std::string::npos) << r.err;
        EXPECT_TRUE(r.err.ends_with("; the store is unchanged\n")) << r.err;
        EXPECT_EQ(TempDir::read(storeFile), before);
    }
    for (const auto& missing : {state.path() / "missing.xml", state.path()}) {
        const CommandResult r = run("rates", {"import", missing.string()});
        EXPECT_EQ(r.code, 2) << r.err;
        EXPECT_EQ(TempDir::read(storeFile), before);
    }
}
