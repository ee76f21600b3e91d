// SPDX-License-Identifier: GPL-3.0-or-later
// The screen framework: how screens run and end, the keys, the background, and the pointer. Taps and
// swipes are compared with the keys they stand for: each gesture is played on one fresh device and its
// keys on another, and the two end in the same state and picture.
#include "CityFixture.h"
#include "ScreenTestBench.h"
#include "app/ServicesApp.h"
#include "screens/select/SelectDialog.h"
#include "screens/worldclock/WorldClockScreen.h"
#include "store/CityCatalogue.h"
#include "store/WeatherFavourites.h"
#include "ui/NumericEdit.h"
#include "ui/WindowFit.h"

#include <QMenu>
#include <QScreen>
#include <QTimer>

#include <functional>
#include <tuple>

enum class Pointer { Mouse, Touch };
Q_DECLARE_METATYPE(Pointer)
enum class Kind { Launcher, Clocks, Select };
Q_DECLARE_METATYPE(Kind)

namespace {

// A screen that records which hooks ran, for checking the framework's order and counts.
class ProbeScreen final : public Screen
{
public:
    ProbeScreen(ScreenEnvironment& environment, DeviceWindow& window, MenuBarId menuBar, const QString& name)
        : Screen(environment, window, menuBar, name)
    { }

    int initialised = 0;
    int destroyed = 0;
    int ticks = 0;
    QList<QSize> layouts;
    QList<int> commands;
    std::function<void()> onInitialise = [] {};
    std::function<void()> onDestroy = [] {};
    using Screen::setBackgroundPicture;
    using Screen::startScreenTimer;
    using Screen::takeOverBackKey;

protected:
    void initialise() override { ++initialised, onInitialise(); }
    void layout(int width, int height) override { layouts.append(QSize(width, height)); }
    void destroyWork() override { ++destroyed, onDestroy(); }
    void timerTick(int) override { ++ticks; }
    void command(int id) override { commands.append(id), Screen::command(id); }
};

constexpr int BarTop = 268; // the soft-key bar lies under the 240 x 268 work area

// Presses at `from`, moves to `to` in four steps and lifts there, by mouse or finger, in `window`'s
// pixels. The widget under the press gets the whole mouse run, as the mouse grab does.
void swipe(Pointer pointer, QWidget& window, QPoint from, QPoint to)
{
    static QPointingDevice* const touchscreen = QTest::createTouchDevice();
    const QPointer<QWidget> grab = window.childAt(from) ? window.childAt(from) : &window;
    const bool touch = pointer == Pointer::Touch;
    if (touch)
        QTest::touchEvent(&window, touchscreen).press(0, from, &window);
    else
        QTest::mousePress(grab, Qt::LeftButton, Qt::NoModifier, grab->mapFrom(&window, from));
    for (int i = 1; i <= 4; ++i) {
        const QPoint at = from + (to - from) * i / 4;
        if (touch)
            QTest::touchEvent(&window, touchscreen).move(0, at, &window);
        else if (grab)
            QTest::mouseMove(grab, grab->mapFrom(&window, at));
    }
    if (touch)
        QTest::touchEvent(&window, touchscreen).release(0, to, &window);
    else if (grab)
        QTest::mouseRelease(grab, Qt::LeftButton, Qt::NoModifier, grab->mapFrom(&window, to));
}

void tap(Pointer pointer, QWidget& window, QPoint at)
{
    swipe(pointer, window, at, at);
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

// A fresh device showing the launcher, World Clocks on the fixture catalogue, or the Select dialog.
struct Device
{
    explicit Device(Kind kind)
    {
        if (kind == Kind::Launcher) {
            screen = std::make_unique<ServicesApp>(bench.environment, bench.window);
            return;
        }
        CityFixture::write(bench.root, {});
        cities.Load();
        favourites.loadFavouritesOnce();
        if (kind == Kind::Clocks) {
            screen = std::make_unique<WorldClockScreen>(bench.environment, bench.window, cities, favourites);
            return;
        }
        auto select = std::make_unique<SelectDialog>(bench.environment, bench.window);
        select->setSelection(5);
        screen = std::move(select);
    }

    // Runs the screen on an active window (touch makes it active), drives it and reads the outcome.
    // Every screen shown over it is recorded and ended at once, so that a gesture that opens one returns.
    Outcome after(const std::function<void(ScreenTestBench&)>& drive)
    {
        Outcome outcome;
        QObject::connect(&bench.window, &DeviceWindow::screenShown, screen.get(), [&](Screen& shown) {
            if (&shown == screen.get())
                return;
            outcome.opened << shown.screenName();
            QTimer::singleShot(0, &shown, [&shown] { shown.endScreen(); });
        });
        bench.run(*screen, [&] {
            bench.window.activateWindow();
            QVERIFY(QTest::qWaitForWindowActive(&bench.window));
            drive(bench);
            const auto* launcher = qobject_cast<ServicesApp*>(screen.get());
            const auto* select = qobject_cast<SelectDialog*>(screen.get());
            const auto* list = child<Spinner>(*screen, select ? "choiceSpinner" : "focusSpinner");
            outcome.index = launcher ? launcher->selection() : list->currentIndex();
            if (select)
                outcome.opened << select->panelLines();
            outcome.boxes = bench.boxes.shown.size();
            outcome.picture = bench.render();
            screen->endScreen();
        });
        return outcome;
    }

    ScreenTestBench bench;
    CityCatalogue cities {bench.objects, bench.paths, bench.messages};
    WeatherFavourites favourites {bench.objects, bench.paths, bench.messages};
    std::unique_ptr<Screen> screen;
};

// Adds a gesture row. A row with an `entry` taps the middle of that World Clocks focus entry instead
// of going from `from` to `to`.
void addRow(Kind kind, const char* name, QPoint from, QPoint to, const QList<int>& keys, int entry = -1,
    Pointer pointer = Pointer::Mouse)
{
    QTest::newRow(name) << kind << pointer << entry << from << to << keys;
}

} // namespace

class ScreenFrameworkTest : public QObject
{
    Q_OBJECT

private slots:
    void servicesEndsTheScreenAndRunsItsDestroyWorkOnceAndItsTimersStop()
    {
        ScreenTestBench bench;
        ProbeScreen screen(bench.environment, bench.window, MenuBarId::WorldClocks, QStringLiteral("probe"));
        for (int visit = 1; visit <= 3; ++visit) {
            const int result = bench.run(screen, [&] { bench.window.topSoftKeys()->pressLeft(); });
            QCOMPARE(result, 0);
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
        QVERIFY(!bench.timers.isRunning(&screen, 1));
        bench.advance(50);
        QCOMPARE(screen.ticks, 2);
    }

    void exitFromANestedDialogUnwindsEveryRunInnermostFirst()
    {
        ScreenTestBench bench;
        ProbeScreen outer(bench.environment, bench.window, MenuBarId::Launcher, QStringLiteral("outer"));
        ProbeScreen middle(bench.environment, bench.window, MenuBarId::WorldClocks, QStringLiteral("middle"));
        ProbeScreen inner(bench.environment, bench.window, MenuBarId::Converter, QStringLiteral("inner"));
        QStringList order;
        for (ProbeScreen* screen : {&outer, &middle, &inner})
            screen->onDestroy = [&order, screen] { order << screen->screenName(); };
        bool afterNested = false;
        bench.run(outer, [&] {
            bench.run(middle, [&] {
                bench.run(inner, [&] { bench.window.topSoftKeys()->chooseItem(Commands::Exit); });
                afterNested = true;
                // Nothing opens while the program is ending.
                QVERIFY(bench.window.isExiting());
                QCOMPARE(bench.window.run(inner), 0);
                QCOMPARE(inner.initialised, 1);
            });
        });
        QVERIFY(afterNested);
        QCOMPARE(inner.commands, QList<int> {Commands::Exit});
        QCOMPARE(order, (QStringList {QStringLiteral("inner"), QStringLiteral("middle"), QStringLiteral("outer")}));
        QVERIFY(!bench.window.isExiting());
    }

    void greyedSoftKeysAndItemsSendNothing()
    {
        ScreenTestBench bench;
        ProbeScreen screen(bench.environment, bench.window, MenuBarId::WorldClocks, QStringLiteral("probe"));
        bench.run(screen, [&] {
            SoftKeyBar* keys = screen.softKeys();
            keys->setItemEnabled(Commands::TwelveHourClocks, false);
            keys->chooseItem(Commands::TwelveHourClocks); // greyed: nothing happens
            keys->setKeyEnabled(Commands::Services, false);
            QTest::keyClick(&screen, Qt::Key_F1); // disabled: nothing happens
            QTest::keyClick(&screen, Qt::Key_Return);
            QVERIFY(screen.isRunning());
            keys->setKeyEnabled(Commands::Services, true);
            QTest::keyClick(&screen, Qt::Key_F1);
        });
        QCOMPARE(screen.commands, (QList<int> {Commands::Ok, Commands::Services}));

        // F2 presses a right key that is a plain key ("Add"), not a menu.
        ProbeScreen dialog(bench.environment, bench.window, MenuBarId::Favourites, QStringLiteral("dialog"));
        bench.run(dialog, [&] {
            QTest::keyClick(&dialog, Qt::Key_F2);
            QTest::keyClick(&dialog, Qt::Key_F1); // "Done"
        });
        QCOMPARE(dialog.commands, (QList<int> {Commands::Add, Commands::Done}));
    }

    void theGradientShowsWithoutAPictureAndAPictureIsFoundByItsJoinedName()
    {
        ScreenTestBench bench;
        ProbeScreen screen(bench.environment, bench.window, MenuBarId::Converter, QStringLiteral("probe"));
        screen.setBackgroundPicture(L"back.jpg"); // not in the device root yet
        QImage image;
        bench.visit(screen, [&] { image = bench.render(); });
        QCOMPARE(image.pixelColor(0, 267), QColor(85, 121, 151));
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

    void theBackKeyErasesInTheFocusedEditBoxOnlyWhereTakenOver()
    {
        ScreenTestBench bench;
        ProbeScreen screen(bench.environment, bench.window, MenuBarId::Converter, QStringLiteral("probe"));
        auto* amount = new NumericEdit(&screen);
        for (const bool takenOver : {true, false}) {
            screen.onInitialise = [&] {
                if (takenOver)
                    screen.takeOverBackKey();
                amount->setGeometry(5, 40, 200, 25);
                amount->setText(QString());
                amount->setFocus();
            };
            bench.visit(screen, [&] {
                QTest::keyClicks(amount, QStringLiteral("12x3.5"));
                QCOMPARE(amount->text(), QStringLiteral("123.5")); // typing keeps to a number's characters
                bench.press(Qt::Key_Escape);
                bench.press(Qt::Key_Escape);
                QCOMPARE(amount->text(), takenOver ? QStringLiteral("123") : QStringLiteral("123.5"));
                QVERIFY(screen.isRunning()); // Back never leaves the screen
            });
        }
    }

    // ---- The pointer.
    void gesturesAreTheirKeys_data()
    {
        QTest::addColumn<Kind>("kind");
        QTest::addColumn<Pointer>("pointer");
        QTest::addColumn<int>("entry");
        QTest::addColumn<QPoint>("from");
        QTest::addColumn<QPoint>("to");
        QTest::addColumn<QList<int>>("keys");
        const int Left = Qt::Key_Left, Right = Qt::Key_Right, Up = Qt::Key_Up, Down = Qt::Key_Down;
        const int Return = Qt::Key_Return, W = Qt::Key_W;
        // The launcher. Icons are 16 pixels in four 60-pixel columns, rows at y = 50 and 80; the arrows
        // and the label share the bottom 40 pixels; the big icon is 32 pixels at (104, 144).
        const Kind L = Kind::Launcher;
        addRow(L, "launcher: tap the sixth icon", {90, 88}, {90, 88}, {Right, Right, Right, Right, Right});
        addRow(L, "launcher: tap the left arrow", {28, 250}, {28, 250}, {Left});
        addRow(L, "launcher: swipe to the left", {200, 150}, {80, 150}, {Right});
        addRow(L, "launcher: tap the selected icon", {30, 58}, {30, 58}, {Return});
        addRow(L, "launcher: tap the label", {120, 250}, {120, 250}, {Return});
        addRow(L, "launcher: tap between icons and big icon", {120, 120}, {120, 120}, {});
        addRow(L, "launcher: slanted drag", {100, 130}, {130, 190}, {});
        // A finger's events reach the same recogniser as the mouse's, once Qt has turned them into presses.
        addRow(L, "launcher: swipe to the right (touch)", {60, 150}, {200, 150}, {Left}, -1, Pointer::Touch);
        // World Clocks: faces and weather icons take the action key. Letters walk the focus entries
        // ("c", "w", "c1", "w1", ...) without arrow feedback, as a tap does.
        const Kind K = Kind::Clocks;
        addRow(K, "clocks: home clock face", {}, {}, {Return}, 0);
        addRow(K, "clocks: first city's weather icon", {}, {}, {W, W, Return}, 3);
        // The title's arrows stand at x = 180..204 and 201..225 of the 25-pixel band.
        addRow(K, "clocks: title's right arrow", {222, 12}, {222, 12}, {Right});
        addRow(K, "clocks: swipe to the right", {60, 200}, {200, 200}, {Left});
        addRow(K, "clocks: tap the title's text", {40, 12}, {40, 12}, {});
        // The Select dialog's list is at (5, 30), 225 x 25 pixels; its arrows are the last 25, up then down.
        const Kind S = Kind::Select;
        addRow(S, "select: tap the list", {60, 42}, {60, 42}, {Down});
        addRow(S, "select: tap the up arrow", {210, 42}, {210, 42}, {Up});
        addRow(S, "select: swipe the list to the left", {180, 42}, {40, 42}, {Down});
        addRow(S, "select: tap the panel", {120, 200}, {120, 200}, {});
    }

    // Both runs end in the same state and picture, and only a gesture that stands for keys changes anything.
    void gesturesAreTheirKeys()
    {
        QFETCH(Kind, kind);
        QFETCH(Pointer, pointer);
        QFETCH(int, entry);
        QFETCH(QPoint, from);
        QFETCH(QPoint, to);
        QFETCH(QList<int>, keys);
        const Outcome touched = Device(kind).after([&](ScreenTestBench& bench) {
            const QPoint start = entry < 0
                ? from
                : static_cast<WorldClockScreen*>(bench.window.topScreen())->entryRect(entry).center();
            swipe(pointer, bench.window, start, entry < 0 ? to : start);
        });
        const Outcome keyed = Device(kind).after([&](ScreenTestBench& bench) {
            for (const int key : keys)
                bench.press(static_cast<Qt::Key>(key));
        });
        QCOMPARE(touched.index, keyed.index);
        QCOMPARE(touched.opened, keyed.opened);
        QVERIFY(touched == keyed); // and the same message boxes and picture
        QCOMPARE(keys.isEmpty(), touched == Device(kind).after([](ScreenTestBench&) {}));
    }

    // Soft keys are F1/F2, and a popup's item is chosen by a tap.
    void softKeysAnswerTheFinger()
    {
        ScreenTestBench bench;
        ProbeScreen screen(bench.environment, bench.window, MenuBarId::WorldClocks, QStringLiteral("probe"));
        bench.run(screen, [&] {
            tap(Pointer::Mouse, bench.window, {200, BarTop + 13}); // "Menu", as F2
            QMenu* menu = screen.softKeys()->popup();
            QTRY_VERIFY(menu->isVisible());
            tap(Pointer::Mouse, *menu, menu->actionGeometry(menu->actions().at(0)).center()); // "Twelve Hours Clocks"
            QTRY_VERIFY(!menu->isVisible());
            tap(Pointer::Mouse, bench.window, {40, BarTop + 13}); // "Services", as F1
        });
        QCOMPARE(screen.commands, (QList<int> {Commands::TwelveHourClocks, Commands::Services}));
    }

    // ---- The window on a phone: the scale that fills the screen, and the screen's own rotation.
    void scaleFillsTheScreen()
    {
        using Case = std::tuple<QSize, QSize, double>; // the screen's available size, the work area, the scale
        // Upright the device is 240 x (268 + 26) = 240 x 294; turned, 268 x (240 + 26) = 268 x 266.
        const Case cases[] = {
            // Phone 360 x 720: upright min(1.5, 2.449), turned min(360/268 = 1.3433, 2.707) -> 1.3433.
            {{360, 720}, {240, 268}, 360.0 / 268},
            // A tall work area 200 x 400 on a 600 x 1200 portrait screen: upright min(3, 2.838) = 2.838,
            // turned 400 x 226: min(1.5, 5.3) = 1.5.
            {{600, 1200}, {200, 400}, 1.5},
            // Desktop 1920 x 1050: upright min(8, 3.571), turned min(7.16, 3.947) -> 3.571, held at 2.
            {{1920, 1050}, {240, 268}, 2.0},
        };
        for (const auto& [available, workArea, scale] : cases)
            QCOMPARE(FitScale(available, workArea, SoftKeyBar::BarHeight, 2.0), scale);
    }

    // The screen's own rotation, or Ctrl+R on a desktop, lays every running screen out again.
    void rotationLaysEveryRunningScreenOutAgain()
    {
        ScreenTestBench bench;
        ProbeScreen outer(bench.environment, bench.window, MenuBarId::Launcher, QStringLiteral("outer"));
        ProbeScreen inner(bench.environment, bench.window, MenuBarId::Select, QStringLiteral("inner"));
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
