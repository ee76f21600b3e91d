// SPDX-License-Identifier: GPL-3.0-or-later
#include "cli/CurrencyCommands.h"

#include "cli/CommandSession.h"
#include "currency/CurrencyConversion.h"
#include "currency/RatesImport.h"
#include "device/SystemDeviceClock.h"
#include "settings/SettingsTable.h"
#include "store/CurrencyStore.h"
#include "text/WideText.h"

#include <iostream>

namespace {

constexpr int Unusable = 1;
constexpr int UsageError = 2;
constexpr const char* CurrencyUsage = "Usage: wanderkit currency AMOUNT FROM [TO...]\n";
constexpr const char* RatesUsage = "Usage: wanderkit rates [import FILE]   (FILE \"-\" reads standard input)\n";

// The currency store, filled from "\currs.lst" on a first start as the launcher fills it.
std::unique_ptr<CurrencyStore> openCurrencies(CommandSession& session)
{
    auto store = std::make_unique<CurrencyStore>(session.device().objects());
    store->SetInitialList(ReadInitialCurrencies(session.paths(), session.messages()));
    store->Load();
    return store;
}

// The position of the currency a word names: a code first, else a name, without regard to case.
std::optional<std::uint32_t> findCurrency(CurrencyStore& store, const std::string& word, std::ostream& err)
{
    const std::wstring wanted = FoldLatin1(Utf8ToWide(word));
    const std::uint32_t count = store.RecordCount();
    for (const auto field : {&CurrencyStore::Code, &CurrencyStore::Name}) {
        for (std::uint32_t position = 0; position < count; ++position) {
            if (FoldLatin1((store.*field)(position)) == wanted)
                return position;
        }
    }
    err << "wanderkit: currency: unknown currency \"" << word << "\" (`wanderkit rates` lists codes and names)\n";
    return std::nullopt;
}

// The converter's three currencies; like the screen, writes a default back when its value is unreadable.
std::vector<std::uint32_t> converterCurrencies(RegistrySettings& settings)
{
    return {ReadSetting(settings, Settings::Currency1), ReadSetting(settings, Settings::Currency2),
        ReadSetting(settings, Settings::Currency3)};
}

int listRates(const CommandRequest& request, std::ostream& out, std::ostream& err)
{
    auto session = CommandSession::open(request, err);
    if (!session)
        return Unusable;
    auto store = openCurrencies(*session);
    const std::uint32_t count = store->RecordCount();
    for (std::uint32_t position = 0; position < count; ++position)
        out << WideToUtf8(store->Code(position)) << '\t' << WideToUtf8(store->Name(position)) << '\t'
            << WideToUtf8(store->RateText(position)) << '\n';
    out << WideToUtf8(LastUpdateText(store->LastUpdate(), session->clock().localTime().year)) << '\n';
    return 0;
}

void reportImport(const RatesImport::Plan& plan, const EcbRates& rates, std::uint32_t count, std::ostream& out)
{
    const auto date = rates.date;
    out << "Rates of " << static_cast<unsigned>(date.day()) << '/' << static_cast<unsigned>(date.month()) << '/'
        << static_cast<int>(date.year()) << ": " << plan.updates.size() << " currencies updated, "
        << count - plan.updates.size() << " keep their rates\n";
    if (plan.notInStore.empty())
        return;
    out << "Not in the store, left out:";
    for (const std::string& code : plan.notInStore)
        out << ' ' << code;
    out << '\n';
}

int importRates(
    const CommandRequest& request, const std::string& source, std::istream& in, std::ostream& out, std::ostream& err)
{
    const std::string prefix = "wanderkit: rates import: " + (source == "-" ? "standard input" : source) + ": ";
    const auto refuse = [&](const std::string& reason) {
        err << prefix << reason << "; the store is unchanged\n";
        return UsageError;
    };
    // The whole file is checked before the state is opened, so a refused file leaves the store untouched.
    std::string error;
    const auto rates = source == "-" ? EcbRatesReader::read(in, error) : EcbRatesReader::readFile(source, error);
    if (!rates)
        return refuse(error);
    for (const std::string& skipped : rates->skipped)
        err << prefix << skipped << '\n';
    const SystemDeviceClock clock = request.device.now ? SystemDeviceClock(*request.device.now) : SystemDeviceClock();
    if (const std::string reason = RatesImport::refusal(*rates, clock.localTime()); !reason.empty())
        return refuse(reason);

    auto session = CommandSession::open(request, err);
    if (!session)
        return Unusable;
    auto store = openCurrencies(*session);
    const std::uint32_t count = store->RecordCount();
    if (count == 0) {
        err << prefix << "the currency store holds no currency to update\n";
        return Unusable;
    }
    const RatesImport::Plan plan = RatesImport::plan(*store, *rates);
    if (!RatesImport::apply(session->device().objects(), *store, plan)) {
        err << prefix << "the currency store could not be written; it is unchanged\n";
        return Unusable;
    }
    reportImport(plan, *rates, count, out);
    return 0;
}

} // namespace

int RunCurrencyCommand(const CommandRequest& request, std::ostream& out, std::ostream& err)
{
    const std::vector<std::string>& args = request.args;
    if (args.size() < 2) {
        err << "wanderkit: currency: give an amount and the currency it is in\n" << CurrencyUsage;
        return UsageError;
    }
    auto session = CommandSession::open(request, err);
    if (!session)
        return Unusable;
    auto store = openCurrencies(*session);
    if (store->RecordCount() == 0) {
        err << "wanderkit: currency: the currency store holds no currency: the device's currs.lst is missing or "
               "empty, or the state could not be written\n";
        return Unusable;
    }
    const auto from = findCurrency(*store, args[1], err);
    if (!from)
        return UsageError;
    std::vector<std::uint32_t> targets;
    for (std::size_t i = 2; i < args.size(); ++i) {
        const auto to = findCurrency(*store, args[i], err);
        if (!to)
            return UsageError;
        targets.push_back(*to);
    }
    if (targets.empty())
        targets = converterCurrencies(session->settings());
    const ConverterCurrency source = ReadConverterCurrency(*store, *from);
    const std::wstring amount = Utf8ToWide(args[0]);
    for (const std::uint32_t target : targets) {
        const ConverterCurrency to = ReadConverterCurrency(*store, target);
        out << WideToUtf8(to.code) << '\t' << WideToUtf8(ConvertedFieldText(amount, source.rate, to.rate)) << '\n';
    }
    return 0;
}

int RunRatesCommand(const CommandRequest& request, std::ostream& out, std::ostream& err)
{
    return RunRatesCommandWithInput(request, std::cin, out, err);
}

int RunRatesCommandWithInput(const CommandRequest& request, std::istream& in, std::ostream& out, std::ostream& err)
{
    const std::vector<std::string>& args = request.args;
    if (args.empty())
        return listRates(request, out, err);
    if (args.size() == 2 && args[0] == "import")
        return importRates(request, args[1], in, out, err);
    err << "wanderkit: rates: unexpected " << (args[0] == "import" ? "arguments" : "\"" + args[0] + "\"") << '\n'
        << RatesUsage;
    return UsageError;
}
