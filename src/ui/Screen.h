// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "settings/RegistrySettings.h"
#include "ui/MenuBars.h"
#include "ui/ScreenEnvironment.h"
#include "ui/SwipeRecogniser.h"
#include "ui/TitleBand.h"

#include <QImage>
#include <QPixmap>
#include <QWidget>

#include <functional>
#include <initializer_list>
#include <map>
#include <optional>
#include <set>
#include <string>
#include <vector>

class DeviceWindow;
struct DwordSetting;
struct StringSetting;
class SoftKeyBar;
class Spinner;

// A screen of the program: a modal, full-work-area page with its own soft-key bar. The object lives
// for the whole run of the program; each time it is shown, the framework calls its hooks in the order
// initialise, layout (and again on every size change), paint; timers and commands while it runs;
// destroyWork exactly once when it ends ("Services", "Done", "Exit" or its own end). What a screen
// states once while it is built (title band, placed controls, labels, commands, kept settings) the
// framework carries out itself, so a screen overrides only the hooks its own logic needs.
class Screen : public QWidget
{
    Q_OBJECT

public:
    Screen(ScreenEnvironment& environment, DeviceWindow& window, MenuBarId menuBarId, QString name);
    ~Screen() override;

    MenuBarId menuBarId() const { return m_menuBarId; }
    // Short name, used for the rendered tour ("launcher", "worldclock", ...).
    const QString& screenName() const { return m_name; }
    bool isRunning() const { return m_running; }
    // This run's soft-key bar; nullptr while the screen is not shown.
    SoftKeyBar* softKeys() const { return m_softKeys; }

    // Delivers a command, as the soft keys, their popups and the action key do.
    void sendCommand(int command);
    // The Back key (Escape on a desktop keyboard): on a screen that has taken it over, it erases the
    // character before the cursor in the focused edit box; elsewhere it does nothing.
    void backKey();
    // Opens `screen` modally over this one and returns its result once it has ended.
    int runModal(Screen& screen);
    // Ends this screen's run with `result`; its destroy work follows once.
    void endScreen(int result = 0);
    // What a rendered tour does before it opens this screen (give it something to show), and on it after
    // taking its picture (open a dialog, say).
    virtual void tourPrepare() { }
    virtual void tourVisit() { }
    // Called by the launcher just before it opens this screen as one of its services.
    virtual void openedAsService() { }

protected:
    // Hooks each screen states. A screen that cannot open calls endScreen() from initialise().
    virtual void initialise() { }
    virtual void layout(int width, int height);
    virtual void paint(QPainter& painter);
    // Default: the 30-band gradient, then the background picture if the screen has one (drawn once per
    // size and kept, so repainting a small area costs little).
    virtual void eraseBackground(QPainter& painter);
    virtual void timerTick(int id);
    virtual void destroyWork() { }
    // Default: the action the screen states for the command; without one, "Services" and "Done" end the
    // screen and "Exit" ends the program.
    virtual void command(int id);
    // A tap on the screen away from its controls, in work-area pixels. Default: nothing.
    virtual void tap(QPoint at);
    // A sideways swipe over the screen away from its controls (+1: the finger went left). Default: the
    // focused spinner steps, as Left/Right would step it.
    virtual void swipe(int delta);

    ScreenEnvironment& environment() const { return m_environment; }
    // The screen's registry accessor.
    RegistrySettings& settings() { return m_settings; }
    DeviceWindow& window() const { return m_window; }
    int workWidth() const;
    int workHeight() const;

    // A one-shot or repeating timer by id; starting a running id restarts it.
    void startScreenTimer(int id, int milliseconds);
    void stopScreenTimer(int id);
    void stopAllTimers();
    void exitProgram();
    // A control of this screen named `objectName` (tests find it by that name), shown with the screen even
    // when it is made while the screen already shows (on a first opening, say).
    template<class Control>
    Control* addControl(const QString& objectName)
    {
        auto* control = new Control(this);
        control->setObjectName(objectName);
        control->show();
        return control;
    }
    // A spinner on this screen named `objectName` (tests find it by that name). While the screen runs, each
    // step made on it is reported to `onStep`, before the spinner moves.
    Spinner* addSpinner(const QString& objectName, std::function<void(int delta)> onStep = {});
    // What the commands `ids` do on this screen, in place of the default; screens state it while they are built.
    void onCommand(std::initializer_list<int> ids, const std::function<void()>& action);
    // A setting the screen keeps between visits: written from `value` each time the screen ends, after
    // its destroy work. A list's position is kept only while it has one.
    void keepSetting(const DwordSetting& setting, std::function<std::uint32_t()> value);
    void keepSetting(const StringSetting& setting, std::function<std::wstring()> value);
    void keepSetting(const DwordSetting& setting, const Spinner& list);
    // The band across the top with the screen's title. The framework lays it out to the work area's width
    // and paints it before the screen's own painting.
    void setTitleBand(const TitleBand& band) { m_titleBand = band; }
    QRect titleRect() const { return m_titleBand ? m_titleBand->rect() : QRect(); }
    // Keeps `control` at `where(work area size)`: placed on every size change, before layout().
    void place(QWidget& control, std::function<QRect(QSize area)> where);
    // A fixed text in white, painted after the title band with its text cell's top-left corner at
    // `where(work area size)`.
    void addLabel(int stringId, const QFont& font, std::function<QPoint(QSize area)> where);
    // The background picture, found beside the program by the joined-name rule; loaded by each run.
    void setBackgroundPicture(const wchar_t* fileName) { m_pictureName = fileName; }
    // Screens with edit boxes call this while they initialise, so that the Back key edits.
    void takeOverBackKey() { m_backKeyTakenOver = true; }
    // The area being repainted, for screens that skip what lies outside it.
    const QRect& dirtyRect() const { return m_dirty; }

    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    // Mouse and touch runs become taps and swipes.
    bool event(QEvent* event) override;

signals:
    void painted();

private:
    friend class DeviceWindow;
    // Called by the window around a run.
    bool beginRun(SoftKeyBar& softKeys);
    int finishRun();
    bool hasEnded() const { return m_ended; }
    // The title band, the placed controls, then the screen's own layout.
    void arrange();
    void paintTitleAndLabels(QPainter& painter);

    struct Label
    {
        int stringId;
        QFont font;
        std::function<QPoint(QSize area)> where;
    };

    ScreenEnvironment& m_environment;
    DeviceWindow& m_window;
    RegistrySettings m_settings;
    std::vector<std::function<void()>> m_keptSettings; // each writes one kept setting
    std::map<int, std::function<void()>> m_commands;
    std::vector<std::pair<QWidget*, std::function<QRect(QSize)>>> m_placed;
    std::vector<Label> m_labels;
    std::optional<TitleBand> m_titleBand;
    MenuBarId m_menuBarId;
    QString m_name;
    SoftKeyBar* m_softKeys = nullptr;
    bool m_running = false;
    bool m_ended = false;
    bool m_backKeyTakenOver = false;
    int m_result = 0;
    const wchar_t* m_pictureName = nullptr;
    QImage m_picture;
    QPixmap m_background;
    QRect m_dirty;
    std::set<int> m_timers; // ids of the timers started and not stopped
    SwipeRecogniser m_swipe;
};
