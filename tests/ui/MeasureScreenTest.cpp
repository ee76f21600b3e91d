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

constexpr std::uint32_t Weights = 6;
constexpr std::uint32_t Temperatures = 4;

// A measurements screen opened on the stored category, units and amount; nothing stored for an empty value.
struct MeasureBench
{
    explicit MeasureBench(std::optional<std::uint32_t> type = {}, std::optional<std::uint32_t> unit1 = {},
        std::optional<std::uint32_t> unit2 = {}, const wchar_t* value = nullptr)
    {
        const std::pair<const DwordSetting&, std::optional<std::uint32_t>> dwords[]
            = {{Settings::MeasureType, type}, {Settings::MeasureUnit1, unit1}, {Settings::MeasureUnit2, unit2}};
        for (const auto& [setting, stored] : dwords)
            if (stored)
                bench.store(setting, *stored);
        if (value)
            bench.store(Settings::MeasureValue, value);
    }

    Spinner* spinner(const char* name) { return child<Spinner>(screen, name); }
    QLineEdit* amountField() { return child<QLineEdit>(screen, "amountLineEdit"); }
    QString amount() { return amountField()->text(); }
    QString result() { return child<QLineEdit>(screen, "resultLineEdit")->text(); }
    bool undoEnabled() { return screen.softKeys()->isItemEnabled(Commands::Undo); }
    // Types into the amount field as the user does.
    void type(const QString& keys)
    {
        amountField()->setFocus();
        QTest::keyClicks(amountField(), keys);
    }

    ScreenTestBench bench;
    MeasureScreen screen {bench.environment, bench.window};
};

} // namespace

class MeasureScreenTest : public QObject
{
    Q_OBJECT

private slots:
    void opensOnTheStoredChoicesConvertsTheStoredAmountAndSavesUpTo49Characters()
    {
        // Weights in the screen's order: "Tonne" first, then the table from "cg - Centigram" on, so
        // "kg - Kilogram" is 10 and "Ton [short, US]" 22.
        MeasureBench t(Weights, 22, 10, L"1");
        t.bench.visit(t.screen, [&] {
            QCOMPARE(t.spinner("categorySpinner")->currentText(), QStringLiteral("Weights and Mass"));
            QCOMPARE(t.spinner("fromSpinner")->currentText(), QStringLiteral("Ton [short, US]"));
            QCOMPARE(t.spinner("toSpinner")->currentText(), QStringLiteral("kg - Kilogram"));
            QCOMPARE(t.spinner("fromSpinner")->count(), 23);
            QCOMPARE(t.amount(), QStringLiteral("1"));
            QCOMPARE(t.result(), QStringLiteral("907.000000"));
            QVERIFY(child<QLineEdit>(t.screen, "resultLineEdit")->isReadOnly());
            QCOMPARE(t.bench.window.focusWidget(), t.spinner("categorySpinner"));
            // The band's fill, away from its text, and white label text on the left.
            const QImage image = t.bench.render();
            QCOMPARE(image.pixelColor(200, 3), QColor(0, 178, 235));
            QCOMPARE(image.pixelColor(200, 22), QColor(0, 178, 235));
            QVERIFY(image.pixelColor(200, 26) != QColor(0, 178, 235));
            int white = 0;
            for (int y = 85; y < 105; ++y)
                for (int x = 5; x < 60; ++x)
                    white += image.pixelColor(x, y) == QColor(255, 255, 255);
            QVERIFY(white > 20);
            t.type(QString(60, QLatin1Char('7')));
        });
        // The amount is saved up to 49 characters.
        const QString saved = QStringLiteral("1") + QString(48, QLatin1Char('7'));
        RegistrySettings settings(t.bench.settings);
        QCOMPARE(ReadSetting(settings, Settings::MeasureValue), saved.toStdWString());
        t.bench.visit(t.screen, [&] { QCOMPARE(t.amount(), saved); });
    }

    void typingBackUndoAndClearConvertAgain()
    {
        MeasureBench t(1, 11, 9, L"2"); // 2 miles in meters
        t.bench.visit(t.screen, [&] {
            QCOMPARE(t.result(), QStringLiteral("3218.688000"));
            QVERIFY(!t.undoEnabled()); // grey after opening
            t.type(QStringLiteral("5"));
            QCOMPARE(t.amount(), QStringLiteral("25"));
            QCOMPARE(t.result(), QStringLiteral("40233.600000"));
            t.bench.press(Qt::Key_Escape); // the Back key erases a character
            QCOMPARE(t.amount(), QStringLiteral("2"));
            QCOMPARE(t.result(), QStringLiteral("3218.688000"));
            QVERIFY(t.screen.isRunning());
            t.type(QStringLiteral("5"));
            QVERIFY(t.undoEnabled());
            t.screen.softKeys()->chooseItem(Commands::Undo);
            QCOMPARE(t.amount(), QStringLiteral("2"));
            QCOMPARE(t.result(), QStringLiteral("3218.688000"));
            QVERIFY(!t.undoEnabled()); // and grey after an undo
            // Another unit converts again, and "Undo" comes back.
            t.spinner("toSpinner")->setFocus();
            t.bench.press(Qt::Key_Left); // meters to "League [nautical]" (5556 m)
            QCOMPARE(t.result(), QStringLiteral("0.579317"));
            QVERIFY(t.undoEnabled());
            for (int round = 0; round < 2; ++round) { // the second time the amount is "0" already
                t.screen.softKeys()->chooseItem(Commands::Clear);
                QCOMPARE(t.amount(), QStringLiteral("0"));
                QCOMPARE(t.result(), QStringLiteral("0.000000"));
                QVERIFY(t.undoEnabled());
            }
        });
    }

    void changingTheCategoryShowsTheAmountUnchanged()
    {
        // From each category to the next one, with the amount as typed.
        for (std::uint32_t category = 0; category < 7; ++category) {
            MeasureBench t(category, 1, 2, L"-40.50e0");
            t.bench.visit(t.screen, [&] {
                t.bench.press(Qt::Key_Right);
                QCOMPARE(t.spinner("categorySpinner")->currentIndex(), static_cast<int>(std::min(category + 1, 6u)));
                if (category == 6)
                    return; // the list does not wrap
                QCOMPARE(t.result(), QStringLiteral("-40.50e0"));
                QCOMPARE(t.spinner("fromSpinner")->currentIndex(), 0);
                QCOMPARE(t.spinner("toSpinner")->currentIndex(), 0);
            });
        }
    }

    void belowAbsoluteZeroSaysSoAndShowsZero()
    {
        MeasureBench t(Temperatures, 0, 4, L"-27"); // °C to K
        t.bench.visit(t.screen, [&] {
            QCOMPARE(t.result(), QStringLiteral("246.150000"));
            t.type(QStringLiteral("5"));
            QCOMPARE(t.bench.boxes.shown.size(), std::size_t {1});
            QCOMPARE(t.bench.boxes.shown.front().text, QStringLiteral("Below Absolute Zero"));
            QCOMPARE(t.bench.boxes.shown.front().caption, QString());
            QCOMPARE(t.result(), QStringLiteral("0"));
            QCOMPARE(t.amount(), QStringLiteral("-275"));
        });
    }

    void unreadableSettingsReadAsZeroAndOnlySelectionsAreSaved()
    {
        // Stored type and units, then what the lists show and what leaving writes back.
        using Stored = std::array<std::optional<std::uint32_t>, 3>;
        using Case = std::tuple<Stored, std::array<int, 3>, std::array<std::uint32_t, 3>>;
        const Case cases[] = {
            {{}, {0, 0, 0}, {0, 0, 0}}, // a fresh device: the first of everything
            {{3, 12, 7}, {3, 12, 7}, {3, 12, 7}},
            // No selection: the lists stay empty or unselected and nothing is written for them.
            {{9, 1, 1}, {-1, -1, -1}, {9, 1, 1}},
            {{Temperatures, 5, 4}, {4, -1, 4}, {4, 5, 4}},
        };
        const DwordSetting* settings[] = {&Settings::MeasureType, &Settings::MeasureUnit1, &Settings::MeasureUnit2};
        const char* lists[] = {"categorySpinner", "fromSpinner", "toSpinner"};
        for (const auto& [given, shown, written] : cases) {
            MeasureBench t(given[0], given[1], given[2], given[0] ? L"1" : nullptr);
            t.bench.visit(t.screen, [&] {
                for (std::size_t i = 0; i < 3; ++i) {
                    QCOMPARE(t.spinner(lists[i])->currentIndex(), shown[i]);
                    // Reading writes nothing.
                    QCOMPARE(t.bench.stored(*settings[i]), given[i].value_or(ScreenTestBench::NotStored));
                }
            });
            for (std::size_t i = 0; i < 3; ++i)
                QCOMPARE(t.bench.stored(*settings[i]), written[i]);
        }
    }

    void aCategoryWithoutRecordsShowsEmptyListsAndStillConverts()
    {
        MeasureBench t;
        UnitCatalogue catalogue(t.bench.objects);
        catalogue.Build();
        for (int i = 0; i < 22; ++i) // every area
            QVERIFY(catalogue.DeleteUnitAt(0));
        t.bench.visit(t.screen, [&] {
            QCOMPARE(t.spinner("categorySpinner")->currentIndex(), 0);
            QCOMPARE(t.spinner("fromSpinner")->count(), 0);
            QCOMPARE(t.spinner("toSpinner")->currentIndex(), -1);
            // Empty factors are 0: 1 x 0 / 0 is not a number.
            t.type(QStringLiteral("1"));
            QVERIFY(t.result().contains(QStringLiteral("nan")));
            // The lengths are still found.
            t.spinner("categorySpinner")->setFocus();
            t.bench.press(Qt::Key_Right);
            QCOMPARE(t.spinner("fromSpinner")->currentText(), QStringLiteral("Yard"));
        });
        // The units had no selection: only the category is written.
        QCOMPARE(t.bench.stored(Settings::MeasureType), 1u);
        QCOMPARE(t.bench.stored(Settings::MeasureUnit1), 0u);
    }
};

QTEST_MAIN(MeasureScreenTest)
#include "MeasureScreenTest.moc"
