// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/MessageBox.h"

namespace {

MessageBox::Interceptor& interceptor()
{
    static MessageBox::Interceptor current;
    return current;
}

} // namespace

QMessageBox::StandardButton MessageBox::show(QWidget* parent, const QString& text, const QString& caption,
    QMessageBox::StandardButtons buttons, QMessageBox::Icon icon)
{
    const Request request {text, caption, buttons, icon};
    if (interceptor())
        return interceptor()(request);
    QMessageBox box(icon, caption, text, buttons, parent);
    return static_cast<QMessageBox::StandardButton>(box.exec());
}

void MessageBox::setInterceptor(Interceptor replacement)
{
    interceptor() = std::move(replacement);
}
