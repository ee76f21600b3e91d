// SPDX-License-Identifier: GPL-3.0-or-later
// Taps and swipes, by mouse and by finger, compared with the keys they stand for: each gesture is
// played on one fresh device and its keys on another, and the two end in the same state and picture.
#include "CityFixture.h"
#include "ScreenTestBench.h"
#include "app/ServicesApp.h"
#include "screens/select/SelectDialog.h"
#include "screens/worldclock/WorldClockScreen.h"
#include "store/CityCatalogue.h"
#include "store/WeatherFavourites.h"
#include "ui/Commands.h"
#include "ui/SoftKeyBar.h"
#include "ui/Spinner.h"
#include "ui/WindowFit.h"

#include <QApplication>
#include <QLineEdit>
#include <QMenu>
#include <QPushButton>
#include <QScreen>
#include <QSignalSpy>
#include <QTest>
#include <QTimer>

#include <functional>

enum class Pointer { Mouse, Touch };
Q_DECLARE_METATYPE(Pointer)

namespace {

constexpr int BarTop = 268; // the soft-key bar lies under the 240 x 268 work area

// Presses, drags and lifts the mouse or a finger on a window, in that window's pixels.
class Finger
{
public:
    explicit Finger(Pointer pointer)
        : m_pointer(pointer)
    { }

    void tap(QWidget& window, QPoint at) { swipe(window, at, at); }

    void swipe(QWidget& window, QPoint from, QPoint to)
    {
        constexpr int Steps = 4;
        down(window, from);
        for (int i = 1; i <= Steps; ++i)
            moveTo(window, from + (to - from) * i / Steps);
        up(window, to);
    }

private:
    void down(QWidget& window, QPoint at)
    {
        if (m_pointer == Pointer::Touch) {
            QTest::touchEvent(&window, touchscreen()).press(0, at, &window);
            return;
        }
        m_grab = window.childAt(at) ? window.childAt(at) : &window;
        QTest::mousePress(m_grab, Qt::LeftButton, Qt::NoModifier, m_grab->mapFrom(&window, at));
    }

    void moveTo(QWidget& window, QPoint at)
    {
        if (m_pointer == Pointer::Touch)
            QTest::touchEvent(&window, touchscreen()).move(0, at, &window);
        else if (m_grab)
            QTest::mouseMove(m_grab, m_grab->mapFrom(&window, at));
    }

    void up(QWidget& window, QPoint at)
    {
        if (m_pointer == Pointer::Touch)
            QTest::touchEvent(&window, touchscreen()).release(0, at, &window);
        else if (m_grab)
            QTest::mouseRelease(m_grab, Qt::LeftButton, Qt::NoModifier, m_grab->mapFrom(&window, at));
    }

    static QPointingDevice* touchscreen()
    {
        static QPointingDevice* device = QTest::createTouchDevice();
        return device;
    }

    Pointer m_pointer;
    QPointer<QWidget> m_grab; // the widget under the press gets the whole run, as the mouse grab does
};

// Touch makes the window active; the keys' runs start from an active window too.
void activate(ScreenTestBench& bench)
{
    bench.window.activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(&bench.window));
}

void pressKeys(ScreenTestBench& bench, const QList<int>& keys)
{
    for (const int key : keys)
        bench.press(static_cast<Qt::Key>(key));
}

// Adds each gesture row once for the mouse and once for a finger. A row with an `entry` taps the middle
// of that World Clocks focus entry instead of going from `from` to `to`.
void addRows(const char* name, QPoint from, QPoint to, const QList<int>& keys, int entry = -1)
{
    for (const Pointer pointer : {Pointer::Mouse, Pointer::Touch}) {
        const char* by = pointer == Pointer::Mouse ? " (mouse)" : " (touch)";
        QTest::newRow(qPrintable(QString::fromUtf8(name) + QLatin1String(by)))
            << pointer << entry << from << to << keys;
    }
}

void gestureColumns()
{
    QTest::addColumn<Pointer>("pointer");
    QTest::addColumn<int>("entry");
    QTest::addColumn<QPoint>("from");
    QTest::addColumn<QPoint>("to");
    QTest::addColumn<QList<int>>("keys");
}

// What a device shows and holds after a gesture or its keys.
struct Outcome
{
    int index = -1; // the launcher's selection, the clock focus, the list's item
    QStringList opened; // screens shown meanwhile
    std::size_t boxes = 0;
    QImage picture;

    bool operator==(const Outcome&) const = default;
};

// Records every screen shown after the first and ends it at once, so that a gesture that opens a
// service or a dialog returns.
void closeWhatOpens(ScreenTestBench& bench, Screen& first, Outcome& outcome)
{
    QObject::connect(&bench.window, &DeviceWindow::screenShown, &first, [&first, &outcome](Screen& shown) {
        if (&shown == &first)
            return;
        outcome.opened << shown.screenName();
        QTimer::singleShot(0, &shown, [&shown] { shown.endScreen(); });
    });
}

// A launcher on a fresh device, driven by `drive`.
Outcome launcherAfter(const std::function<void(ScreenTestBench&)>& drive)
{
    ScreenTestBench bench;
    ServicesApp launcher(bench.environment, bench.window);
    Outcome outcome;
    closeWhatOpens(bench, launcher, outcome);
    bench.run(launcher, [&] {
        activate(bench);
        drive(bench);
        outcome.index = launcher.selection();
        outcome.boxes = bench.boxes.shown.size();
        outcome.picture = bench.render();
        launcher.sendCommand(Commands::Exit);
    });
    return outcome;
}

// World Clocks on the fixture catalogue.
struct ClockDevice
{
    ClockDevice()
    {
        CityFixture::write(bench.root, {});
        cities.Load();
        favourites.loadFavouritesOnce();
    }

    ScreenTestBench bench;
    CityCatalogue cities {bench.objects, bench.paths, bench.messages};
    WeatherFavourites favourites {bench.objects, bench.paths, bench.messages};
    WorldClockScreen screen {bench.environment, bench.window, cities, favourites};
};

Outcome clocksAfter(const std::function<void(ScreenTestBench&)>& drive)
{
    ClockDevice device;
    Outcome outcome;
    closeWhatOpens(device.bench, device.screen, outcome);
    device.bench.run(device.screen, [&] {
        activate(device.bench);
        drive(device.bench);
        outcome.index = device.screen.findChild<Spinner*>(QStringLiteral("focusSpinner"))->currentIndex();
        outcome.boxes = device.bench.boxes.shown.size();
        outcome.picture = device.bench.render();
        device.screen.endScreen();
    });
    return outcome;
}

Outcome selectAfter(const std::function<void(ScreenTestBench&)>& drive)
{
    ScreenTestBench bench;
    CityFixture::write(bench.root, {});
    SelectDialog dialog(bench.environment, bench.window);
    dialog.setSelection(5);
    Outcome outcome;
    bench.run(dialog, [&] {
        activate(bench);
        drive(bench);
        outcome.index = dialog.findChild<Spinner*>(QStringLiteral("choiceSpinner"))->currentIndex();
        outcome.opened = dialog.panelLines();
        outcome.picture = bench.render();
        dialog.endScreen();
    });
    return outcome;
}

// A screen with one of each control a finger meets: a spinner, an edit field and a button.
// Plays the current row's gesture on a fresh device made by `after` and its keys on another: both end in
// the same state and picture, and only a gesture that stands for keys changes anything.
void gestureIsItsKeys(Outcome (*after)(const std::function<void(ScreenTestBench&)>&))
{
    QFETCH(Pointer, pointer);
    QFETCH(int, entry);
    QFETCH(QPoint, from);
    QFETCH(QPoint, to);
    QFETCH(QList<int>, keys);
    const Outcome touched = after([&](ScreenTestBench& bench) {
        const QPoint start
            = entry < 0 ? from : static_cast<WorldClockScreen*>(bench.window.topScreen())->entryRect(entry).center();
        Finger(pointer).swipe(bench.window, start, entry < 0 ? to : start);
    });
    const Outcome keyed = after([&](ScreenTestBench& bench) { pressKeys(bench, keys); });
    QCOMPARE(touched.index, keyed.index);
    QCOMPARE(touched.opened, keyed.opened);
    QCOMPARE(touched.boxes, keyed.boxes);
    QVERIFY(touched.picture == keyed.picture);
    QCOMPARE(keys.isEmpty(), touched == after([](ScreenTestBench&) {}));
}

class ControlsScreen final : public Screen
{
public:
    ControlsScreen(ScreenEnvironment& environment, DeviceWindow& window)
        : Screen(environment, window, MenuBarId::Select, QStringLiteral("controls"))
        , spinner(new Spinner(this))
        , field(new QLineEdit(this))
        , button(new QPushButton(QStringLiteral("OK"), this))
    {
        spinner->setItems({QStringLiteral("a"), QStringLiteral("b"), QStringLiteral("c")});
        spinner->setGeometry(10, 10, 150, 25);
        field->setGeometry(10, 60, 150, 25);
        button->setGeometry(10, 110, 80, 25);
        QObject::connect(button, &QPushButton::clicked, this, [this] { ++clicks; });
    }

    Spinner* spinner;
    QLineEdit* field;
    QPushButton* button;
    int clicks = 0;

protected:
    void initialise() override
    {
        spinner->setCurrentIndex(1);
        spinner->setFocus();
    }
};

} // namespace

class TouchTest : public QObject
{
    Q_OBJECT

private slots:
    // ---- The launcher: icons, arrows, the big icon and the label, swipes, and taps on nothing.
    void launcherGesturesAreTheirKeys_data()
    {
        gestureColumns();
        const int Left = Qt::Key_Left, Right = Qt::Key_Right, Return = Qt::Key_Return;
        // Icons are 16 pixels in four 60-pixel columns, rows at y = 50 and 80; the arrows and the
        // label share the bottom 40 pixels; the big icon is 32 pixels at (104, 144).
        addRows("tap the third icon", {150, 58}, {150, 58}, {Right, Right});
        addRows("tap the sixth icon", {90, 88}, {90, 88}, {Right, Right, Right, Right, Right});
        addRows("tap the left arrow", {28, 250}, {28, 250}, {Left});
        addRows("tap the right arrow", {216, 250}, {216, 250}, {Right});
        addRows("swipe to the left", {200, 150}, {80, 150}, {Right});
        addRows("swipe to the right", {60, 150}, {200, 150}, {Left});
        addRows("tap the selected icon", {30, 58}, {30, 58}, {Return});
        addRows("tap the big icon", {120, 160}, {120, 160}, {Return});
        addRows("tap the label", {120, 250}, {120, 250}, {Return});
        addRows("tap above the icons", {120, 20}, {120, 20}, {});
        addRows("tap between icons and big icon", {120, 120}, {120, 120}, {});
        addRows("slanted drag", {100, 130}, {130, 190}, {});
    }

    void launcherGesturesAreTheirKeys() { gestureIsItsKeys(launcherAfter); }

    // ---- World Clocks: faces and weather icons take the action key, the title arrows step the focus.
    void clockGesturesAreTheirKeys_data()
    {
        gestureColumns();
        const int Left = Qt::Key_Left, Right = Qt::Key_Right, Return = Qt::Key_Return, C = Qt::Key_C, W = Qt::Key_W;
        addRows("home clock face", {}, {}, {Return}, 0);
        // Letters walk the focus entries ("c", "w", "c1", "w1", ...) without arrow feedback, as a tap.
        addRows("third clock face", {}, {}, {C, C, Return}, 4);
        addRows("first city's weather icon", {}, {}, {W, W, Return}, 3);
        addRows("home weather icon", {}, {}, {W, Return}, 1);
        // The title's arrows stand at x = 180..204 and 201..225 of the 25-pixel band.
        addRows("title's left arrow", {190, 12}, {190, 12}, {Left});
        addRows("title's right arrow", {222, 12}, {222, 12}, {Right});
        addRows("swipe to the left", {200, 200}, {60, 200}, {Right});
        addRows("swipe to the right", {60, 200}, {200, 200}, {Left});
        addRows("tap the title's text", {40, 12}, {40, 12}, {});
    }

    void clockGesturesAreTheirKeys() { gestureIsItsKeys(clocksAfter); }

    // ---- The Select dialog's list: a tap on the box steps on, the arrows and a swipe step it.
    void selectListGesturesAreTheirKeys_data()
    {
        gestureColumns();
        const int Up = Qt::Key_Up, Down = Qt::Key_Down;
        // The list is at (5, 30), 225 x 25 pixels; its arrows are the last 25, up then down.
        addRows("tap the list", {60, 42}, {60, 42}, {Down});
        addRows("tap the up arrow", {210, 42}, {210, 42}, {Up});
        addRows("tap the down arrow", {225, 42}, {225, 42}, {Down});
        addRows("swipe the list to the left", {180, 42}, {40, 42}, {Down});
        addRows("swipe the list to the right", {40, 42}, {180, 42}, {Up});
        addRows("tap the panel", {120, 200}, {120, 200}, {});
    }

    void selectListGesturesAreTheirKeys() { gestureIsItsKeys(selectAfter); }

    // ---- Soft keys are F1/F2, a popup's item is chosen by a tap.
    void softKeysAndMenuItems_data()
    {
        QTest::addColumn<Pointer>("pointer");
        QTest::newRow("mouse") << Pointer::Mouse;
        QTest::newRow("touch") << Pointer::Touch;
    }

    void softKeysAndMenuItems()
    {
        QFETCH(Pointer, pointer);
        ClockDevice device;
        QMenu* menu = nullptr;
        device.bench.run(device.screen, [&] {
            Finger(pointer).tap(device.bench.window, {200, BarTop + 13}); // "Menu", as F2
            menu = device.bench.window.topSoftKeys()->popup();
            QTRY_VERIFY(menu->isVisible());
            const QAction* twelveHours = menu->actions().at(0);
            Finger(pointer).tap(*menu, menu->actionGeometry(const_cast<QAction*>(twelveHours)).center());
            QTRY_VERIFY(!menu->isVisible());
            QVERIFY(device.screen.twelveHour());
            QSignalSpy commands(device.bench.window.topSoftKeys(), &SoftKeyBar::commandTriggered);
            Finger(pointer).tap(device.bench.window, {40, BarTop + 13}); // "Services", as F1
            QCOMPARE(commands.size(), 1);
            QCOMPARE(commands.at(0).at(0).toInt(), int(Commands::Services));
        });
        QVERIFY(!device.screen.isRunning());
    }

    // ---- Framework controls: a spinner's arrows and swipes, fields take the focus, buttons press.
    void controlsAnswerTheFinger_data() { softKeysAndMenuItems_data(); }

    void controlsAnswerTheFinger()
    {
        QFETCH(Pointer, pointer);
        ScreenTestBench bench;
        ControlsScreen screen(bench.environment, bench.window);
        bench.visit(screen, [&] {
            Finger finger(pointer);
            QList<int> steps;
            connect(screen.spinner, &Spinner::deltaRequested, &screen, [&](int delta) { steps << delta; });
            finger.tap(bench.window, {140, 22}); // left half of the arrows (135..147)
            QCOMPARE(screen.spinner->currentIndex(), 0);
            finger.tap(bench.window, {155, 22});
            finger.tap(bench.window, {155, 22});
            QCOMPARE(screen.spinner->currentIndex(), 2);
            finger.swipe(bench.window, {120, 22}, {20, 22}); // on the box: forward, stops at the end
            finger.swipe(bench.window, {20, 22}, {120, 22});
            QCOMPARE(screen.spinner->currentIndex(), 1);
            // A swipe over the screen away from the controls steps the focused spinner.
            finger.swipe(bench.window, {200, 200}, {60, 200});
            QCOMPARE(screen.spinner->currentIndex(), 2);
            QCOMPARE(steps, (QList<int> {-1, 1, 1, 1, -1, 1}));

            finger.tap(bench.window, {50, 72});
            QTRY_VERIFY(screen.field->hasFocus());
            finger.tap(bench.window, {50, 122});
            QTRY_COMPARE(screen.clicks, 1);
            finger.tap(bench.window, {200, 240}); // nothing there
            QCOMPARE(screen.clicks, 1);
            QCOMPARE(screen.spinner->currentIndex(), 2);
        });
    }

    // ---- The window on a phone: the scale that fills the screen, and the screen's own rotation.
    void scaleFillsTheScreen_data()
    {
        QTest::addColumn<QSize>("available");
        QTest::addColumn<QSize>("workArea");
        QTest::addColumn<double>("scale");
        // Upright the device is 240 x (268 + 26) = 240 x 294; turned, 268 x (240 + 26) = 268 x 266.
        // Phone 360 x 720: upright min(1.5, 2.449), turned min(360/268 = 1.3433, 2.707) -> 1.3433.
        QTest::newRow("portrait phone") << QSize(360, 720) << QSize(240, 268) << 360.0 / 268;
        // Desktop 1920 x 1050: upright min(8, 3.571), turned min(7.16, 3.947) -> 3.571, held at 2.
        QTest::newRow("large desktop") << QSize(1920, 1050) << QSize(240, 268) << 2.0;
        // Small landscape 800 x 500: upright min(3.33, 500/294 = 1.7007), turned min(2.985, 1.880).
        QTest::newRow("small landscape") << QSize(800, 500) << QSize(240, 268) << 500.0 / 294;
        // A tall work area 200 x 400 on a 600 x 1200 portrait screen: upright min(3, 2.838) = 2.838,
        // turned 400 x 226: min(1.5, 5.3) = 1.5.
        QTest::newRow("tall work area") << QSize(600, 1200) << QSize(200, 400) << 1.5;
        QTest::newRow("no screen") << QSize() << QSize(240, 268) << 2.0;
    }

    void scaleFillsTheScreen()
    {
        QFETCH(QSize, available);
        QFETCH(QSize, workArea);
        QFETCH(double, scale);
        QCOMPARE(FitScale(available, workArea, SoftKeyBar::BarHeight, 2.0), scale);
    }

    void workAreaFollowsTheScreensRotation()
    {
        ScreenTestBench bench;
        const struct
        {
            Qt::ScreenOrientation orientation;
            QSize workArea;
        } steps[] = {
            {Qt::LandscapeOrientation, {268, 240}},
            {Qt::InvertedLandscapeOrientation, {268, 240}},
            {Qt::PortraitOrientation, {240, 268}},
            {Qt::PrimaryOrientation, {240, 268}},
            {Qt::InvertedLandscapeOrientation, {268, 240}},
            {Qt::InvertedPortraitOrientation, {240, 268}},
        };
        for (const auto& step : steps) {
            emit QGuiApplication::primaryScreen()->orientationChanged(step.orientation);
            QCOMPARE(bench.window.workArea(), step.workArea);
            QCOMPARE(bench.window.size(), step.workArea + QSize(0, SoftKeyBar::BarHeight));
        }
    }
};

QTEST_MAIN(TouchTest)
#include "TouchTest.moc"
