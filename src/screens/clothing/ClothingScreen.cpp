// SPDX-License-Identifier: GPL-3.0-or-later
#include "screens/clothing/ClothingScreen.h"

#include "settings/SettingsTable.h"
#include "ui/ConverterLayout.h"
#include "ui/Painting.h"
#include "ui/Spinner.h"
#include "ui/StringIds.h"
#include "ui/TitleBand.h"
#include "ui/WideString.h"

#include <QPainter>

#include <algorithm>
#include <functional>

namespace {

// Layout, b being the title band's height: the wearer and garment spinners one above the other at
// (6, b+6) and (6, b+36), W-17 wide and 24 high; the table title at (5, b+70); the four rows from
// (5, b+100), 28 pixels apart. The hidden shift spinner sits at (W-25, 10), 0 x 0.
constexpr int Band = TitleBand::Height;
constexpr int WearerTop = Band + 6;
constexpr int GarmentTop = Band + 36;
constexpr int TableTitleTop = Band + 70;
constexpr int FirstRowTop = Band + 100;
constexpr int RowPitch = 28;

// A stored list position, or 0 when it is not one of `count` positions.
int positionOrFirst(std::uint32_t stored, std::size_t count)
{
    return stored < count ? static_cast<int>(stored) : 0;
}

} // namespace

ClothingScreen::ClothingScreen(ScreenEnvironment& environment, DeviceWindow& window)
    : Screen(environment, window, MenuBarId::Converter, QStringLiteral("clothing"))
    , m_wearerSpinner(addSpinner(QStringLiteral("wearerSpinner")))
    , m_garmentSpinner(addSpinner(QStringLiteral("garmentSpinner")))
    , m_shiftSpinner(addSpinner(QStringLiteral("shiftSpinner"), std::bind_front(&ClothingScreen::shiftRows, this)))
{
    setTitleBand(TitleBand(Painting::ConverterBand, StringIds::ClothingSizes));
    setBackgroundPicture(L"bconv.jpg");
    place(*m_wearerSpinner, ConverterLayout::listBoxAt(WearerTop));
    place(*m_garmentSpinner, ConverterLayout::listBoxAt(GarmentTop));
    place(*m_shiftSpinner, [](QSize area) { return QRect(area.width() - 25, 10, 0, 0); });
    keepSetting(Settings::ClothesWho, *m_wearerSpinner);
    keepSetting(Settings::ClothesKind, *m_garmentSpinner);
    m_shiftSpinner->setItems({QStringLiteral("1"), QStringLiteral("2")});
    setTabOrder(m_wearerSpinner, m_garmentSpinner);
    setTabOrder(m_garmentSpinner, m_shiftSpinner);
    connect(m_wearerSpinner, &Spinner::currentChanged, this, [this] {
        fillGarments(0);
        showTable();
    });
    connect(m_garmentSpinner, &Spinner::currentChanged, this, &ClothingScreen::showTable);
}

QString ClothingScreen::tableTitle() const
{
    return m_table ? Painting::loadString(m_table->titleId) : QString();
}

QStringList ClothingScreen::shownRows() const
{
    QStringList rows;
    if (m_table) {
        for (const std::wstring_view row : m_table->rows)
            rows << ToQString(ClothingSizes::Shifted(row, m_shift));
    }
    return rows;
}

void ClothingScreen::initialise()
{
    m_labelFont = Painting::makeFont(21, Painting::Bold);
    m_listFont = Painting::makeFont(21, Painting::Normal);
    m_rowFont = Painting::makeFont(20, Painting::Bold);
    m_wearerSpinner->setFont(m_listFont);
    m_garmentSpinner->setFont(m_listFont);

    // Each visit starts with the rows at their first character.
    m_shift = 0;
    m_shiftSpinner->setCurrentIndex(0);

    QStringList wearers;
    for (const int id : ClothingSizes::Wearers())
        wearers << Painting::loadString(id);
    m_wearerSpinner->setItems(wearers);
    const int wearer = positionOrFirst(ReadSetting(settings(), Settings::ClothesWho), ClothingSizes::Wearers().size());
    m_wearerSpinner->setCurrentIndex(wearer);
    const std::uint32_t garment = ReadSetting(settings(), Settings::ClothesKind);
    fillGarments(positionOrFirst(garment, ClothingSizes::Garments(wearer).size()));
    showTable();
    m_shiftSpinner->setFocus();
}

void ClothingScreen::fillGarments(int garment)
{
    QStringList garments;
    for (const int id : ClothingSizes::Garments(m_wearerSpinner->currentIndex()))
        garments << Painting::loadString(id);
    m_garmentSpinner->setItems(garments);
    m_garmentSpinner->setCurrentIndex(garment);
}

void ClothingScreen::showTable()
{
    m_table = ClothingSizes::Find(m_wearerSpinner->currentIndex(), m_garmentSpinner->currentIndex());
    update();
}

void ClothingScreen::paint(QPainter& painter)
{
    painter.setPen(Painting::White);
    Painting::drawTextAt(painter, m_labelFont, ConverterLayout::TextLeft, TableTitleTop, tableTitle());
    const QStringList rows = shownRows();
    for (int i = 0; i < rows.size(); ++i)
        Painting::drawTextAt(painter, m_rowFont, ConverterLayout::TextLeft, FirstRowTop + i * RowPitch, rows.at(i));
}

void ClothingScreen::shiftRows(int delta)
{
    m_shift = std::clamp(m_shift + delta, 0, ClothingSizes::MaxShift);
    update();
}
