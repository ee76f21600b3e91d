// SPDX-License-Identifier: GPL-3.0-or-later
#include "screens/currency/CurrencyScreen.h"

#include "ScreenTestBench.h"
#include "screens/select/SelectDialog.h"
#include "settings/SettingsTable.h"
#include "ui/Commands.h"

#include <QLineEdit>
#include <QSignalSpy>
#include <QTest>

namespace {

// In name order: British Pound 0, Euro 1, Japanese Yen 2, US Dollar 3; rates in US dollars per unit.
constexpr const char* Currencies
    = "4\nUSD_US Dollar_1#EUR_Euro_1.25#JPY_Japanese Yen_0.0078125#GBP_British Pound_1.5625#";
constexpr std::uint32_t Pound = 0;
constexpr std::uint32_t Euro = 1;
constexpr std::uint32_t Dollar = 3;
constexpr std::uint32_t Nowhere = 99; // no currency: empty texts, a rate of 0
const wchar_t* const Key = L"Wanderkit\\currencies";
const wchar_t* const PositionNames[] = {L"curp", L"curp2", L"curp3"};

// A converter over the four fixture currencies, the launcher's list read from the device root.
struct ConverterBench
{
    explicit ConverterBench(std::optional<std::array<std::uint32_t, 3>> positions = std::array {Euro, Dollar, Pound})
    {
        // Focus events reach the fields only in the active window.
        bench.window.activateWindow();
        active = QTest::qWaitForWindowActive(&bench.window);
        bench.root.write("currs.lst", Currencies);
        initial = ReadInitialCurrencies(bench.paths, bench.messages);
        for (std::size_t k = 0; positions && k < 3; ++k)
            registry.SetDWORD(Key, PositionNames[k], (*positions)[k]);
    }

    QLineEdit* field(int k)
    {
        return child<QLineEdit>(screen, qPrintable(QStringLiteral("amount%1NumericEdit").arg(k)));
    }
    // The three fields' texts, joined by "|".
    QString texts() { return field(1)->text() + u'|' + field(2)->text() + u'|' + field(3)->text(); }
    void type(int k, const QString& text)
    {
        field(k)->setFocus();
        QTest::keyClicks(field(k), text);
    }
    std::array<std::uint32_t, 3> stored()
    {
        std::array<std::uint32_t, 3> positions {};
        for (std::size_t k = 0; k < 3; ++k)
            positions[k] = registry.GetDWORD(Key, PositionNames[k]);
        return positions;
    }

    ScreenTestBench bench;
    bool active = false;
    RegistrySettings registry {bench.settings};
    InitialCurrencyList initial;
    CurrencyScreen screen {bench.environment, bench.window, initial};
};

} // namespace

class CurrencyScreenTest : public QObject
{
    Q_OBJECT

private slots:
    void typingConvertsFromTheFocusedFieldOnlyAndAnEmptyFieldEmptiesTheOthers()
    {
        ConverterBench t;
        QVERIFY(t.active);
        t.bench.visit(t.screen, [&] {
            // 10 dollars: 10 / 1.25 euros and 10 / 1.5625 pounds.
            QSignalSpy rewritten(t.field(2), &QLineEdit::textChanged);
            t.type(2, QStringLiteral("10"));
            QCOMPARE(t.texts(), QStringLiteral("8.00000000|10|6.40000000"));
            QCOMPARE(rewritten.count(), 2); // one per key: field 2 is never written back
            QCOMPARE(t.screen.focusLabel(), QStringLiteral("USD - US Dollar"));
            // Field 2 is (55, 80) to (200, 105); the frame is 2 pixels wider on each side.
            QCOMPARE(t.screen.focusFrame(), QRect(QPoint(53, 78), QPoint(201, 106)));
            // The Back key erases the last character: 1 dollar.
            t.bench.press(Qt::Key_Escape);
            QCOMPARE(t.texts(), QStringLiteral("0.80000000|1|0.64000000"));
            t.field(2)->selectAll();
            QTest::keyClick(t.field(2), Qt::Key_Delete);
            QCOMPARE(t.texts(), QStringLiteral("||"));
            t.type(1, QStringLiteral("4"));
            t.screen.sendCommand(Commands::Clear);
            QCOMPARE(t.texts(), QStringLiteral("||"));
        });
    }

    void aCurrencyWithoutARecordConvertsAtARateOfZero()
    {
        // 5 euros are 6.25 / 0 of it, and 5 of it are 0 / 1.25 euros and 0 / 0 of the third, as printf
        // shows them; a NaN's sign is the processor's.
        ConverterBench t(std::array {Euro, Nowhere, Nowhere});
        t.bench.visit(t.screen, [&] {
            t.type(1, QStringLiteral("5"));
            QCOMPARE(t.texts(), QStringLiteral("5|inf|inf"));
            t.field(2)->setFocus();
            t.field(2)->selectAll();
            QTest::keyClicks(t.field(2), QStringLiteral("5"));
            QCOMPARE(
                t.texts().replace(QStringLiteral("-nan"), QStringLiteral("nan")), QStringLiteral("0.00000000|5|nan"));
        });
    }

    void unreadablePositionsTakeTheirDefaultsAtOnce()
    {
        // Nothing stored: all three defaults are written while the screen opens; a stored one is kept.
        for (const bool secondStored : {false, true}) {
            ConverterBench t(std::nullopt);
            if (secondStored)
                t.registry.SetDWORD(Key, L"curp2", 2);
            const std::array<std::uint32_t, 3> expected {61, secondStored ? 2u : 180u, 27};
            t.bench.visit(t.screen, [&] {
                QCOMPARE(t.stored(), expected);
                QCOMPARE(t.screen.position(1), expected[1]);
            });
        }
    }

    void leavingSavesThePositionsAndTheFirstAmountAndUpdateRatesChangesNothing()
    {
        ConverterBench t;
        t.bench.visit(t.screen, [&] {
            t.type(1, QStringLiteral("12"));
            t.screen.sendCommand(Commands::UpdateRates);
            QVERIFY(t.screen.isRunning() && !t.bench.window.isExiting());
            QCOMPARE(t.texts(), QStringLiteral("12|15.00000000|9.60000000"));
            QCOMPARE(t.screen.lastUpdateText(), QStringLiteral("Last update: Never "));
        });
        QCOMPARE(t.registry.GetString(Key, L"curval"), std::wstring(L"12"));
        QCOMPARE(t.stored(), (std::array {Euro, Dollar, Pound}));
        // The next opening starts from the saved amount and recomputes the others; the list never reads updated.
        t.bench.visit(t.screen, [&] {
            QCOMPARE(t.texts(), QStringLiteral("12|15.00000000|9.60000000"));
            QCOMPARE(t.screen.lastUpdateText(), QStringLiteral("Last update: Never "));
        });
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
            QVERIFY(preselected != -2);
            QVERIFY(painted.wait(1000));
            QCOMPARE(t.texts(), QStringLiteral("2|2.50000000|1.60000000"));
            for (const auto& [k, position] : {std::pair {0, Euro}, {1, Dollar}, {2, Pound}})
                QCOMPARE(t.screen.position(static_cast<std::size_t>(k)), position);
            QCOMPARE(t.screen.focusLabel(), QStringLiteral("EUR - Euro"));

            t.screen.sendCommand(Commands::Clear);
            t.type(3, QStringLiteral("2"));
            chooseNext(); // Euro, after the pound
            t.screen.sendCommand(Commands::ChangeCurrency);
            QCOMPARE(preselected, int(Pound));
            QCOMPARE(t.screen.position(2), Euro);
            QCOMPARE(t.screen.focusLabel(), QStringLiteral("EUR - Euro"));
            // Field 3 now holds 2 euros: 2.5 dollars, and field 1 the same 2 euros.
            QCOMPARE(t.texts(), QStringLiteral("2.00000000|2.50000000|2"));
        });
    }

    void theSecondRateLineStartsUnderTheEqualsSign()
    {
        // White text is red above anything the gradient behind it holds.
        const auto isText = [](const QImage& image, int x, int y) { return qRed(image.pixel(x, y)) > 200; };
        // Codes of different widths move the equals sign; the second line follows it.
        for (const std::uint32_t first : {Euro, Pound, Nowhere}) {
            ConverterBench t(std::array {first, Dollar, Pound});
            t.bench.visit(t.screen, [&] {
                const QImage image = t.screen.grab().toImage();
                const int height = image.height();
                // The second line begins with "=": its leftmost text pixel is the sign's left edge. The rows
                // from H - 54 hold the sign's two bars and nothing of the first line, which ends above them.
                int left = image.width();
                std::vector<int> rows;
                for (int y = height - 54; y < height - 40; ++y) {
                    for (int x = 0; x < image.width() / 2; ++x) {
                        if (isText(image, x, y)) {
                            left = std::min(left, x);
                            rows.push_back(y);
                            break;
                        }
                    }
                }
                QVERIFY(!rows.empty());
                // The first line is drawn 15 pixels higher: its equals sign covers the same pixels.
                for (const int y : rows)
                    for (int x = left - 3; x < left + 12; ++x)
                        QCOMPARE(isText(image, x, y - 15), isText(image, x, y));
            });
        }
    }
};

QTEST_MAIN(CurrencyScreenTest)
#include "CurrencyScreenTest.moc"
