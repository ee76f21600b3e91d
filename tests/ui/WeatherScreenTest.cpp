// SPDX-License-Identifier: GPL-3.0-or-later
#include "screens/weather/WeatherScreen.h"

#include "ScreenTestBench.h"
#include "app/ServicesApp.h"
#include "screens/weather/FavouritesDialog.h"
#include "ui/WideString.h"
#include "weather/ForecastTable.h"

#include <QPainter>
#include <QPushButton>
#include <QWheelEvent>

namespace {

const QRgb IconKey = qRgb(99, 135, 165); // the icons' transparent corner colour
const QRgb IconRed = qRgb(200, 30, 30);

// Three favourites, Oslo (0), Paris (1) and Rome (2), each a catalogue city on GMT+1; icons for codes 61
// and "na"; the country lists of France and of a country whose list is empty.
struct WeatherBench
{
    WeatherBench()
    {
        bench.root.write("cities.lst",
            "Test\n3\nx;Paris;France;2.35;48.85;1;0;0;0;0;0\nx;Rome;Italy;12.48;41.89;1;0;0;0;0;0\n"
            "x;Oslo;Norway;10.75;59.91;1;0;0;0;0;0\n");
        bench.root.write("cities.wet", "3\nFrance;Paris;2988507\nItaly;Rome;3169070\nNorway;Oslo;3143244\n");
        bench.root.write("mapping.cfg", "sunny@00 rain@61 >");
        // 48 x 48 icons: a red square on the transparent colour.
        QImage icon(48, 48, QImage::Format_RGB888);
        icon.fill(IconKey);
        QPainter(&icon).fillRect(16, 16, 16, 16, QColor(IconRed));
        for (const char* name : {"wiconset/rain.bmp", "wiconset/na.bmp"})
            icon.save(QString::fromStdString(bench.root.write(name, "").string()), "BMP");
        bench.root.write("weatcs/France", "Paris;2988507\r\nLyon;2996944\r\n>\nNice;2990440\n");
        bench.root.write("weatcs/Nowhere", ">\nNice;2990440\n");
        bench.favourites.loadFavouritesOnce();
    }

    // Paris's forecast: block b has code 61 and the words "Day b"; stored with the update date four days
    // after the bench's today (Thursday 1 January 2026).
    void storeParisForecast(std::uint32_t wetp)
    {
        ForecastTable table;
        for (int b = 0; b < ForecastTable::Blocks; ++b) {
            table.setField(b, 0, L"61");
            table.setField(b, 1, L"Day " + std::to_wstring(b));
        }
        bench.favourites.updateFavourite(L"Paris", L"2988507", table.joined(), L"05/01/2026:France", 1);
        bench.store(Settings::WeatherPosition, wetp);
    }

    QString condition() const { return ToQString(screen.shownDay().condition); }

    ScreenTestBench bench;
    WeatherScreen screen {bench.environment, bench.window, bench.favourites};
};

} // namespace

class WeatherScreenTest : public QObject
{
    Q_OBJECT

private slots:
    void showsTheFavouriteOfWetpDayByDayWhoseCityChangesAndNoneAfterTheLast()
    {
        WeatherBench t;
        t.storeParisForecast(1);
        const auto before = t.bench.favouriteRecords();
        t.bench.visit(t.screen, [&] {
            QCOMPARE(t.screen.cityLine(), QStringLiteral("Paris GMT+1"));
            QCOMPARE(t.screen.homeCityName(), QStringLiteral("Oslo")); // catalogue position 0
            // The icon is drawn without its corner colour: its corner shows what lies beside it.
            const QImage picture = t.bench.render();
            const QRect icon = t.screen.iconRect().translated(t.screen.mapTo(&t.bench.window, QPoint(0, 0)));
            QCOMPARE(picture.pixel(icon.center()), IconRed);
            QCOMPARE(picture.pixel(icon.topLeft() + QPoint(1, 1)), picture.pixel(icon.topRight() + QPoint(2, 1)));
            QVERIFY(picture.pixel(icon.topLeft() + QPoint(1, 1)) != IconKey);
            // Thursday 1 January 2026 on; Monday reads "Done". Right from day 5 wraps to 1, left from 1 to 5.
            const char* weekdays[] = {"Thu", "Fri", "Sat", "Sun", "Done", "Thu"};
            for (int step = 0; step < 6; ++step, t.bench.press(Qt::Key_Right)) {
                QCOMPARE(t.screen.currentDay(), step % 5 + 1);
                QCOMPARE(t.condition(), QStringLiteral("Day %1").arg(step % 5));
                QCOMPARE(t.screen.shownWeekday(), QString::fromLatin1(weekdays[step]));
                QCOMPARE(child<Spinner>(t.screen, "daySpinner")->currentText(), QString::number(step % 5 + 1));
            }
            t.bench.press(Qt::Key_Left);
            t.bench.press(Qt::Key_Left);
            QCOMPARE(t.condition(), QStringLiteral("Day 4"));
            // "Update Forecast" changes nothing.
            const ForecastDayTexts day = t.screen.shownDay();
            t.screen.softKeys()->chooseItem(Commands::UpdateForecast);
            QCOMPARE(t.bench.window.topScreen(), &t.screen);
            QCOMPARE(t.screen.currentDay(), 5);
            QCOMPARE(t.screen.shownDay(), day);
            QCOMPARE(t.bench.favouriteRecords(), before);
            t.bench.press(Qt::Key_3); // a digit jumps to that day, the one the spinner then shows
            QCOMPARE(t.condition(), QStringLiteral("Day 2"));
            // Two notches of the wheel in one event are two steps back, for the spinner and the day alike.
            auto* days = child<Spinner>(t.screen, "daySpinner");
            QWheelEvent wheel(QPointF(5, 5), days->mapToGlobal(QPointF(5, 5)), QPoint(), QPoint(0, 240), Qt::NoButton,
                Qt::NoModifier, Qt::NoScrollPhase, false);
            QApplication::sendEvent(days, &wheel);
            QCOMPARE(days->currentText(), QStringLiteral("1"));
            QCOMPARE(t.screen.currentDay(), 1);
            t.bench.whenNextShown(t.screen, [&](Screen& shown) {
                auto& dialog = static_cast<FavouritesDialog&>(shown);
                QCOMPARE(dialog.currentCountry(), L"France"); // Paris, preselected
                t.bench.press(Qt::Key_Right);
                QCOMPARE(dialog.currentCountry(), L"Italy");
                dialog.sendCommand(Commands::Done);
            });
            t.bench.press(Qt::Key_Return); // the action key, as "Change City"
            QCOMPARE(t.screen.favouriteName(), L"Rome");
            QCOMPARE(t.screen.currentDay(), 1);
            QCOMPARE(t.screen.shownDay(), ForecastDayTexts()); // Rome has no forecast yet, and no icon
            QVERIFY(t.screen.iconRect().isNull());
        });
        QCOMPARE(t.bench.stored(Settings::WeatherPosition), 2u);
        // A position past the favourites is told (the only box), and the screen closes.
        t.bench.store(Settings::WeatherPosition, 3);
        bool driven = false;
        t.bench.run(t.screen, [&] { driven = true; });
        QVERIFY(!driven && !t.screen.isRunning());
        QCOMPARE(t.bench.boxes.shown.size(), std::size_t(1));
        const MessageBox::Request& told = t.bench.boxes.shown[0];
        QCOMPARE(told.text, QStringLiteral("Sorry, Weather Forecast is not available for this City."));
        QCOMPARE(told.caption, QStringLiteral("Wanderkit"));
        QCOMPARE(told.icon, QMessageBox::Information);
    }

    void openedFromAnotherScreenTheCityCannotChange()
    {
        WeatherBench t;
        t.storeParisForecast(2);
        t.screen.setEntryCity(L"Paris");
        t.bench.visit(t.screen, [&] {
            QCOMPARE(t.condition(), QStringLiteral("Day 0"));
            QVERIFY(!t.screen.softKeys()->isItemEnabled(Commands::ChangeCity));
            QVERIFY(!t.screen.softKeys()->isKeyEnabled(Commands::Services));
            t.bench.press(Qt::Key_Return); // the action key does nothing
            t.screen.sendCommand(Commands::ChangeCity);
            QCOMPARE(t.bench.window.topScreen(), &t.screen);
        });
        // The launcher clears the mode before it opens the screen: "wetp" counts again.
        ServicesApp launcher(t.bench.environment, t.bench.window);
        auto* weather = qobject_cast<WeatherScreen*>(launcher.serviceScreen(1));
        weather->setEntryCity(L"Paris");
        bool shown = false;
        t.bench.whenNextShown(launcher, [&](Screen& screen) {
            shown = &screen == weather && !weather->entryMode() && weather->favouriteName() == L"Rome"
                && weather->softKeys()->isKeyEnabled(Commands::Services);
            screen.sendCommand(Commands::Services);
        });
        t.bench.run(launcher, [&] {
            t.bench.press(Qt::Key_Right);
            t.bench.press(Qt::Key_Return);
            t.bench.window.topSoftKeys()->chooseItem(Commands::Exit);
        });
        QVERIFY(shown);
    }

    void aFavouriteChosenInTheDialogIsKeptWhenTheWindowIsClosedOverIt()
    {
        WeatherBench t;
        t.storeParisForecast(1);
        t.bench.whenNextShown(t.screen, [&](Screen&) {
            t.bench.press(Qt::Key_Right); // Rome
            t.bench.window.close();
        });
        t.bench.run(t.screen, [&] { t.screen.sendCommand(Commands::ChangeCity); });
        QCOMPARE(t.bench.stored(Settings::WeatherPosition), 2u);
        QVERIFY(t.bench.boxes.shown.empty());
    }

    // ---- The favourites dialog.
    void removeAsksFirstAndRemovingTheLastSelectsNothingAndTheAddViewAddsFromTheCountryLists()
    {
        WeatherBench t;
        FavouritesDialog dialog(t.bench.environment, t.bench.window, t.bench.favourites);
        dialog.setCurrentFavourite(2);
        t.bench.visit(dialog, [&] {
            auto* list = child<Spinner>(dialog, "favouriteSpinner");
            auto* remove = child<QPushButton>(dialog, "removePushButton");
            t.bench.boxes.answer = QMessageBox::No;
            remove->click();
            QCOMPARE(t.bench.favourites.count(), 3);
            const MessageBox::Request asked = t.bench.boxes.shown.at(0);
            QCOMPARE(asked.text,
                QStringLiteral(
                    "Are you sure you want to remove the following city from Favorites List ?\nRome, Italy"));
            QCOMPARE(asked.caption, QStringLiteral("Wanderkit"));
            QCOMPARE(asked.buttons, QMessageBox::Yes | QMessageBox::No);
            QCOMPARE(asked.icon, QMessageBox::Question);
            t.bench.boxes.answer = QMessageBox::Yes;
            remove->click(); // Rome, the last of the list
            QCOMPARE(list->items(), (QStringList {QStringLiteral("Oslo"), QStringLiteral("Paris")}));
            QCOMPARE(list->currentIndex(), -1);
            QCOMPARE(dialog.currentFavourite(), -1);
            remove->click(); // nothing selected: asked, nothing removed
            QCOMPARE(t.bench.favourites.count(), 2);
            list->setCurrentIndex(0);
            remove->click(); // Oslo: Paris moves up and stays selected
            QCOMPARE(dialog.currentCountry(), L"France");

            auto* countries = child<Spinner>(dialog, "countrySpinner");
            auto* cities = child<Spinner>(dialog, "citySpinner");
            auto* add = child<QPushButton>(dialog, "addPushButton");
            QVERIFY(!dialog.addViewShown() && !countries->isVisible());
            dialog.sendCommand(Commands::Add);
            QVERIFY(dialog.addViewShown() && countries->isVisible());
            QVERIFY(!dialog.softKeys()->isKeyEnabled(Commands::Add));
            QCOMPARE(countries->items(), (QStringList {QStringLiteral("France"), QStringLiteral("Nowhere")}));
            // Up to the line holding ">", carriage returns kept out of the names.
            QCOMPARE(cities->items(), (QStringList {QStringLiteral("Paris"), QStringLiteral("Lyon")}));
            cities->setFocus();
            t.bench.press(Qt::Key_Right); // Lyon
            add->click();
            add->setFocus();
            t.bench.press(Qt::Key_Return); // the action key on ADD; no duplicate check: a second record
            QCOMPARE(list->currentText(), QStringLiteral("Lyon"));
            QCOMPARE(dialog.currentFavourite(), 0);
            countries->setFocus();
            t.bench.press(Qt::Key_Right);
            QCOMPARE(cities->count(), 0); // the list of "Nowhere" starts with ">"
            add->click();
        });
        const std::vector<std::wstring> favourites {
            L"Lyon|2996944|01/01/2000|France", L"Lyon|2996944|01/01/2000|France", L"Paris|2988507|01/01/2000|France"};
        QCOMPARE(t.bench.favouriteRecords(), favourites);
    }
};

QTEST_MAIN(WeatherScreenTest)
#include "WeatherScreenTest.moc"
