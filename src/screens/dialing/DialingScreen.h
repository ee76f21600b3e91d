// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "ui/Screen.h"

#include <QFont>

class ReportList;

// The Dialing codes reference: a chooser above two report lists, the international calling codes by
// country and the US area codes by city. The chooser shows one list and hides the other; the lists are
// filled afresh at every opening and nothing is kept.
class DialingScreen final : public Screen
{
    Q_OBJECT

public:
    DialingScreen(ScreenEnvironment& environment, DeviceWindow& window);

protected:
    void initialise() override;
    void paint(QPainter& painter) override;

private:
    Spinner* m_chooser;
    ReportList* m_international = nullptr;
    ReportList* m_areaCodes = nullptr;
    QFont m_listFont;
};
