// SPDX-License-Identifier: GPL-3.0-or-later
#include "screens/dialing/DialingScreen.h"

#include "reference/DialingCodes.h"
#include "ui/BusyCursor.h"
#include "ui/Commands.h"
#include "ui/ConverterLayout.h"
#include "ui/Painting.h"
#include "ui/ReportList.h"
#include "ui/SoftKeyBar.h"
#include "ui/Spinner.h"
#include "ui/StringIds.h"
#include "ui/TitleBand.h"
#include "ui/WideString.h"

#include <QPainter>

namespace {

// The chooser at (6, b+6), W-17 wide and 24 high; both lists share (0, b+36) to the bottom right.
constexpr int Band = TitleBand::Height;
constexpr int ChooserTop = Band + 6;
constexpr int ListTop = Band + 36;
// The chooser's longest item, "International Dialing Codes", fits its box at this height.
constexpr int ListFontHeight = 15;

void fillLists(ReportList& international, ReportList& areaCodes)
{
    const BusyCursor busy;
    international.clearRows();
    int row = 0;
    for (const DialingCodes::Country& country : DialingCodes::International())
        international.insertRow(
            row++, {ToQString(country.country), ToQString(DialingCodes::ShownCode(country)), ToQString(country.gmt)});
    areaCodes.clearRows();
    row = 0;
    for (const DialingCodes::AreaCode& area : DialingCodes::UsAreaCodes())
        areaCodes.insertRow(row++, {ToQString(area.city), ToQString(area.state), ToQString(area.code)});
}

// The chooser's first item shows the international list, its second the area codes.
void showChosenList(int chosen, ReportList& international, ReportList& areaCodes)
{
    international.setVisible(chosen == 0);
    areaCodes.setVisible(chosen != 0);
}

} // namespace

DialingScreen::DialingScreen(ScreenEnvironment& environment, DeviceWindow& window)
    : Screen(environment, window, MenuBarId::Launcher, QStringLiteral("dialing"))
    , m_chooser(addSpinner(QStringLiteral("chooserSpinner")))
{
    TitleBand title(Painting::ConverterBand, StringIds::DialingCodes);
    title.setTextOrigin(QPoint(5, 0));
    setTitleBand(title);
    setBackgroundPicture(L"bconv.jpg");
    place(*m_chooser, ConverterLayout::listBoxAt(ChooserTop));
    m_chooser->setItems(
        {Painting::loadString(StringIds::InternationalDialingCodes), Painting::loadString(StringIds::UsAreaCodes)});
    connect(m_chooser, &Spinner::currentChanged, this,
        [this](int chosen) { showChosenList(chosen, *m_international, *m_areaCodes); });
}

void DialingScreen::initialise()
{
    // The lists are made on the first opening, so that the program's start does not pay for them.
    if (!m_international) {
        m_international = addControl<ReportList>(QStringLiteral("internationalReportList"));
        m_international->setColumns({{Painting::loadString(StringIds::Country), 45},
            {Painting::loadString(StringIds::Code), 26}, {Painting::loadString(StringIds::Gmt), 21, 1}});
        // The state and the code share what the city leaves, 92 % in all as above, room kept for the scroll bar.
        m_areaCodes = addControl<ReportList>(QStringLiteral("areaCodeReportList"));
        m_areaCodes->setColumns({{Painting::loadString(StringIds::City), 35},
            {Painting::loadString(StringIds::RegionState), 40}, {Painting::loadString(StringIds::Code), 17}});
        for (ReportList* list : {m_international, m_areaCodes})
            place(*list, [](QSize area) { return QRect(0, ListTop, area.width(), area.height() - ListTop); });
    }
    // Bar 107 greys "Services" for the launcher; here it must lead back to the launcher.
    softKeys()->setKeyEnabled(Commands::Services, true);
    m_listFont = Painting::makeFont(ListFontHeight, Painting::Normal);
    m_chooser->setFont(m_listFont);
    m_international->setFont(m_listFont);
    m_areaCodes->setFont(m_listFont);
    m_chooser->setCurrentIndex(0);
    showChosenList(0, *m_international, *m_areaCodes);
    fillLists(*m_international, *m_areaCodes);
    m_chooser->setFocus();
}

void DialingScreen::paint(QPainter& painter)
{
    // A frame one pixel outside the chooser.
    const QRect chooser = m_chooser->geometry();
    painter.setPen(Qt::black);
    painter.setBrush(Qt::NoBrush);
    painter.drawRect(chooser.x() - 1, chooser.y() - 1, chooser.width() + 1, chooser.height() + 1);
}
