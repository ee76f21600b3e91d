// SPDX-License-Identifier: GPL-3.0-or-later
#include "CityFixture.h"
#include "CommandResult.h"
#include "EcbFile.h"
#include "TempDir.h"
#include "device/SystemDeviceClock.h"
#include "store/CurrencyStore.h"
#include "support/RecordingMessageSink.h"
#include "text/WideText.h"

#include <gtest/gtest.h>

#include <chrono>
#include <random>
#include <signal.h>
#include <sstream>
#include <sys/wait.h>
#include <thread>
#include <unistd.h>

namespace {

constexpr int Currencies = 900;

std::string codeOf(int i)
{
    return {char('A' + i / 676), char('B' + i / 26 % 25), char('A' + i % 26)};
}

// 900 currencies worth one dollar each, and the dollar.
std::string currenciesFile()
{
    std::string file = std::to_string(Currencies + 1) + "\nUSD_US Dollar_1#";
    for (int i = 0; i < Currencies; ++i)
        file += codeOf(i) + "_Currency " + codeOf(i) + "_1#";
    return file;
}

// 1.5 dollars a euro and 3 of each currency a euro: each becomes worth 0.5 dollars.
std::string ratesFile()
{
    std::vector<std::pair<std::string, std::string>> rates {{"USD", "1.5"}};
    for (int i = 0; i < Currencies; ++i)
        rates.push_back({codeOf(i), "3"});
    return EcbFile("2024-05-17", rates);
}

CommandRequest importRequest(
    const std::filesystem::path& state, const std::filesystem::path& device, const std::filesystem::path& file)
{
    CommandRequest request;
    request.device.stateDir = state;
    request.device.deviceRoot = device;
    request.device.now = SystemDeviceClock::parseLocalTime("2024-05-20 10:00:00");
    request.args = {"import", file.string()};
    return request;
}

// A process that runs `wanderkit rates import` on `state`, as the program's command would.
pid_t startImport(const CommandRequest& request)
{
    const pid_t child = fork();
    if (child == 0) {
        std::ostringstream out, err;
        _exit(RunCommand("rates", request, out, err));
    }
    return child;
}

// What a killed import left: every currency's rate text ("1" or "0.5", or "mixed") and whether it is stamped.
std::pair<std::string, bool> outcome(const std::filesystem::path& state)
{
    RecordingMessageSink messages;
    auto objects = ObjectStore::open(state / "objectstore.db", messages);
    EXPECT_TRUE(messages.messages.empty()) << "the file stayed a readable database";
    CurrencyStore store(*objects);
    store.Load();
    std::wstring common = store.RateText(0);
    for (std::uint32_t i = 0; i < store.RecordCount(); ++i) {
        if (store.Code(i) != L"USD" && store.RateText(i) != common)
            return {"mixed", false};
        if (store.Code(i) != L"USD")
            common = store.RateText(i);
    }
    return {WideToUtf8(common), store.LastUpdate() != 0};
}

} // namespace

// An import killed at any moment leaves every rate old or every rate new, with the stamp to match.
TEST(RatesImportCrash, AKilledImportLeavesOldOrNewRatesNeverAMix)
{
    TempDir device;
    CityFixture::write(device, {});
    device.write("currs.lst", currenciesFile());
    TempDir work;
    const auto file = work.write("eurofxref-daily.xml", ratesFile());
    // A filled state, copied for every run.
    const auto seed = work.path() / "seed";
    ASSERT_EQ(CommandResult::of("rates", {}, importRequest(seed, device.path(), file).device).code, 0);

    const auto fresh = [&](const std::string& name) {
        const auto state = work.path() / name;
        std::filesystem::copy(seed, state);
        return state;
    };
    const auto timed = fresh("timing");
    const auto started = std::chrono::steady_clock::now();
    int status = 0;
    waitpid(startImport(importRequest(timed, device.path(), file)), &status, 0);
    const auto duration = std::chrono::steady_clock::now() - started;
    ASSERT_TRUE(WIFEXITED(status) && WEXITSTATUS(status) == 0);
    ASSERT_EQ(outcome(timed), std::make_pair(std::string("0.5"), true));

    std::mt19937 random(20261124);
    std::uniform_int_distribution<long long> moment(
        0, std::chrono::duration_cast<std::chrono::microseconds>(duration).count() * 3 / 2);
    int updated = 0;
    int untouched = 0;
    for (int run = 0; run < 24; ++run) {
        SCOPED_TRACE(run);
        const auto state = fresh("run" + std::to_string(run));
        const pid_t child = startImport(importRequest(state, device.path(), file));
        std::this_thread::sleep_for(std::chrono::microseconds(moment(random)));
        kill(child, SIGKILL);
        waitpid(child, &status, 0);
        const auto [rates, stamped] = outcome(state);
        EXPECT_TRUE(rates == "1" || rates == "0.5") << rates;
        EXPECT_EQ(stamped, rates == "0.5");
        (rates == "0.5" ? updated : untouched)++;
    }
    // The kills must land on both sides of the commit for the test to mean anything.
    EXPECT_GT(updated, 0);
    EXPECT_GT(untouched, 0);
}
