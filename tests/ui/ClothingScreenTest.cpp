// SPDX-License-Identifier: GPL-3.0-or-later
#include "screens/clothing/ClothingScreen.h"

#include "ScreenTestBench.h"
#include "reference/ClothingSizes.h"
#include "settings/SettingsTable.h"
#include "ui/Commands.h"
#include "ui/SoftKeyBar.h"
#include "ui/Spinner.h"

#include <QTest>

#include <optional>

namespace {

QStringList list(std::initializer_list<const char*> texts)
{
    QStringList result;
    for (const char* text : texts)
        result << QString::fromUtf8(text);
    return result;
}

QString fromWide(std::wstring_view text)
{
    return QString::fromWCharArray(text.data(), static_cast<qsizetype>(text.size()));
}

Spinner* spinner(ClothingScreen& screen, const char* name)
{
    return screen.findChild<Spinner*>(QString::fromUtf8(name));
}

// Runs `screen`, lets `check` drive it, then ends it (also when a check has failed).
void visit(ScreenTestBench& bench, Screen& screen, const std::function<void()>& check)
{
    bench.run(screen, [&] {
        check();
        screen.endScreen();
    });
}

void press(ScreenTestBench& bench, Qt::Key key)
{
    QTest::keyClick(bench.window.focusWidget(), key);
}

// Stores "who" and "cloth"; nothing stored for an empty value.
void store(ScreenTestBench& bench, std::optional<std::uint32_t> who, std::optional<std::uint32_t> cloth)
{
    RegistrySettings settings(*bench.settings);
    if (who)
        WriteSetting(settings, Settings::ClothesWho, *who);
    if (cloth)
        WriteSetting(settings, Settings::ClothesKind, *cloth);
}

constexpr std::uint32_t NotStored = 0xFFFFFFFFu;

std::uint32_t stored(ScreenTestBench& bench, const DwordSetting& setting)
{
    RegistrySettings settings(*bench.settings);
    const std::uint32_t value = settings.GetDWORD(setting.subkey, setting.name);
    return settings.Status() == RegistrySettings::Read ? value : NotStored;
}

} // namespace

class ClothingScreenTest : public QObject
{
    Q_OBJECT

private slots:
    void eachWearerListsItsGarmentsAndSelectsTheFirst()
    {
        const std::vector<QStringList> garments {
            list({"Shirts and Sweaters", "Shoes", "Suits", "Trousers"}),
            list({"Bras", "Dresses", "Shirts and Sweaters", "Shoes", "Trousers"}),
            list({"Shirts and Sweaters", "Shoes", "Trousers"}),
        };
        ScreenTestBench bench;
        ClothingScreen screen(bench.environment, bench.window);
        store(bench, 0, 3);
        visit(bench, screen, [&] {
            Spinner* wearer = spinner(screen, "wearerSpinner");
            Spinner* garment = spinner(screen, "garmentSpinner");
            QCOMPARE(wearer->items(), list({"Men", "Women", "Children"}));
            QCOMPARE(garment->currentIndex(), 3);
            wearer->setFocus();
            for (int i = 0; i < 3; ++i) {
                QCOMPARE(wearer->currentIndex(), i);
                QCOMPARE(garment->items(), garments[static_cast<std::size_t>(i)]);
                QCOMPARE(garment->currentIndex(), i == 0 ? 3 : 0);
                press(bench, Qt::Key_Right);
            }
            // The wearer list does not wrap: Children stays, with its garments.
            QCOMPARE(wearer->currentIndex(), 2);
            QCOMPARE(garment->items(), garments[2]);
        });
    }

    void eachChoiceShowsItsTitleAndRows()
    {
        struct Case
        {
            int wearer;
            int garment;
            const char* title;
        };
        const Case cases[] = {
            {0, 0, "Men's Shirts"},
            {0, 1, "Men's Shoes"},
            {0, 2, "Men's Suits"},
            {0, 3, "Men's Trousers"},
            {1, 0, "Women's Bra Sizes"},
            {1, 1, "Women's Dresses"},
            {1, 2, "W's Blouses/Sweaters"},
            {1, 3, "Women's Shoes"},
            {1, 4, "Women's Trousers"},
            {2, 0, "Children's Clothing"},
            {2, 1, "Children's Shoes"},
            {2, 2, "Children's Trousers"},
        };
        ScreenTestBench bench;
        ClothingScreen screen(bench.environment, bench.window);
        for (const Case& c : cases) {
            store(bench, static_cast<std::uint32_t>(c.wearer), static_cast<std::uint32_t>(c.garment));
            visit(bench, screen, [&] {
                QCOMPARE(screen.tableTitle(), QString::fromUtf8(c.title));
                QStringList rows;
                for (const std::wstring_view row : ClothingSizes::Find(c.wearer, c.garment)->rows)
                    rows << fromWide(row);
                QCOMPARE(screen.shownRows(), rows);
            });
        }
    }

    void shiftStepsHideTenCharactersEachUpToTwenty()
    {
        struct Step
        {
            Qt::Key key;
            int shift;
        };
        const Step steps[] = {
            {Qt::Key_Right, 1},
            {Qt::Key_Right, 2},
            {Qt::Key_Right, 2},
            {Qt::Key_Left, 1},
            {Qt::Key_Left, 0},
            {Qt::Key_Left, 0},
            {Qt::Key_Right, 1},
        };
        ScreenTestBench bench;
        ClothingScreen screen(bench.environment, bench.window);
        visit(bench, screen, [&] {
            const QStringList unshifted = screen.shownRows();
            QCOMPARE(bench.window.focusWidget(), spinner(screen, "shiftSpinner"));
            QCOMPARE(unshifted.at(0), QStringLiteral("USA       14  14.5   15   15.5   16  16.5  17  17.5"));
            for (const Step& step : steps) {
                press(bench, step.key);
                QCOMPARE(screen.shift(), step.shift);
                for (int row = 0; row < 4; ++row)
                    QCOMPARE(screen.shownRows().at(row), unshifted.at(row).mid(10 * step.shift));
            }
            QCOMPARE(screen.shownRows().at(0), QStringLiteral("14  14.5   15   15.5   16  16.5  17  17.5"));
        });
        // A new visit starts unscrolled.
        visit(bench, screen, [&] { QCOMPARE(screen.shift(), 0); });
    }

    void storedChoicesAreReadWithTheirDefaults()
    {
        struct Case
        {
            std::optional<std::uint32_t> who;
            std::optional<std::uint32_t> cloth;
            int wearer;
            int garment;
        };
        const Case cases[] = {
            {std::nullopt, std::nullopt, 0, 0}, // a fresh device
            {1, std::nullopt, 1, 0},
            {1, 3, 1, 3},
            {2, 2, 2, 2},
            {2, 4, 2, 0}, // Children have three garments
            {3, 1, 0, 1}, // no fourth wearer
            {70000, 70000, 0, 0},
        };
        for (const Case& c : cases) {
            ScreenTestBench bench;
            ClothingScreen screen(bench.environment, bench.window);
            store(bench, c.who, c.cloth);
            visit(bench, screen, [&] {
                QCOMPARE(spinner(screen, "wearerSpinner")->currentIndex(), c.wearer);
                QCOMPARE(spinner(screen, "garmentSpinner")->currentIndex(), c.garment);
                QVERIFY(!screen.tableTitle().isEmpty());
                // Reading writes no default back.
                QCOMPARE(stored(bench, Settings::ClothesWho), c.who.value_or(NotStored));
                QCOMPARE(stored(bench, Settings::ClothesKind), c.cloth.value_or(NotStored));
            });
            // Leaving writes what was shown.
            QCOMPARE(stored(bench, Settings::ClothesWho), static_cast<std::uint32_t>(c.wearer));
            QCOMPARE(stored(bench, Settings::ClothesKind), static_cast<std::uint32_t>(c.garment));
        }
    }

    void choicesAreWrittenOnLeavingAndShownOnTheNextVisit()
    {
        ScreenTestBench bench;
        ClothingScreen screen(bench.environment, bench.window);
        visit(bench, screen, [&] {
            press(bench, Qt::Key_Down); // from the shift spinner to the wearer
            QCOMPARE(bench.window.focusWidget(), spinner(screen, "wearerSpinner"));
            press(bench, Qt::Key_Right);
            press(bench, Qt::Key_Down);
            QCOMPARE(bench.window.focusWidget(), spinner(screen, "garmentSpinner"));
            press(bench, Qt::Key_Right);
            press(bench, Qt::Key_Right);
            QCOMPARE(screen.tableTitle(), QStringLiteral("W's Blouses/Sweaters"));
            press(bench, Qt::Key_Down); // round to the shift spinner, and back up
            QCOMPARE(bench.window.focusWidget(), spinner(screen, "shiftSpinner"));
            press(bench, Qt::Key_Up);
            press(bench, Qt::Key_Up);
            QCOMPARE(bench.window.focusWidget(), spinner(screen, "wearerSpinner"));
            // Nothing to undo or clear here.
            screen.softKeys()->chooseItem(Commands::Undo);
            screen.softKeys()->chooseItem(Commands::Clear);
            QVERIFY(screen.isRunning());
            QCOMPARE(screen.tableTitle(), QStringLiteral("W's Blouses/Sweaters"));
            press(bench, Qt::Key_F1);
        });
        QCOMPARE(stored(bench, Settings::ClothesWho), 1u);
        QCOMPARE(stored(bench, Settings::ClothesKind), 2u);
        visit(bench, screen, [&] { QCOMPARE(screen.tableTitle(), QStringLiteral("W's Blouses/Sweaters")); });
    }

    void spinnersFollowTheWorkAreaWidth()
    {
        ScreenTestBench bench;
        ClothingScreen screen(bench.environment, bench.window);
        visit(bench, screen, [&] {
            for (const int width : {240, 268}) {
                QCOMPARE(spinner(screen, "wearerSpinner")->geometry(), QRect(6, 31, width - 17, 24));
                QCOMPARE(spinner(screen, "garmentSpinner")->geometry(), QRect(6, 61, width - 17, 24));
                QCOMPARE(spinner(screen, "shiftSpinner")->geometry(), QRect(width - 25, 10, 0, 0));
                bench.window.rotate();
            }
        });
    }
};

QTEST_MAIN(ClothingScreenTest)
#include "ClothingScreenTest.moc"
