// SPDX-License-Identifier: GPL-3.0-or-later
#include "screens/measure/MeasureScreen.h"

#include "ScreenTestBench.h"
#include "settings/SettingsTable.h"
#include "ui/Commands.h"
#include "ui/SoftKeyBar.h"
#include "ui/Spinner.h"
#include "units/UnitCatalogue.h"

#include <QLineEdit>
#include <QTest>

#include <optional>
#include <tuple>

namespace {

Spinner* spinner(MeasureScreen& screen, const char* name)
{
    return screen.findChild<Spinner*>(QString::fromUtf8(name));
}

QLineEdit* field(MeasureScreen& screen, const char* name)
{
    return screen.findChild<QLineEdit*>(QString::fromUtf8(name));
}

QString amount(MeasureScreen& screen)
{
    return field(screen, "amountLineEdit")->text();
}

QString result(MeasureScreen& screen)
{
    return field(screen, "resultLineEdit")->text();
}

bool undoEnabled(MeasureScreen& screen)
{
    return screen.softKeys()->isItemEnabled(Commands::Undo);
}

// What the screen starts from: category, both units and the amount; nothing stored for an empty value.
struct Stored
{
    std::optional<std::uint32_t> type;
    std::optional<std::uint32_t> unit1;
    std::optional<std::uint32_t> unit2;
    std::optional<std::wstring> value;
};

void store(ScreenTestBench& bench, const Stored& stored)
{
    RegistrySettings settings(bench.settings);
    const std::pair<const DwordSetting&, std::optional<std::uint32_t>> dwords[] = {{Settings::MeasureType, stored.type},
        {Settings::MeasureUnit1, stored.unit1}, {Settings::MeasureUnit2, stored.unit2}};
    for (const auto& [setting, value] : dwords) {
        if (value)
            WriteSetting(settings, setting, *value);
    }
    if (stored.value)
        WriteSetting(settings, Settings::MeasureValue, *stored.value);
}

// Types into the amount field as the user does.
void type(MeasureScreen& screen, const QString& keys)
{
    QLineEdit* edit = field(screen, "amountLineEdit");
    edit->setFocus();
    QTest::keyClicks(edit, keys);
}

constexpr std::uint32_t Weights = 6;
constexpr std::uint32_t Temperatures = 4;

} // namespace

class MeasureScreenTest : public QObject
{
    Q_OBJECT

private slots:
    void opensOnTheStoredChoicesAndConvertsTheStoredAmount()
    {
        // Weights in the screen's order: "Tonne" first, then the table from "cg - Centigram" on, so
        // "kg - Kilogram" is 10 and "Ton [short, US]" 22.
        ScreenTestBench bench;
        MeasureScreen screen(bench.environment, bench.window);
        store(bench, {Weights, 22, 10, L"1"});
        bench.visit(screen, [&] {
            QCOMPARE(spinner(screen, "categorySpinner")->currentText(), QStringLiteral("Weights and Mass"));
            QCOMPARE(spinner(screen, "fromSpinner")->currentText(), QStringLiteral("Ton [short, US]"));
            QCOMPARE(spinner(screen, "toSpinner")->currentText(), QStringLiteral("kg - Kilogram"));
            QCOMPARE(spinner(screen, "fromSpinner")->count(), 23);
            QCOMPARE(amount(screen), QStringLiteral("1"));
            QCOMPARE(result(screen), QStringLiteral("907.000000"));
            QVERIFY(field(screen, "resultLineEdit")->isReadOnly());
            QCOMPARE(bench.window.focusWidget(), spinner(screen, "categorySpinner"));
        });
    }

    void undoIsGreyAfterOpeningAndAfterAnUndo()
    {
        ScreenTestBench bench;
        MeasureScreen screen(bench.environment, bench.window);
        store(bench, {1, 11, 9, L"2"}); // 2 miles in meters
        bench.visit(screen, [&] {
            QCOMPARE(result(screen), QStringLiteral("3218.688000"));
            QVERIFY(!undoEnabled(screen));
            type(screen, QStringLiteral("5"));
            QCOMPARE(amount(screen), QStringLiteral("25"));
            QCOMPARE(result(screen), QStringLiteral("40233.600000"));
            QVERIFY(undoEnabled(screen));
            screen.softKeys()->chooseItem(Commands::Undo);
            QCOMPARE(amount(screen), QStringLiteral("2"));
            QCOMPARE(result(screen), QStringLiteral("3218.688000"));
            QVERIFY(!undoEnabled(screen));
            // Another unit converts again, and "Undo" comes back.
            spinner(screen, "toSpinner")->setFocus();
            bench.press(Qt::Key_Left); // meters to "League [nautical]" (5556 m)
            QCOMPARE(result(screen), QStringLiteral("0.579317"));
            QVERIFY(undoEnabled(screen));
        });
    }

    void clearSetsBothFieldsToZeroAndConverts()
    {
        ScreenTestBench bench;
        MeasureScreen screen(bench.environment, bench.window);
        store(bench, {0, 1, 2, L"12"});
        bench.visit(screen, [&] {
            for (int round = 0; round < 2; ++round) { // the second time the amount is "0" already
                screen.softKeys()->chooseItem(Commands::Clear);
                QCOMPARE(amount(screen), QStringLiteral("0"));
                QCOMPARE(result(screen), QStringLiteral("0.000000"));
                QVERIFY(undoEnabled(screen));
            }
        });
    }

    void changingTheCategoryShowsTheAmountUnchanged()
    {
        // From each category to the next one, with the amount as typed.
        for (std::uint32_t category = 0; category < 7; ++category) {
            ScreenTestBench bench;
            MeasureScreen screen(bench.environment, bench.window);
            store(bench, {category, 1, 2, L"-40.50e0"});
            bench.visit(screen, [&] {
                bench.press(Qt::Key_Right);
                Spinner* categories = spinner(screen, "categorySpinner");
                QCOMPARE(categories->currentIndex(), static_cast<int>(std::min(category + 1, 6u)));
                if (category == 6)
                    return; // the list does not wrap
                QCOMPARE(result(screen), QStringLiteral("-40.50e0"));
                QCOMPARE(spinner(screen, "fromSpinner")->currentIndex(), 0);
                QCOMPARE(spinner(screen, "toSpinner")->currentIndex(), 0);
            });
        }
    }

    void belowAbsoluteZeroSaysSoAndShowsZero()
    {
        ScreenTestBench bench;
        MeasureScreen screen(bench.environment, bench.window);
        store(bench, {Temperatures, 0, 4, L"-27"}); // °C to K
        bench.visit(screen, [&] {
            QCOMPARE(result(screen), QStringLiteral("246.150000"));
            type(screen, QStringLiteral("5"));
            QCOMPARE(bench.boxes.shown.size(), std::size_t {1});
            QCOMPARE(bench.boxes.shown.front().text, QStringLiteral("Below Absolute Zero"));
            QCOMPARE(bench.boxes.shown.front().caption, QString());
            QCOMPARE(result(screen), QStringLiteral("0"));
            QCOMPARE(amount(screen), QStringLiteral("-275"));
        });
    }

    void theBackKeyErasesACharacterOfTheAmount()
    {
        ScreenTestBench bench;
        MeasureScreen screen(bench.environment, bench.window);
        store(bench, {1, 9, 0, L"1.8288"}); // meters to the yard
        bench.visit(screen, [&] {
            field(screen, "amountLineEdit")->setFocus();
            QCOMPARE(result(screen), QStringLiteral("2.000000"));
            bench.press(Qt::Key_Escape);
            QCOMPARE(amount(screen), QStringLiteral("1.828"));
            QCOMPARE(result(screen), QStringLiteral("1.999125"));
            QVERIFY(screen.isRunning());
        });
    }

    void unreadableSettingsReadAsZeroAndOnlySelectionsAreSaved()
    {
        // Stored values, then what the lists show and what leaving writes back.
        using Case = std::tuple<Stored, int, int, int, std::uint32_t, std::uint32_t, std::uint32_t>;
        const Case cases[] = {
            {{}, 0, 0, 0, 0, 0, 0}, // a fresh device: the first of everything
            {{3, 12, 7, L"1"}, 3, 12, 7, 3, 12, 7},
            // No selection: the lists stay empty or unselected and nothing is written for them.
            {{9, 1, 1, L"1"}, -1, -1, -1, 9, 1, 1},
            {{Temperatures, 5, 4, L"1"}, 4, -1, 4, 4, 5, 4},
        };
        for (const auto& [given, category, from, to, type, unit1, unit2] : cases) {
            ScreenTestBench bench;
            MeasureScreen screen(bench.environment, bench.window);
            store(bench, given);
            bench.visit(screen, [&] {
                QCOMPARE(spinner(screen, "categorySpinner")->currentIndex(), category);
                QCOMPARE(spinner(screen, "fromSpinner")->currentIndex(), from);
                QCOMPARE(spinner(screen, "toSpinner")->currentIndex(), to);
                // Reading writes nothing.
                QCOMPARE(bench.stored(Settings::MeasureType), given.type.value_or(ScreenTestBench::NotStored));
                QCOMPARE(bench.stored(Settings::MeasureUnit1), given.unit1.value_or(ScreenTestBench::NotStored));
            });
            QCOMPARE(bench.stored(Settings::MeasureType), type);
            QCOMPARE(bench.stored(Settings::MeasureUnit1), unit1);
            QCOMPARE(bench.stored(Settings::MeasureUnit2), unit2);
        }
    }

    void aCategoryWithoutRecordsShowsEmptyListsAndStillConverts()
    {
        ScreenTestBench bench;
        MeasureScreen screen(bench.environment, bench.window);
        UnitCatalogue catalogue(bench.objects);
        catalogue.Build();
        for (int i = 0; i < 22; ++i) // every area
            QVERIFY(catalogue.DeleteUnitAt(0));
        bench.visit(screen, [&] {
            QCOMPARE(spinner(screen, "categorySpinner")->currentIndex(), 0);
            QCOMPARE(spinner(screen, "fromSpinner")->count(), 0);
            QCOMPARE(spinner(screen, "toSpinner")->currentIndex(), -1);
            // Empty factors are 0: 1 x 0 / 0 is not a number.
            type(screen, QStringLiteral("1"));
            QVERIFY(result(screen).contains(QStringLiteral("nan")));
            // The lengths are still found.
            spinner(screen, "categorySpinner")->setFocus();
            bench.press(Qt::Key_Right);
            QCOMPARE(spinner(screen, "fromSpinner")->currentText(), QStringLiteral("Yard"));
        });
        // The units had no selection: only the category is written.
        QCOMPARE(bench.stored(Settings::MeasureType), 1u);
        QCOMPARE(bench.stored(Settings::MeasureUnit1), 0u);
    }

    void theAmountIsSavedUpTo49Characters()
    {
        ScreenTestBench bench;
        MeasureScreen screen(bench.environment, bench.window);
        const QString digits = QString(60, QLatin1Char('7'));
        bench.visit(screen, [&] { type(screen, digits); });
        RegistrySettings settings(bench.settings);
        QCOMPARE(ReadSetting(settings, Settings::MeasureValue), std::wstring(49, L'7'));
        bench.visit(screen, [&] { QCOMPARE(amount(screen), digits.left(49)); });
    }

    void paintsTheTitleBandAndTheLabels()
    {
        ScreenTestBench bench;
        MeasureScreen screen(bench.environment, bench.window);
        bench.visit(screen, [&] {
            const QImage image = bench.render();
            // The band's fill, away from its text, and white label text on the left.
            QCOMPARE(image.pixelColor(200, 3), QColor(0, 178, 235));
            QCOMPARE(image.pixelColor(200, 22), QColor(0, 178, 235));
            QVERIFY(image.pixelColor(200, 26) != QColor(0, 178, 235));
            int white = 0;
            for (int y = 85; y < 105; ++y) {
                for (int x = 5; x < 60; ++x)
                    white += image.pixelColor(x, y) == QColor(255, 255, 255);
            }
            QVERIFY(white > 20);
        });
    }
};

QTEST_MAIN(MeasureScreenTest)
#include "MeasureScreenTest.moc"
