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
#include <tuple>

enum class Pointer { Mouse, Touch };
Q_DECLARE_METATYPE(Pointer)
enum class Kind { Launcher, Clocks, Select };
Q_DECLARE_METATYPE(Kind)

namespace {

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

// Adds a gesture row once for the mouse and once for a finger. A row with an `entry` taps the middle
// of that World Clocks focus entry instead of going from `from` to `to`.
void addRows(Kind kind, const char* name, QPoint from, QPoint to, const QList<int>& keys, int entry = -1)
{
    for (const Pointer pointer : {Pointer::Mouse, Pointer::Touch}) {
        const char* by = pointer == Pointer::Mouse ? " (mouse)" : " (touch)";
        QTest::newRow(qPrintable(QString::fromUtf8(name) + QLatin1String(by)))
            << kind << pointer << entry << from << to << keys;
    }
}

// A screen with one of each control a finger meets: a spinner, an edit field and a button.
class ControlsScreen final : public Screen
{
public:
    explicit ControlsScreen(ScreenTestBench& bench)
        : Screen(bench.environment, bench.window, MenuBarId::Select, QStringLiteral("controls"))
    {
        spinner->setItems({QStringLiteral("a"), QStringLiteral("b"), QStringLiteral("c")});
        spinner->setGeometry(10, 10, 150, 25);
        field->setGeometry(10, 60, 150, 25);
        button->setGeometry(10, 110, 80, 25);
        QObject::connect(button, &QPushButton::clicked, this, [this] { ++clicks; });
    }

    Spinner* spinner = new Spinner(this);
    QLineEdit* field = new QLineEdit(this);
    QPushButton* button = new QPushButton(QStringLiteral("OK"), this);
    int clicks = 0;

protected:
    void initialise() override { spinner->setCurrentIndex(1), spinner->setFocus(); }
};

} // namespace

class TouchTest : public QObject
{
    Q_OBJECT

private slots:
    void gesturesAreTheirKeys_data()
    {
        QTest::addColumn<Kind>("kind");
        QTest::addColumn<Pointer>("pointer");
        QTest::addColumn<int>("entry");
        QTest::addColumn<QPoint>("from");
        QTest::addColumn<QPoint>("to");
        QTest::addColumn<QList<int>>("keys");
        const int Left = Qt::Key_Left, Right = Qt::Key_Right, Up = Qt::Key_Up, Down = Qt::Key_Down;
        const int Return = Qt::Key_Return, C = Qt::Key_C, W = Qt::Key_W;
        // The launcher. Icons are 16 pixels in four 60-pixel columns, rows at y = 50 and 80; the arrows
        // and the label share the bottom 40 pixels; the big icon is 32 pixels at (104, 144).
        const Kind L = Kind::Launcher;
        addRows(L, "launcher: tap the third icon", {150, 58}, {150, 58}, {Right, Right});
        addRows(L, "launcher: tap the sixth icon", {90, 88}, {90, 88}, {Right, Right, Right, Right, Right});
        addRows(L, "launcher: tap the left arrow", {28, 250}, {28, 250}, {Left});
        addRows(L, "launcher: tap the right arrow", {216, 250}, {216, 250}, {Right});
        addRows(L, "launcher: swipe to the left", {200, 150}, {80, 150}, {Right});
        addRows(L, "launcher: swipe to the right", {60, 150}, {200, 150}, {Left});
        addRows(L, "launcher: tap the selected icon", {30, 58}, {30, 58}, {Return});
        addRows(L, "launcher: tap the big icon", {120, 160}, {120, 160}, {Return});
        addRows(L, "launcher: tap the label", {120, 250}, {120, 250}, {Return});
        addRows(L, "launcher: tap above the icons", {120, 20}, {120, 20}, {});
        addRows(L, "launcher: tap between icons and big icon", {120, 120}, {120, 120}, {});
        addRows(L, "launcher: slanted drag", {100, 130}, {130, 190}, {});
        // World Clocks: faces and weather icons take the action key. Letters walk the focus entries
        // ("c", "w", "c1", "w1", ...) without arrow feedback, as a tap does.
        const Kind K = Kind::Clocks;
        addRows(K, "clocks: home clock face", {}, {}, {Return}, 0);
        addRows(K, "clocks: third clock face", {}, {}, {C, C, Return}, 4);
        addRows(K, "clocks: first city's weather icon", {}, {}, {W, W, Return}, 3);
        addRows(K, "clocks: home weather icon", {}, {}, {W, Return}, 1);
        // The title's arrows stand at x = 180..204 and 201..225 of the 25-pixel band.
        addRows(K, "clocks: title's left arrow", {190, 12}, {190, 12}, {Left});
        addRows(K, "clocks: title's right arrow", {222, 12}, {222, 12}, {Right});
        addRows(K, "clocks: swipe to the left", {200, 200}, {60, 200}, {Right});
        addRows(K, "clocks: swipe to the right", {60, 200}, {200, 200}, {Left});
        addRows(K, "clocks: tap the title's text", {40, 12}, {40, 12}, {});
        // The Select dialog's list is at (5, 30), 225 x 25 pixels; its arrows are the last 25, up then down.
        const Kind S = Kind::Select;
        addRows(S, "select: tap the list", {60, 42}, {60, 42}, {Down});
        addRows(S, "select: tap the up arrow", {210, 42}, {210, 42}, {Up});
        addRows(S, "select: tap the down arrow", {225, 42}, {225, 42}, {Down});
        addRows(S, "select: swipe the list to the left", {180, 42}, {40, 42}, {Down});
        addRows(S, "select: swipe the list to the right", {40, 42}, {180, 42}, {Up});
        addRows(S, "select: tap the panel", {120, 200}, {120, 200}, {});
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

    // ---- Framework controls: a spinner's arrows and swipes, fields take the focus, buttons press; soft
    // keys are F1/F2, a popup's item is chosen by a tap.
    void controlsAnswerTheFinger_data()
    {
        QTest::addColumn<Pointer>("pointer");
        QTest::newRow("mouse") << Pointer::Mouse;
        QTest::newRow("touch") << Pointer::Touch;
    }

    void controlsAnswerTheFinger()
    {
        QFETCH(Pointer, pointer);
        Device device(Kind::Clocks);
        device.bench.run(*device.screen, [&] {
            QWidget& window = device.bench.window;
            tap(pointer, window, {200, BarTop + 13}); // "Menu", as F2
            QMenu* menu = device.bench.window.topSoftKeys()->popup();
            QTRY_VERIFY(menu->isVisible());
            tap(pointer, *menu, menu->actionGeometry(menu->actions().at(0)).center()); // "Twelve Hours Clocks"
            QTRY_VERIFY(!menu->isVisible());
            QVERIFY(static_cast<WorldClockScreen&>(*device.screen).twelveHour());
            QSignalSpy commands(device.bench.window.topSoftKeys(), &SoftKeyBar::commandTriggered);
            tap(pointer, window, {40, BarTop + 13}); // "Services", as F1
            QCOMPARE(commands.size(), 1);
            QCOMPARE(commands.at(0).at(0).toInt(), int(Commands::Services));
        });
        QVERIFY(!device.screen->isRunning());

        ScreenTestBench bench;
        ControlsScreen screen(bench);
        QWidget& window = bench.window;
        bench.visit(screen, [&] {
            QList<int> steps;
            connect(screen.spinner, &Spinner::deltaRequested, &screen, [&](int delta) { steps << delta; });
            tap(pointer, window, {140, 22}); // left half of the arrows (135..147)
            QCOMPARE(screen.spinner->currentIndex(), 0);
            tap(pointer, window, {155, 22});
            tap(pointer, window, {155, 22});
            QCOMPARE(screen.spinner->currentIndex(), 2);
            swipe(pointer, window, {120, 22}, {20, 22}); // on the box: forward, stops at the end
            swipe(pointer, window, {20, 22}, {120, 22});
            QCOMPARE(screen.spinner->currentIndex(), 1);
            // A swipe over the screen away from the controls steps the focused spinner.
            swipe(pointer, window, {200, 200}, {60, 200});
            QCOMPARE(screen.spinner->currentIndex(), 2);
            QCOMPARE(steps, (QList<int> {-1, 1, 1, 1, -1, 1}));

            tap(pointer, window, {50, 72});
            QTRY_VERIFY(screen.field->hasFocus());
            tap(pointer, window, {50, 122});
            QTRY_COMPARE(screen.clicks, 1);
            tap(pointer, window, {200, 240}); // nothing there
            QCOMPARE(screen.clicks, 1);
            QCOMPARE(screen.spinner->currentIndex(), 2);
        });
    }

    // ---- The window on a phone: the scale that fills the screen, and the screen's own rotation.
    void scaleFillsTheScreen()
    {
        using Case = std::tuple<QSize, QSize, double>; // the screen's available size, the work area, the scale
        // Upright the device is 240 x (268 + 26) = 240 x 294; turned, 268 x (240 + 26) = 268 x 266.
        const Case cases[] = {
            // Phone 360 x 720: upright min(1.5, 2.449), turned min(360/268 = 1.3433, 2.707) -> 1.3433.
            {{360, 720}, {240, 268}, 360.0 / 268},
            // Desktop 1920 x 1050: upright min(8, 3.571), turned min(7.16, 3.947) -> 3.571, held at 2.
            {{1920, 1050}, {240, 268}, 2.0},
            // Small landscape 800 x 500: upright min(3.33, 500/294 = 1.7007), turned min(2.985, 1.880).
            {{800, 500}, {240, 268}, 500.0 / 294},
            // A tall work area 200 x 400 on a 600 x 1200 portrait screen: upright min(3, 2.838) = 2.838,
            // turned 400 x 226: min(1.5, 5.3) = 1.5.
            {{600, 1200}, {200, 400}, 1.5},
            // No screen: the largest scale.
            {{}, {240, 268}, 2.0},
        };
        for (const auto& [available, workArea, scale] : cases)
            QCOMPARE(FitScale(available, workArea, SoftKeyBar::BarHeight, 2.0), scale);
    }

    void workAreaFollowsTheScreensRotation()
    {
        ScreenTestBench bench;
        const QSize upright(240, 268), turned(268, 240);
        const std::pair<Qt::ScreenOrientation, QSize> steps[]
            = {{Qt::LandscapeOrientation, turned}, {Qt::InvertedLandscapeOrientation, turned},
                {Qt::PortraitOrientation, upright}, {Qt::PrimaryOrientation, upright},
                {Qt::InvertedLandscapeOrientation, turned}, {Qt::InvertedPortraitOrientation, upright}};
        for (const auto& [orientation, workArea] : steps) {
            emit QGuiApplication::primaryScreen()->orientationChanged(orientation);
            QCOMPARE(bench.window.workArea(), workArea);
            QCOMPARE(bench.window.size(), workArea + QSize(0, SoftKeyBar::BarHeight));
        }
    }
};

QTEST_MAIN(TouchTest)
#include "TouchTest.moc"
