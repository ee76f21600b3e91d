// SPDX-License-Identifier: GPL-3.0-or-later
// The two converters: currencies and measurements.
#include "ScreenTestBench.h"
#include "screens/currency/CurrencyScreen.h"
#include "screens/measure/MeasureScreen.h"
#include "screens/select/SelectDialog.h"

#include <QLineEdit>
#include <QSignalSpy>

namespace {

// In name order: British Pound 0, Euro 1, Japanese Yen 2, US Dollar 3; rates in US dollars per unit.
constexpr const char* Currencies
    = "4\nUSD_US Dollar_1#EUR_Euro_1.25#JPY_Japanese Yen_0.0078125#GBP_British Pound_1.5625#";
constexpr std::uint32_t Pound = 0;
constexpr std::uint32_t Euro = 1;
constexpr std::uint32_t Dollar = 3;
using Positions = std::array<std::uint32_t, 3>;

// A converter over the four fixture currencies showing the euro, the dollar and the pound, the launcher's list
// read from the device root.
struct ConverterBench
{
    ConverterBench()
    {
        // Focus events reach the fields only in the active window.
        bench.window.activateWindow();
        active = QTest::qWaitForWindowActive(&bench.window);
        bench.root.write("currs.lst", Currencies);
        initial = ReadInitialCurrencies(bench.paths, bench.messages);
        bench.store(Settings::Currency1, Euro);
        bench.store(Settings::Currency2, Dollar);
        bench.store(Settings::Currency3, Pound);
    }

    QLineEdit* field(int k) { return child<QLineEdit>(screen, ("amount" + std::to_string(k) + "NumericEdit").c_str()); }
    // The three fields' texts, joined by "|".
    QString texts() { return field(1)->text() + u'|' + field(2)->text() + u'|' + field(3)->text(); }
    void type(int k, const QString& text)
    {
        QVERIFY(field(k)->isVisible()); // keys reach a hidden field too
        field(k)->setFocus();
        QTest::keyClicks(field(k), text);
    }
    Positions shown() { return {screen.position(0), screen.position(1), screen.position(2)}; }

    ScreenTestBench bench;
    bool active = false;
    InitialCurrencyList initial;
    CurrencyScreen screen {bench.environment, bench.window, initial};
};

constexpr std::uint32_t Weights = 6;
const DwordSetting* const MeasureChoices[] = {&Settings::MeasureType, &Settings::MeasureUnit1, &Settings::MeasureUnit2};

// A measurements screen opened on the stored category, units and amount.
struct MeasureBench
{
    MeasureBench(const std::array<std::uint32_t, 3>& choices, const wchar_t* value)
    {
        for (std::size_t i = 0; i < 3; ++i)
            bench.store(*MeasureChoices[i], choices[i]);
        bench.store(Settings::MeasureValue, value);
    }

    // The category list, then the two unit lists.
    Spinner* list(std::size_t i)
    {
        return child<Spinner>(screen, std::array {"categorySpinner", "fromSpinner", "toSpinner"}[i]);
    }
    QString choices() { return list(0)->currentText() + u'|' + list(1)->currentText() + u'|' + list(2)->currentText(); }
    std::array<int, 3> indices() { return {list(0)->currentIndex(), list(1)->currentIndex(), list(2)->currentIndex()}; }
    QLineEdit* amountField() { return child<QLineEdit>(screen, "amountLineEdit"); }
    QString result() { return child<QLineEdit>(screen, "resultLineEdit")->text(); }
    // The amount and the result, joined by "|".
    QString shown() { return amountField()->text() + u'|' + result(); }
    bool undoEnabled() { return screen.softKeys()->isItemEnabled(Commands::Undo); }
    // Types into the amount field as the user does.
    void type(const QString& keys)
    {
        QVERIFY(amountField()->isVisible()); // keys reach a hidden field too
        amountField()->setFocus();
        QTest::keyClicks(amountField(), keys);
    }

    ScreenTestBench bench;
    MeasureScreen screen {bench.environment, bench.window};
};

} // namespace

class ConverterScreensTest : public QObject
{
    Q_OBJECT

private slots:
    // ---- Currencies.
    void typingConvertsFromTheFocusedFieldOnlyAndLeavingSavesTheFirstAmount()
    {
        ConverterBench t;
        QVERIFY(t.active);
        const QString saved = QStringLiteral("12|15.00000000|9.60000000 Last update: Never ");
        t.bench.visit(t.screen, [&] {
            // 10 dollars, the letter refused: 10 / 1.25 euros and 10 / 1.5625 pounds.
            QSignalSpy rewritten(t.field(2), &QLineEdit::textChanged);
            t.type(2, QStringLiteral("1x0"));
            QCOMPARE(t.texts(), QStringLiteral("8.00000000|10|6.40000000"));
            QCOMPARE(rewritten.count(), 2); // one per digit: field 2 is never written back
            QCOMPARE(t.screen.focusLabel(), QStringLiteral("USD - US Dollar"));
            // Field 2 is (55, 80) to (200, 105); the frame is 2 pixels wider on each side.
            QCOMPARE(t.screen.focusFrame(), QRect(QPoint(53, 78), QPoint(201, 106)));
            // The codes, in the 23-pixel title font, end in their boxes (10 to 50) before the fields and the frame.
            QVERIFY(!showsWhite(t.bench.render(), QRect(50, 45, 3, 95)));
            // The Back key erases the last character: 1 dollar.
            t.bench.press(Qt::Key_Escape);
            QCOMPARE(t.texts(), QStringLiteral("0.80000000|1|0.64000000"));
            t.field(2)->selectAll();
            QTest::keyClick(t.field(2), Qt::Key_Delete);
            QCOMPARE(t.texts(), QStringLiteral("||"));
            t.type(1, QStringLiteral("4"));
            t.screen.sendCommand(Commands::Clear);
            QCOMPARE(t.texts(), QStringLiteral("||"));
            // "Update Rates" changes nothing.
            t.type(1, QStringLiteral("12"));
            t.screen.sendCommand(Commands::UpdateRates);
            QVERIFY(t.screen.isRunning() && !t.bench.window.isExiting());
            QCOMPARE(t.texts() + u' ' + t.screen.lastUpdateText(), saved);
        });
        RegistrySettings settings(t.bench.settings);
        QCOMPARE(ReadSetting(settings, Settings::CurrencyAmount), std::wstring(L"12"));
        // The next opening starts from the saved amount and recomputes the others; the list never reads updated.
        t.bench.visit(t.screen, [&] { QCOMPARE(t.texts() + u' ' + t.screen.lastUpdateText(), saved); });
    }

    void changingACurrencyTakesTheDialogsIndexUnlessNoFieldHasTheFocus()
    {
        ConverterBench t;
        t.bench.visit(t.screen, [&] {
            int preselected = -2;
            const auto chooseNext = [&] {
                t.bench.whenNextShown(t.screen, [&](Screen& shown) {
                    preselected = static_cast<SelectDialog&>(shown).selection();
                    t.bench.press(Qt::Key_Down);
                    shown.sendCommand(Commands::Done);
                });
            };
            // No field focused: the action key opens the dialog too, and its choice only repaints.
            t.type(1, QStringLiteral("2"));
            t.screen.setFocus();
            chooseNext();
            QSignalSpy painted(&t.screen, &Screen::painted);
            t.bench.press(Qt::Key_Return);
            QVERIFY(preselected != -2 && painted.wait(1000));
            QCOMPARE(t.texts(), QStringLiteral("2|2.50000000|1.60000000"));
            QCOMPARE(t.shown(), (Positions {Euro, Dollar, Pound}));
            QCOMPARE(t.screen.focusLabel(), QStringLiteral("EUR - Euro"));

            t.screen.sendCommand(Commands::Clear);
            t.type(3, QStringLiteral("2"));
            chooseNext(); // Euro, after the pound
            t.screen.sendCommand(Commands::ChangeCurrency);
            QCOMPARE(preselected, int(Pound));
            QCOMPARE(t.shown(), (Positions {Euro, Dollar, Euro}));
            QCOMPARE(t.screen.focusLabel(), QStringLiteral("EUR - Euro"));
            // Field 3 now holds 2 euros: 2.5 dollars, and field 1 the same 2 euros.
            QCOMPARE(t.texts(), QStringLiteral("2.00000000|2.50000000|2"));
            // Closing the window over the dialog takes its index all the same: the pound, before the euro.
            t.bench.whenNextShown(t.screen, [&](Screen&) {
                t.bench.press(Qt::Key_Up);
                t.bench.window.close();
            });
            t.screen.sendCommand(Commands::ChangeCurrency);
        });
        QCOMPARE(t.bench.stored(Settings::Currency3), Pound);
    }

    // ---- Measurements.
    void opensOnTheStoredChoicesConvertsTheStoredAmountAndSavesUpTo49Characters()
    {
        // Weights in the screen's order: "Tonne" first, then the table from "cg - Centigram" on, so
        // "kg - Kilogram" is 10 and "Ton [short, US]" 22.
        MeasureBench t({Weights, 22, 10}, L"1");
        t.bench.visit(t.screen, [&] {
            QCOMPARE(t.choices(), QStringLiteral("Weights and Mass|Ton [short, US]|kg - Kilogram"));
            QCOMPARE(t.shown(), QStringLiteral("1|907.000000"));
            QCOMPARE(t.bench.window.focusWidget(), t.list(0));
            t.bench.press(Qt::Key_Right); // the last category: no wrapping
            QCOMPARE(t.choices(), QStringLiteral("Weights and Mass|Ton [short, US]|kg - Kilogram"));
            t.type(QString(60, QLatin1Char('7')));
        });
        // The amount is saved up to 49 characters.
        const QString saved = QStringLiteral("1") + QString(48, QLatin1Char('7'));
        RegistrySettings settings(t.bench.settings);
        QCOMPARE(ReadSetting(settings, Settings::MeasureValue), saved.toStdWString());
        t.bench.visit(t.screen, [&] { QCOMPARE(t.amountField()->text(), saved); });
    }

    void typingUndoAndClearConvertAgain()
    {
        MeasureBench t({1, 11, 9}, L"2"); // 2 miles in meters
        t.bench.visit(t.screen, [&] {
            QCOMPARE(t.shown(), QStringLiteral("2|3218.688000"));
            QVERIFY(!t.undoEnabled()); // grey after opening
            t.type(QStringLiteral("5"));
            QCOMPARE(t.shown(), QStringLiteral("25|40233.600000"));
            QVERIFY(t.undoEnabled());
            t.screen.softKeys()->chooseItem(Commands::Undo);
            QCOMPARE(t.shown(), QStringLiteral("2|3218.688000"));
            QVERIFY(!t.undoEnabled()); // and grey after an undo
            // Another unit converts again, and "Undo" comes back.
            t.list(2)->setFocus();
            t.bench.press(Qt::Key_Left); // meters to "League [nautical]" (5556 m)
            QCOMPARE(t.shown(), QStringLiteral("2|0.579317"));
            QVERIFY(t.undoEnabled());
            for (int round = 0; round < 2; ++round) { // the second time the amount is "0" already
                t.screen.softKeys()->chooseItem(Commands::Clear);
                QCOMPARE(t.shown(), QStringLiteral("0|0.000000"));
                QVERIFY(t.undoEnabled());
            }
        });
    }

    void theNextCategoryShowsTheAmountUnchanged()
    {
        // Its result field shows the amount as typed, and its first units are chosen.
        MeasureBench t({0, 1, 2}, L"-40.50e0");
        t.bench.visit(t.screen, [&] {
            t.bench.press(Qt::Key_Right);
            QCOMPARE(t.indices(), (std::array {1, 0, 0}));
            QCOMPARE(t.result(), QStringLiteral("-40.50e0"));
        });
    }
};

QTEST_MAIN(ConverterScreensTest)
#include "ConverterScreensTest.moc"
