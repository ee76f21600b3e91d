// SPDX-License-Identifier: GPL-3.0-or-later
#include "screens/currency/CurrencyScreen.h"

#include "ScreenTestBench.h"
#include "screens/select/SelectDialog.h"
#include "settings/SettingsTable.h"
#include "ui/Commands.h"

#include <QLineEdit>
#include <QSignalSpy>
#include <QTest>

#include <tuple>

namespace {

// In name order: British Pound 0, Euro 1, Japanese Yen 2, US Dollar 3; rates in US dollars per unit.
constexpr const char* Currencies
    = "4\nUSD_US Dollar_1#EUR_Euro_1.25#JPY_Japanese Yen_0.0078125#GBP_British Pound_1.5625#";
constexpr std::uint32_t Pound = 0;
constexpr std::uint32_t Euro = 1;
constexpr std::uint32_t Dollar = 3;
constexpr std::uint32_t Nowhere = 99; // no currency: empty texts, a rate of 0
const wchar_t* const Key = L"Wanderkit\\currencies";

// A converter over the four fixture currencies, the launcher's list read from the device root.
struct ConverterBench
{
    explicit ConverterBench(std::optional<std::array<std::uint32_t, 3>> positions)
    {
        // Focus events reach the fields only in the active window.
        bench.window.activateWindow();
        active = QTest::qWaitForWindowActive(&bench.window);
        bench.root.write("currs.lst", Currencies);
        initial = ReadInitialCurrencies(bench.paths, bench.messages);
        if (positions) {
            for (std::size_t k = 0; k < 3; ++k)
                registry.SetDWORD(Key, k == 0 ? L"curp" : k == 1 ? L"curp2" : L"curp3", (*positions)[k]);
        }
    }

    QLineEdit* field(int k) { return screen.findChild<QLineEdit*>(QStringLiteral("amount%1NumericEdit").arg(k)); }
    QStringList texts() { return {field(1)->text(), field(2)->text(), field(3)->text()}; }
    void type(int k, const QString& text)
    {
        field(k)->setFocus();
        QTest::keyClicks(field(k), text);
    }

    ScreenTestBench bench;
    bool active = false;
    RegistrySettings registry {bench.settings};
    InitialCurrencyList initial;
    CurrencyScreen screen {bench.environment, bench.window, initial};
};

QStringList lines(std::initializer_list<const char*> texts)
{
    QStringList list;
    for (const char* text : texts)
        list << QString::fromUtf8(text);
    return list;
}

// Where white text lies in one row of the screen: red above anything the gradient behind it holds.
bool isText(const QImage& image, int x, int y)
{
    return qRed(image.pixel(x, y)) > 200;
}

} // namespace

class CurrencyScreenTest : public QObject
{
    Q_OBJECT

private slots:
    void typingConvertsFromTheFocusedFieldOnly()
    {
        ConverterBench t(std::array {Euro, Dollar, Pound});
        QVERIFY(t.active);
        t.bench.visit(t.screen, [&] {
            // 10 dollars: 10 / 1.25 euros and 10 / 1.5625 pounds.
            QSignalSpy rewritten(t.field(2), &QLineEdit::textChanged);
            t.type(2, QStringLiteral("10"));
            QCOMPARE(t.texts(), lines({"8.00000000", "10", "6.40000000"}));
            QCOMPARE(rewritten.count(), 2); // one per key: field 2 is never written back
            QCOMPARE(t.screen.focusLabel(), QStringLiteral("USD - US Dollar"));
            // Field 2 is (55, 80) to (200, 105); the frame is 2 pixels wider on each side.
            QCOMPARE(t.screen.focusFrame(), QRect(QPoint(53, 78), QPoint(201, 106)));
            // The Back key erases the last character: 1 dollar.
            t.bench.press(Qt::Key_Escape);
            QCOMPARE(t.texts(), lines({"0.80000000", "1", "0.64000000"}));
        });
    }

    void anEmptyFieldEmptiesTheOthers()
    {
        ConverterBench t(std::array {Euro, Dollar, Pound});
        t.bench.visit(t.screen, [&] {
            t.type(3, QStringLiteral("1"));
            QCOMPARE(t.texts(), lines({"1.25000000", "1.56250000", "1"}));
            t.field(3)->selectAll();
            QTest::keyClick(t.field(3), Qt::Key_Delete);
            QCOMPARE(t.texts(), lines({"", "", ""}));

            t.type(1, QStringLiteral("4"));
            t.screen.sendCommand(Commands::Clear);
            QCOMPARE(t.texts(), lines({"", "", ""}));
        });
    }

    void resultsShowEightDecimalsAndAZeroRateAsPrintfDoes()
    {
        // The three currencies, what is typed into field 1, and what fields 2 and 3 show.
        using Case = std::tuple<std::array<std::uint32_t, 3>, const char*, const char*, const char*>;
        const Case cases[] = {
            {{Euro, Euro, Euro}, "1", "1.00000000", "1.00000000"},
            // A currency with no record has a rate of 0: 1.25 / 0 and 0 / 0 (the signs are the conversion's).
            {{Euro, Nowhere, Dollar}, "5", "inf", "6.25000000"},
            {{Nowhere, Nowhere, Dollar}, "5", "nan", "0.00000000"},
        };
        for (const auto& [positions, typed, second, third] : cases) {
            ConverterBench t(positions);
            t.bench.visit(t.screen, [&] {
                t.type(1, QString::fromUtf8(typed));
                // printf shows a NaN's sign as the processor left it.
                const QString shown = t.field(2)->text();
                QCOMPARE(shown == QStringLiteral("-nan") ? QStringLiteral("nan") : shown, QString::fromUtf8(second));
                QCOMPARE(t.field(3)->text(), QString::fromUtf8(third));
            });
        }
    }

    void unreadablePositionsTakeTheirDefaultsAtOnce()
    {
        // Nothing stored: all three defaults are written while the screen opens.
        ConverterBench fresh(std::nullopt);
        fresh.bench.visit(fresh.screen, [&] {
            QCOMPARE(fresh.registry.GetDWORD(Key, L"curp"), 61u);
            QCOMPARE(fresh.registry.GetDWORD(Key, L"curp2"), 180u);
            QCOMPARE(fresh.registry.GetDWORD(Key, L"curp3"), 27u);
            QCOMPARE(fresh.screen.position(1), 180u);
        });

        // Only "curp2" stored: the other two are written, "curp2" is kept.
        ConverterBench some(std::nullopt);
        some.registry.SetDWORD(Key, L"curp2", 2);
        some.bench.visit(some.screen, [&] {
            QCOMPARE(some.registry.GetDWORD(Key, L"curp"), 61u);
            QCOMPARE(some.registry.GetDWORD(Key, L"curp2"), 2u);
            QCOMPARE(some.registry.GetDWORD(Key, L"curp3"), 27u);
        });
    }

    void updateRatesChangesNothingAndTheListNeverReadsUpdated()
    {
        ConverterBench t(std::array {Euro, Dollar, Pound});
        t.bench.visit(t.screen, [&] {
            t.type(1, QStringLiteral("3"));
            const QStringList before = t.texts();
            t.screen.sendCommand(Commands::UpdateRates);
            QCOMPARE(t.texts(), before);
            QCOMPARE(t.screen.lastUpdateText(), QStringLiteral("Last update: Never "));
        });
        QCOMPARE(t.bench.window.isExiting(), false);
        t.bench.visit(t.screen, [&] { QCOMPARE(t.screen.lastUpdateText(), QStringLiteral("Last update: Never ")); });
    }

    void leavingSavesThePositionsAndTheFirstAmount()
    {
        ConverterBench t(std::array {Euro, Dollar, Pound});
        t.bench.visit(t.screen, [&] { t.type(1, QStringLiteral("12")); });
        QCOMPARE(t.registry.GetString(Key, L"curval"), std::wstring(L"12"));
        QCOMPARE(t.registry.GetDWORD(Key, L"curp3"), Pound);
        // The next opening starts from the saved amount and recomputes the others.
        t.bench.visit(t.screen, [&] { QCOMPARE(t.texts(), lines({"12", "15.00000000", "9.60000000"})); });
    }

    void changingACurrencyTakesTheDialogsIndex()
    {
        ConverterBench t(std::array {Euro, Dollar, Pound});
        t.bench.visit(t.screen, [&] {
            t.type(3, QStringLiteral("2"));
            int preselected = -2;
            t.bench.whenNextShown(t.screen, [&](Screen& shown) {
                preselected = static_cast<SelectDialog&>(shown).selection();
                t.bench.press(Qt::Key_Down); // Euro
                shown.sendCommand(Commands::Done);
            });
            t.screen.sendCommand(Commands::ChangeCurrency);
            QCOMPARE(preselected, static_cast<int>(Pound));
            QCOMPARE(t.screen.position(2), Euro);
            QCOMPARE(t.screen.focusLabel(), QStringLiteral("EUR - Euro"));
            // Field 3 now holds 2 euros: 2.5 dollars, and field 1 the same 2 euros.
            QCOMPARE(t.texts(), lines({"2.00000000", "2.50000000", "2"}));
        });
    }

    void changingWithNoFieldFocusedOnlyRepaints()
    {
        ConverterBench t(std::array {Euro, Dollar, Pound});
        t.bench.visit(t.screen, [&] {
            t.type(1, QStringLiteral("2"));
            const QStringList before = t.texts();
            t.screen.setFocus();
            bool opened = false;
            t.bench.whenNextShown(t.screen, [&](Screen& shown) {
                opened = true;
                t.bench.press(Qt::Key_Down);
                shown.sendCommand(Commands::Done);
            });
            QSignalSpy painted(&t.screen, &Screen::painted);
            t.bench.press(Qt::Key_Return); // the action key changes a currency too
            QVERIFY(opened);
            QVERIFY(painted.wait(1000));
            QCOMPARE(t.texts(), before);
            for (const auto& [k, position] : {std::pair {0, Euro}, {1, Dollar}, {2, Pound}})
                QCOMPARE(t.screen.position(static_cast<std::size_t>(k)), position);
            QCOMPARE(t.screen.focusLabel(), QStringLiteral("EUR - Euro"));
        });
    }

    void theSecondRateLineStartsUnderTheEqualsSign()
    {
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
                for (const int y : rows) {
                    for (int x = left - 3; x < left + 12; ++x)
                        QCOMPARE(isText(image, x, y - 15), isText(image, x, y));
                }
            });
        }
    }
};

QTEST_MAIN(CurrencyScreenTest)
#include "CurrencyScreenTest.moc"
