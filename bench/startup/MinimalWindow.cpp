// SPDX-License-Identifier: GPL-3.0-or-later
// Shows one window and exits once it has been painted.
#include <QApplication>
#include <QPainter>
#include <QTimer>
#include <QWidget>

namespace {

class Window final : public QWidget
{
protected:
    void paintEvent(QPaintEvent*) override
    {
        QPainter(this).fillRect(rect(), QColor(100, 136, 166));
        QTimer::singleShot(0, qApp, &QCoreApplication::quit);
    }
};

} // namespace

int main(int argc, char** argv)
{
    QApplication app(argc, argv);
    Window window;
    window.resize(240, 294);
    window.show();
    return app.exec();
}
