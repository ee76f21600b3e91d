// SPDX-License-Identifier: GPL-3.0-or-later
// Qt's hello world: one window showing one line of text, left as soon as it has been painted.
// With --no-text the window is left blank, which spares Qt loading any font.
#include <QApplication>
#include <QLabel>
#include <QTimer>

#include <cstring>

namespace {

class Window final : public QLabel
{
protected:
    void paintEvent(QPaintEvent* event) override
    {
        QLabel::paintEvent(event);
        QTimer::singleShot(0, qApp, &QCoreApplication::quit);
    }
};

} // namespace

int main(int argc, char** argv)
{
    QApplication app(argc, argv);
    Window window;
    if (argc < 2 || std::strcmp(argv[1], "--no-text") != 0)
        window.setText(QStringLiteral("Hello, world"));
    window.resize(240, 294);
    window.show();
    return app.exec();
}
