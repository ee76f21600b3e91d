// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QWidget>

#include <vector>

class QEventLoop;
class Screen;
class SoftKeyBar;

// The device: a work area of W x H logical pixels with the soft-key bar below it. Screens run
// modally on a stack inside the work area; runs nest, and "Exit" unwinds them all.
// Keys: F1/F2 press the soft keys, Return/Enter is the action key, Escape is the Back key, Ctrl+R rotates
// the work area.
class DeviceWindow final : public QWidget
{
    Q_OBJECT

public:
    explicit DeviceWindow(QSize workArea);
    ~DeviceWindow() override;

    QSize workArea() const { return m_workArea; }
    void setWorkArea(QSize size);
    // Swaps the work area's width and height; every running screen lays itself out again.
    void rotate() { setWorkArea(m_workArea.transposed()); }
    // Turns the work area to lie as the screen now does (a phone turned on its side).
    void followOrientation(Qt::ScreenOrientation orientation);

    // Shows `screen` above the current one until it ends; returns its result.
    int run(Screen& screen);
    // Ends every running screen, innermost first, each with its destroy work.
    void exitAll();
    // True from exitAll() until the outermost run has ended.
    bool isExiting() const { return m_exiting; }
    Screen* topScreen() const;
    SoftKeyBar* topSoftKeys() const;

signals:
    // A screen has initialised and laid itself out.
    void screenShown(Screen& screen);

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;
    // Closing the window from its frame ends the program as "Exit" does.
    void closeEvent(QCloseEvent* event) override;

private:
    friend class Screen;
    struct Run
    {
        Screen* screen = nullptr;
        SoftKeyBar* softKeys = nullptr;
        QEventLoop* loop = nullptr;
    };

    void screenEnded(Screen& screen);
    void placeChildren();
    void showTop();
    bool handleDeviceKey(int key, Qt::KeyboardModifiers modifiers);

    QSize m_workArea;
    QWidget* m_workAreaWidget;
    std::vector<Run> m_runs;
    bool m_exiting = false;
};
