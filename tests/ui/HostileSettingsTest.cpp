// SPDX-License-Identifier: GPL-3.0-or-later
#include "CommandResult.h"
#include "ScreenTestBench.h"
#include "app/ServicesApp.h"
#include "app/TourDriver.h"

#include <filesystem>
#include <optional>
#include <string>
#include <variant>
#include <vector>

namespace {

// Where a setting lives: subkey and name.
using Place = std::pair<std::wstring_view, std::wstring_view>;

template<typename... Row>
std::vector<Place> placesOf(const Row&... rows)
{
    return {Place {rows.subkey, rows.name}...};
}

// Every row of the settings table.
const std::vector<Place> Places = placesOf(Settings::TwelveHour, Settings::HomeClock, Settings::Clock1,
    Settings::Clock2, Settings::Clock3, Settings::Clock4, Settings::SyncLocalZone, Settings::WeatherPosition,
    Settings::IconFolder, Settings::MapClock, Settings::ShowCities, Settings::Currency1, Settings::Currency2,
    Settings::Currency3, Settings::CurrencyAmount, Settings::MeasureType, Settings::MeasureUnit1,
    Settings::MeasureUnit2, Settings::MeasureValue, Settings::ClothesWho, Settings::ClothesKind, Settings::InstallDir);

// A hostile value, stored under every place whatever type the place expects: numbers at the edges
// of 32 bits (2^31 - 1, 2^31, 2^32 - 1) and past any list's end, texts that are no number or a path.
using Hostile = std::variant<std::uint32_t, std::wstring>;

std::vector<Hostile> hostileValues()
{
    return {0u, 1u, 2147483647u, 2147483648u, 4294967295u, 1000000u, L"", std::wstring(10000, L'9'), L"../../etc/",
        L"-1e308", L"nan", L"inf"};
}

std::string narrow(std::wstring_view text)
{
    return {text.begin(), text.end()};
}

std::string describe(const Hostile& value)
{
    if (const auto* number = std::get_if<std::uint32_t>(&value))
        return "dword " + std::to_string(*number);
    return "string \"" + narrow(std::wstring_view(std::get<std::wstring>(value)).substr(0, 12)) + "\"";
}

// Which settings a round makes hostile: every `step`th row from `first`; the others are missing, so
// their screens use the defaults. Alternate rows put a hostile position next to a valid one (a unit
// beside a valid category, a garment beside a valid wearer) that an all-hostile round would hide.
struct Rows
{
    std::size_t first;
    std::size_t step;
    const char* name;
};
constexpr Rows Rounds[] = {{0, 1, " in every setting"}, {0, 2, " in even rows"}, {1, 2, " in odd rows"}};

void store(RegistrySettings& settings, const Hostile& value, const Rows& rows)
{
    settings.Clear();
    for (std::size_t i = rows.first; i < Places.size(); i += rows.step) {
        const auto& [subkey, name] = Places[i];
        if (const auto* number = std::get_if<std::uint32_t>(&value))
            settings.SetDWORD(subkey, name, *number);
        else
            settings.SetString(subkey, name, std::get<std::wstring>(value));
    }
}

// The pictures one whole tour of the launcher writes: every service, the Select dialog and the
// favourites dialog with its Add view, each upright and on its side.
QSet<QString> tour(ScreenTestBench& bench, const QString& folder)
{
    ServicesApp launcher(bench.environment, bench.window);
    TourDriver driver(bench.window, launcher, folder);
    bench.window.run(launcher);
    QSet<QString> written;
    for (const QString& file : driver.written())
        written << QFileInfo(file).fileName();
    return written;
}

} // namespace

class HostileSettingsTest : public QObject
{
    Q_OBJECT

private slots:
    void everyScreenOpensWithEveryHostileValueInEverySetting()
    {
        ScreenTestBench bench;
        std::filesystem::copy(WANDERKIT_SHIPPED_DEVICE_ROOT, bench.root.path(),
            std::filesystem::copy_options::recursive | std::filesystem::copy_options::overwrite_existing);
        const QString pictures = QString::fromStdString((bench.root.path() / "tour").string());
        const QSet<QString> everyScreen = tour(bench, pictures);
        QVERIFY(everyScreen.contains(QStringLiteral("select.png")));
        QVERIFY(everyScreen.contains(QStringLiteral("favourites-add.png")));
        RegistrySettings settings(bench.settings);
        const auto favourite = [&settings] { // the favourite position as stored: type and bytes
            const auto value = settings.GetValue(Settings::WeatherPosition.subkey, Settings::WeatherPosition.name);
            return value ? std::make_optional(std::pair(value->type, value->data)) : std::nullopt;
        };
        for (const Hostile& value : hostileValues()) {
            for (const Rows& rows : Rounds) {
                store(settings, value, rows);
                const auto before = favourite();
                bench.boxes.shown.clear();
                const QSet<QString> missing = everyScreen - tour(bench, pictures);
                // Only "Change City" writes the favourite position: a hostile one is still there, as stored.
                QVERIFY(favourite() == before);
                // A screen that cannot show the stored choice may refuse to open, but only with a message.
                const std::string what = describe(value) + rows.name
                    + ": not shown: " + missing.values().join(QLatin1Char(' ')).toStdString();
                QVERIFY2(missing.isEmpty() || !bench.boxes.shown.empty(), what.c_str());
            }
        }
    }

    void everyCommandThatReadsSettingsRunsWithEveryHostileValue()
    {
        // Each command, given a valid city or currency, either answers (0) or says why not (1 with a
        // message); the hostile setting never makes it a usage error or a crash.
        const std::vector<std::vector<std::string>> commands = {{"time", "Paris"}, {"sun", "Paris"},
            {"currency", "100", "EUR"}, {"weather"}, {"favourites"}, {"settings"}, {"city", "Paris"}};
        TempDir state;
        const DeviceOptions device {state.path(), WANDERKIT_SHIPPED_DEVICE_ROOT, std::nullopt};
        for (const Hostile& value : hostileValues()) {
            for (const auto& [subkey, name] : Places) {
                // The same value stored through the settings command.
                std::vector<std::string> set {"set", narrow(subkey), narrow(name)};
                if (const auto* number = std::get_if<std::uint32_t>(&value))
                    set.push_back(std::to_string(*number));
                else
                    set.insert(set.end(), {narrow(std::get<std::wstring>(value)), "--type", "string"});
                const auto result = CommandResult::of("settings", set, device);
                QVERIFY2(result.code == 0, (describe(value) + ": " + result.err).c_str());
            }
            for (const auto& command : commands) {
                const auto result = CommandResult::of(command[0], {command.begin() + 1, command.end()}, device);
                const std::string what = describe(value) + ": " + command[0] + ": " + result.err;
                QVERIFY2(result.code == 0 || (result.code == 1 && !result.err.empty()), what.c_str());
            }
        }
    }
};

QTEST_MAIN(HostileSettingsTest)
#include "HostileSettingsTest.moc"
