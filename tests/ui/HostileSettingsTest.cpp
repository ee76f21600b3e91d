// SPDX-License-Identifier: GPL-3.0-or-later
#include "CommandResult.h"
#include "ScreenTestBench.h"
#include "TempDir.h"
#include "app/ServicesApp.h"
#include "app/TourDriver.h"
#include "settings/RegistrySettings.h"
#include "settings/SettingsTable.h"

#include <QTest>

#include <filesystem>
#include <string>
#include <variant>
#include <vector>

namespace {

// Where a setting lives; every row of the settings table.
struct Place
{
    std::wstring_view subkey;
    std::wstring_view name;
};

template<typename Row>
constexpr Place placeOf(const Row& row)
{
    return {row.subkey, row.name};
}

const Place Places[] = {placeOf(Settings::TwelveHour), placeOf(Settings::HomeClock), placeOf(Settings::Clock1),
    placeOf(Settings::Clock2), placeOf(Settings::Clock3), placeOf(Settings::Clock4), placeOf(Settings::SyncLocalZone),
    placeOf(Settings::WeatherPosition), placeOf(Settings::IconFolder), placeOf(Settings::MapClock),
    placeOf(Settings::ShowCities), placeOf(Settings::Currency1), placeOf(Settings::Currency2),
    placeOf(Settings::Currency3), placeOf(Settings::CurrencyAmount), placeOf(Settings::MeasureType),
    placeOf(Settings::MeasureUnit1), placeOf(Settings::MeasureUnit2), placeOf(Settings::MeasureValue),
    placeOf(Settings::ClothesWho), placeOf(Settings::ClothesKind), placeOf(Settings::InstallDir)};

// A hostile value, stored under every place whatever type the place expects: numbers at the edges
// of 32 bits (2^31 - 1, 2^31, 2^32 - 1) and past any list's end, texts that are no number or a path.
using Hostile = std::variant<std::uint32_t, std::wstring>;

std::vector<Hostile> hostileValues()
{
    std::wstring digits;
    while (digits.size() < 10000)
        digits += L"1234567890";
    return {
        0u, 1u, 2147483647u, 2147483648u, 4294967295u, 1000000u, L"", digits, L"../../etc/", L"-1e308", L"nan", L"inf"};
}

std::string describe(const Hostile& value)
{
    if (const auto* number = std::get_if<std::uint32_t>(&value))
        return "dword " + std::to_string(*number);
    const auto& text = std::get<std::wstring>(value);
    return "string \""
        + std::string(text.begin(), text.begin() + static_cast<long>(std::min<std::size_t>(text.size(), 12)))
        + (text.size() > 12 ? "...\"" : "\"");
}

// The same value as the settings command's arguments.
std::vector<std::string> setArguments(const Place& place, const Hostile& value)
{
    const auto narrow = [](std::wstring_view text) { return std::string(text.begin(), text.end()); };
    if (const auto* number = std::get_if<std::uint32_t>(&value))
        return {"set", narrow(place.subkey), narrow(place.name), std::to_string(*number)};
    return {"set", narrow(place.subkey), narrow(place.name), narrow(std::get<std::wstring>(value)), "--type", "string"};
}

// Which settings a round makes hostile; the others are missing, so their screens use the defaults.
// Halves by alternate rows put a hostile position next to a valid one (a unit beside a valid category,
// a garment beside a valid wearer) that an all-hostile round would hide.
enum class Rows { All, Even, Odd };

void store(RegistrySettings& settings, const Hostile& value, Rows rows)
{
    settings.Clear();
    for (std::size_t i = 0; i < std::size(Places); ++i) {
        if ((rows == Rows::Even && i % 2 != 0) || (rows == Rows::Odd && i % 2 == 0))
            continue;
        const Place& place = Places[i];
        if (const auto* number = std::get_if<std::uint32_t>(&value))
            settings.SetDWORD(place.subkey, place.name, *number);
        else
            settings.SetString(place.subkey, place.name, std::get<std::wstring>(value));
    }
}

// The pictures one whole tour of the launcher writes: every service, the Select dialog and the
// favourites dialog with its Add view, each upright and on its side.
QStringList tour(ScreenTestBench& bench, const QString& folder)
{
    ServicesApp launcher(bench.environment, bench.window);
    TourDriver driver(bench.window, launcher, folder);
    bench.window.run(launcher);
    QStringList written = driver.written();
    for (QString& file : written)
        file = QFileInfo(file).fileName();
    written.sort();
    return written;
}

std::vector<std::pair<Hostile, Rows>> rounds()
{
    std::vector<std::pair<Hostile, Rows>> all;
    for (const Hostile& value : hostileValues())
        for (const Rows rows : {Rows::All, Rows::Even, Rows::Odd})
            all.emplace_back(value, rows);
    return all;
}

std::string rowsName(Rows rows)
{
    return rows == Rows::All ? " in every setting" : rows == Rows::Even ? " in even rows" : " in odd rows";
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
        const QStringList everyScreen = tour(bench, pictures);
        QVERIFY(everyScreen.contains(QStringLiteral("select.png")));
        QVERIFY(everyScreen.contains(QStringLiteral("favourites-add.png")));
        RegistrySettings settings(bench.settings);
        for (const auto& [value, rows] : rounds()) {
            store(settings, value, rows);
            const auto favourite = settings.GetValue(Settings::WeatherPosition.subkey, Settings::WeatherPosition.name);
            bench.boxes.shown.clear();
            const QStringList shown = tour(bench, pictures);
            // Only "Change City" writes the favourite position: a hostile one is still there, as stored.
            const auto after = settings.GetValue(Settings::WeatherPosition.subkey, Settings::WeatherPosition.name);
            QCOMPARE(after.has_value(), favourite.has_value());
            if (favourite)
                QVERIFY(after->type == favourite->type && after->data == favourite->data);
            const QSet<QString> missing
                = QSet<QString>(everyScreen.begin(), everyScreen.end()) - QSet<QString>(shown.begin(), shown.end());
            // A screen that cannot show the stored choice may refuse to open, but only with a message.
            const std::string what = describe(value) + rowsName(rows)
                + ": not shown: " + missing.values().join(QLatin1Char(' ')).toStdString();
            QVERIFY2(missing.isEmpty() || !bench.boxes.shown.empty(), what.c_str());
            if (!missing.isEmpty())
                qInfo("%s (with a message)", what.c_str());
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
            for (const Place& place : Places) {
                const auto set = CommandResult::of("settings", setArguments(place, value), device);
                QVERIFY2(set.code == 0, (describe(value) + ": " + set.err).c_str());
            }
            for (const auto& command : commands) {
                const std::vector<std::string> args(command.begin() + 1, command.end());
                const auto result = CommandResult::of(command[0], args, device);
                const std::string what = describe(value) + ": " + command[0] + ": " + result.err;
                QVERIFY2(result.code == 0 || (result.code == 1 && !result.err.empty()), what.c_str());
            }
        }
    }
};

QTEST_MAIN(HostileSettingsTest)
#include "HostileSettingsTest.moc"
