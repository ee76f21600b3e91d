// SPDX-License-Identifier: GPL-3.0-or-later
// The screen framework: how screens run and end, the keys, the background, the pointer and the window's fit.
// Each gesture is played on one fresh device and its keys on another: both end in the same state and picture.
#include "CityFixture.h"
#include "ScreenTestBench.h"
#include "app/ServicesApp.h"
#include "screens/select/SelectDialog.h"
#include "screens/worldclock/WorldClockScreen.h"
#include "ui/NumericEdit.h"
#include "ui/Painting.h"
#include "ui/StringIds.h"
#include "ui/WindowFit.h"

#include <QMenu>
#include <QScreen>

#include <algorithm>
#include <tuple>

enum class Kind { Launcher, Clocks, Select };
Q_DECLARE_METATYPE(Kind)

namespace {

// A screen that records which hooks ran, for checking the framework's order and counts.
class ProbeScreen final : public Screen
{
public:
    ProbeScreen(ScreenEnvironment& environment, DeviceWindow& window, MenuBarId menuBar, const char* name)
        : Screen(environment, window, menuBar, QString::fromLatin1(name))
    { }

    int initialised = 0, destroyed = 0, ticks = 0;
    QList<QSize> layouts;
    QList<int> commands;
    std::function<void()> onInitialise = [] {};
    std::function<void()> onDestroy = [] {};
    using Screen::addLabel, Screen::place, Screen::setBackgroundPicture, Screen::setTitleBand, Screen::startScreenTimer;

protected:
    void initialise() override { ++initialised, onInitialise(); }
    void layout(int width, int height) override { layouts.append(QSize(width, height)); }
    void destroyWork() override { ++destroyed, onDestroy(); }
    void timerTick(int) override { ++ticks; }
    void command(int id) override { commands.append(id), Screen::command(id); }
};

constexpr int BarTop = 268; // the soft-key bar lies under the 240 x 268 work area

// Presses at `from`, moves to `to` in four steps and lifts there, by finger or mouse, in `window`'s
// pixels. The widget under the press gets the whole mouse run, as the mouse grab does.
void swipe(bool touch, QWidget& window, QPoint from, QPoint to)
{
    static QPointingDevice* const touchscreen = QTest::createTouchDevice();
    const QPointer<QWidget> grab = window.childAt(from) ? window.childAt(from) : &window;
    for (int i = 0; i <= 5; ++i) { // press, four moves, release
        const QPoint at = from + (to - from) * std::min(i, 4) / 4;
        const bool press = i == 0, release = i == 5;
        if (touch) {
            auto event = QTest::touchEvent(&window, touchscreen);
            press ? event.press(0, at, &window) : release ? event.release(0, at, &window) : event.move(0, at, &window);
        } else if (grab) {
            const auto action = press ? QTest::MousePress : release ? QTest::MouseRelease : QTest::MouseMove;
            QTest::mouseEvent(action, grab, press || release ? Qt::LeftButton : Qt::NoButton, Qt::NoModifier,
                grab->mapFrom(&window, at));
        }
    }
}

// What a device shows and holds after a gesture or its keys.
struct Outcome
{
    int index = -1; // the launcher's selection, the clock focus, the list's item
    QStringList opened; // screens shown meanwhile; the Select dialog's panel
    std::size_t boxes = 0;
    QImage picture;

    bool operator==(const Outcome&) const = default;
};

// Plays `drive` on a fresh device showing the launcher, World Clocks on the fixture catalogue or the
// Select dialog, in an active window (touch makes it active). A screen shown over it is recorded and ended
// at once, so that a gesture that opens one returns.
Outcome play(Kind kind, const std::function<void(ScreenTestBench&)>& drive)
{
    ScreenTestBench bench;
    CityFixture::write(bench.root, {});
    bench.loadStores();
    ServicesApp launcher(bench.environment, bench.window);
    WorldClockScreen clocks(bench.environment, bench.window, bench.cities, bench.favourites);
    SelectDialog select(bench.environment, bench.window);
    select.setSelection(5);
    Screen* const screens[] = {&launcher, &clocks, &select};
    Screen& screen = *screens[static_cast<int>(kind)];
    Outcome outcome;
    bench.whenNextShown(screen, [&outcome](Screen& shown) {
        outcome.opened << shown.screenName();
        shown.endScreen();
    });
    bench.run(screen, [&] {
        bench.window.activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(&bench.window));
        drive(bench);
        const char* list = kind == Kind::Select ? "choiceSpinner" : "focusSpinner";
        outcome.index = kind == Kind::Launcher ? launcher.selection() : child<Spinner>(screen, list)->currentIndex();
        if (kind == Kind::Select)
            outcome.opened << select.panelLines();
        outcome.boxes = bench.boxes.shown.size();
        outcome.picture = bench.render();
        screen.endScreen();
    });
    return outcome;
}

} // namespace

class ScreenFrameworkTest : public QObject
{
    Q_OBJECT

private slots:
    void servicesEndsTheScreenAndRunsItsDestroyWorkOnceAndItsTimersStop()
    {
        ScreenTestBench bench;
        ProbeScreen screen(bench.environment, bench.window, MenuBarId::WorldClocks, "probe");
        for (int visit = 1; visit <= 3; ++visit) {
            QCOMPARE(bench.run(screen, [&] { bench.window.topSoftKeys()->pressLeft(); }), 0);
            QCOMPARE(screen.initialised, visit);
            QCOMPARE(screen.destroyed, visit);
            QVERIFY(!screen.isRunning());
        }
        QCOMPARE(screen.layouts.first(), QSize(240, 268));
        // Its timers tick only while it runs.
        bench.visit(screen, [&] {
            screen.startScreenTimer(1, 10);
            bench.advance(25);
            QCOMPARE(screen.ticks, 2);
        });
        bench.advance(50);
        QCOMPARE(screen.ticks, 2);
    }

    void exitFromANestedDialogUnwindsEveryRunInnermostFirst_data()
    {
        QTest::addColumn<bool>("closeWindow");
        QTest::newRow("Exit") << false;
        QTest::newRow("the window closed") << true;
    }

    void exitFromANestedDialogUnwindsEveryRunInnermostFirst()
    {
        QFETCH(bool, closeWindow);
        ScreenTestBench bench;
        ProbeScreen outer(bench.environment, bench.window, MenuBarId::Launcher, "outer");
        ProbeScreen middle(bench.environment, bench.window, MenuBarId::WorldClocks, "middle");
        ProbeScreen inner(bench.environment, bench.window, MenuBarId::Converter, "inner");
        QStringList order;
        for (ProbeScreen* screen : {&outer, &middle, &inner})
            screen->onDestroy = [&order, screen] { order << screen->screenName(); };
        bool afterNested = false;
        bench.run(outer, [&] {
            bench.run(middle, [&] {
                bench.run(inner, [&] {
                    closeWindow ? void(bench.window.close()) : bench.window.topSoftKeys()->chooseItem(Commands::Exit);
                    if (!bench.window.isExiting()) {
                        bench.window.exitAll(); // so that the test ends
                        QFAIL("the program goes on");
                    }
                });
                afterNested = true;
                // Nothing opens while the program is ending.
                QVERIFY(bench.window.isExiting());
                QCOMPARE(bench.window.run(inner), 0);
                QCOMPARE(inner.initialised, 1);
            });
        });
        QVERIFY(afterNested);
        QCOMPARE(inner.commands, closeWindow ? QList<int> {} : QList<int> {Commands::Exit});
        QCOMPARE(order, (QStringList {QStringLiteral("inner"), QStringLiteral("middle"), QStringLiteral("outer")}));
        QVERIFY(!bench.window.isExiting());
    }

    // Greyed soft keys and items send nothing; the soft keys are F1/F2 and answer the finger.
    void softKeysSendTheirCommandsUnlessGreyed()
    {
        ScreenTestBench bench;
        ProbeScreen screen(bench.environment, bench.window, MenuBarId::WorldClocks, "probe");
        bench.run(screen, [&] {
            SoftKeyBar* keys = screen.softKeys();
            keys->setItemEnabled(Commands::TwelveHourClocks, false);
            keys->chooseItem(Commands::TwelveHourClocks);
            keys->setKeyEnabled(Commands::Services, false);
            QTest::keyClick(&screen, Qt::Key_F1);
            QTest::keyClick(&screen, Qt::Key_Return);
            keys->setKeyEnabled(Commands::Services, true);
            swipe(false, bench.window, {200, BarTop + 13}, {200, BarTop + 13}); // "Menu", as F2
            QTRY_VERIFY(keys->popup()->isVisible());
            keys->popup()->close();
            swipe(false, bench.window, {40, BarTop + 13}, {40, BarTop + 13}); // "Services", as F1
        });
        QCOMPARE(screen.commands, (QList<int> {Commands::Ok, Commands::Services}));
        // F2 presses a right key that is a plain key ("Add"), not a menu.
        ProbeScreen dialog(bench.environment, bench.window, MenuBarId::Favourites, "dialog");
        bench.run(dialog, [&] {
            QTest::keyClick(&dialog, Qt::Key_F2);
            QTest::keyClick(&dialog, Qt::Key_F1); // "Done"
        });
        QCOMPARE(dialog.commands, (QList<int> {Commands::Add, Commands::Done}));
    }

    void theGradientShowsWithoutAPictureAndAPictureIsFoundByItsJoinedName()
    {
        ScreenTestBench bench;
        ProbeScreen screen(bench.environment, bench.window, MenuBarId::Converter, "probe");
        screen.setBackgroundPicture(L"back.jpg"); // not in the device root yet
        QImage image;
        bench.visit(screen, [&] { image = bench.render(); });
        QCOMPARE(image.pixelColor(239, 0), QColor(114, 150, 180));
        // Band i starts at H * (30 - i) / 30: band 2 begins at row 250, band 1 at row 259.
        QCOMPARE(image.pixelColor(100, 250), QColor(86, 122, 152));
        QCOMPARE(image.pixelColor(100, 259), QColor(85, 121, 151));
        QImage red(240, 268, QImage::Format_RGB32);
        red.fill(QColor(200, 0, 0));
        QVERIFY(red.save(QString::fromStdString((bench.root.path() / "back.jpg").string()), "JPG", 100));
        bench.visit(screen, [&] { image = bench.render(); });
        const QColor centre = image.pixelColor(120, 134);
        QVERIFY2(centre.red() > 180 && centre.green() < 30, qPrintable(centre.name()));
    }

    // The currency screen takes the Back key over to erase; elsewhere it erases nothing and stays.
    void theBackKeyErasesNothingWhereNotTakenOver()
    {
        ScreenTestBench bench;
        ProbeScreen screen(bench.environment, bench.window, MenuBarId::Converter, "probe");
        auto* amount = new NumericEdit(&screen);
        screen.onInitialise = [&] {
            amount->setGeometry(5, 40, 200, 25);
            amount->setFocus();
        };
        bench.visit(screen, [&] {
            QTest::keyClicks(amount, QStringLiteral("12"));
            bench.press(Qt::Key_Escape);
            QCOMPARE(amount->text(), QStringLiteral("12"));
            QVERIFY(screen.isRunning()); // Back never leaves the screen
        });
    }

    void gesturesAreTheirKeys_data()
    {
        QTest::addColumn<Kind>("kind");
        QTest::addColumn<QPoint>("from"); // (-1, -1): the middle of the home clock's face
        QTest::addColumn<QPoint>("to");
        QTest::addColumn<QList<int>>("keys");
        QTest::addColumn<bool>("touch");
        QTest::addColumn<bool>("turned"); // on a work area turned on its side (268 x 240) first
        const int Left = Qt::Key_Left, Right = Qt::Key_Right, Up = Qt::Key_Up, Down = Qt::Key_Down,
                  Return = Qt::Key_Return;
        const auto row
            = [](Kind kind, const char* name, QPoint from, QPoint to, QList<int> keys, bool touch = false,
                  bool turned = false) { QTest::newRow(name) << kind << from << to << keys << touch << turned; };
        // The launcher. Icons are 16 pixels in four 60-pixel columns, rows at y = 50 and 80; the arrows
        // and the label share the bottom 40 pixels; the big icon is 32 pixels at (104, 144).
        const Kind L = Kind::Launcher;
        row(L, "launcher: tap the sixth icon", {90, 88}, {90, 88}, {Right, Right, Right, Right, Right});
        row(L, "launcher: tap the left arrow", {28, 250}, {28, 250}, {Left});
        row(L, "launcher: swipe to the left", {200, 150}, {80, 150}, {Right});
        row(L, "launcher: tap the selected icon", {30, 58}, {30, 58}, {Return});
        row(L, "launcher: tap the label", {120, 250}, {120, 250}, {Return});
        row(L, "launcher: tap between icons and big icon", {120, 120}, {120, 120}, {});
        row(L, "launcher: slanted drag", {100, 130}, {130, 190}, {});
        // A finger's events reach the same recogniser as the mouse's, once Qt has turned them into presses.
        row(L, "launcher: swipe to the right (touch)", {60, 150}, {200, 150}, {Left}, true);
        // World Clocks: a face takes the action key. The title's arrows stand at x = 180..204 and 201..225
        // of the 25-pixel band.
        const Kind K = Kind::Clocks;
        row(K, "clocks: home clock face", {-1, -1}, {-1, -1}, {Return});
        row(K, "clocks: title's right arrow", {222, 12}, {222, 12}, {Right});
        row(K, "clocks: tap the title's text", {40, 12}, {40, 12}, {});
        // The Select dialog's list is at (5, 30), 225 x 25 pixels; its arrows are the last 25, up then down.
        const Kind S = Kind::Select;
        row(S, "select: tap the list", {60, 42}, {60, 42}, {Down});
        row(S, "select: tap the up arrow", {210, 42}, {210, 42}, {Up});
        row(S, "select: swipe the list to the left", {180, 42}, {40, 42}, {Down});
        // Turned, the targets follow the new width: icons in 67-pixel columns (the sixth at x = 92), the
        // launcher's right arrow at x = 233, y = 210, the title's right arrow 31..15 pixels from the right
        // edge, the Select list's up arrow at x = 233..245.
        row(L, "turned launcher: tap the sixth icon", {100, 88}, {100, 88}, {Right, Right, Right, Right, Right}, false,
            true);
        row(L, "turned launcher: tap the right arrow", {240, 218}, {240, 218}, {Right}, false, true);
        row(K, "turned clocks: title's right arrow", {245, 12}, {245, 12}, {Right}, false, true);
        row(S, "turned select: tap the up arrow", {238, 42}, {238, 42}, {Up}, false, true);
    }

    // Both runs end in the same state and picture, and only a gesture that stands for keys changes anything.
    void gesturesAreTheirKeys()
    {
        QFETCH(Kind, kind);
        QFETCH(QPoint, from);
        QFETCH(QPoint, to);
        QFETCH(QList<int>, keys);
        QFETCH(bool, touch);
        QFETCH(bool, turned);
        const auto turn = [turned](ScreenTestBench& bench) {
            if (turned)
                bench.press(Qt::Key_R, Qt::ControlModifier);
        };
        const Outcome touched = play(kind, [&](ScreenTestBench& bench) {
            turn(bench);
            if (from.x() < 0)
                from = to = static_cast<WorldClockScreen*>(bench.window.topScreen())->entryRect(0).center();
            swipe(touch, bench.window, from, to);
        });
        const Outcome keyed = play(kind, [&](ScreenTestBench& bench) {
            turn(bench);
            for (const int key : keys)
                bench.press(static_cast<Qt::Key>(key));
        });
        QVERIFY(touched == keyed); // the same selection, screens opened, message boxes and picture
        QCOMPARE(keys.isEmpty(), touched == play(kind, turn));
    }

    // A double click is a press of its own, after the press and release that came before it: alone on the
    // Select list's up arrow it steps up once, as QWidget's default handling of it did.
    void aDoubleClickIsAPress()
    {
        const QPoint upArrow(210, 42);
        const Outcome clicked = play(Kind::Select, [&](ScreenTestBench& bench) {
            QWidget* const list = bench.window.childAt(upArrow);
            QTest::mouseDClick(list, Qt::LeftButton, Qt::NoModifier, list->mapFrom(&bench.window, upArrow));
        });
        const Outcome keyed = play(Kind::Select, [](ScreenTestBench& bench) { bench.press(Qt::Key_Up); });
        QVERIFY(clicked == keyed);
    }

    void scaleFillsTheScreen()
    {
        using Case = std::tuple<QSize, QSize, double>; // the screen's available size, the work area, the scale
        // Upright the device is 240 x (268 + 26) = 240 x 294; turned, 268 x (240 + 26) = 268 x 266.
        const Case cases[] = {
            // Phone 360 x 720: upright min(1.5, 2.449), turned min(360/268 = 1.3433, 2.707) -> 1.3433.
            {{360, 720}, {240, 268}, 360.0 / 268},
            // Desktop 1920 x 1050: upright min(8, 3.571), turned min(7.16, 3.947) -> 3.571, held at 2.
            {{1920, 1050}, {240, 268}, 2.0},
        };
        for (const auto& [available, workArea, scale] : cases)
            QCOMPARE(FitScale(available, workArea, SoftKeyBar::BarHeight, 2.0), scale);
    }

    // The title band, a placed control and a label stay where the screen put them when the work area turns.
    void statedPartsFollowTheWorkArea()
    {
        ScreenTestBench bench;
        ProbeScreen screen(bench.environment, bench.window, MenuBarId::Converter, "probe");
        const QColor fill(0, 0, 200);
        screen.setTitleBand(TitleBand(fill, StringIds::Measurements));
        QWidget control(&screen);
        screen.place(control, [](QSize area) { return QRect(area.width() - 30, area.height() - 20, 20, 10); });
        const QFont font = Painting::makeFont(21, Painting::Bold);
        screen.addLabel(StringIds::To, font, [](QSize area) { return QPoint(5, area.height() - 40); });
        bench.visit(screen, [&] {
            for (const QSize area : {QSize(240, 268), QSize(268, 240)}) {
                emit QGuiApplication::primaryScreen()->orientationChanged(
                    area.width() > area.height() ? Qt::LandscapeOrientation : Qt::PortraitOrientation);
                QCOMPARE(control.geometry(), QRect(area.width() - 30, area.height() - 20, 20, 10));
                const QImage image = bench.render();
                QCOMPARE(image.pixelColor(area.width() - 1, TitleBand::Height - 1), fill);
                QVERIFY(showsWhite(image, QRect(5, area.height() - 40, 20, 20)));
            }
        });
    }

    // The screen's own rotation, or Ctrl+R on a desktop, lays every running screen out again.
    void rotationLaysEveryRunningScreenOutAgain()
    {
        ScreenTestBench bench;
        ProbeScreen outer(bench.environment, bench.window, MenuBarId::Launcher, "outer");
        ProbeScreen inner(bench.environment, bench.window, MenuBarId::Select, "inner");
        const QSize upright(240, 268), turned(268, 240);
        const std::pair<Qt::ScreenOrientation, QSize> steps[]
            = {{Qt::InvertedLandscapeOrientation, turned}, {Qt::PrimaryOrientation, turned}, // no rotation
                {Qt::InvertedPortraitOrientation, upright}};
        bench.visit(outer, [&] {
            bench.visit(inner, [&] {
                for (const auto& [orientation, workArea] : steps) {
                    emit QGuiApplication::primaryScreen()->orientationChanged(orientation);
                    QCOMPARE(bench.window.size(), workArea + QSize(0, SoftKeyBar::BarHeight));
                    QCOMPARE(inner.layouts.last(), workArea);
                }
                QTest::keyClick(&inner, Qt::Key_R, Qt::ControlModifier);
            });
        });
        // The screen underneath is laid out again by the time it shows.
        QCOMPARE(inner.layouts.last(), turned);
        QCOMPARE(outer.layouts.last(), turned);
    }
};

QTEST_MAIN(ScreenFrameworkTest)
#include "ScreenFrameworkTest.moc"
