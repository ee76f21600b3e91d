// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "reference/ClothingSizes.h"
#include "ui/Screen.h"

#include <QFont>
#include <QStringList>

// The Clothing sizes card: a wearer and a garment chosen with two spinners, and that garment's size
// table below them. A hidden spinner holds the focus; its steps scroll the rows sideways.
class ClothingScreen final : public Screen
{
    Q_OBJECT

public:
    ClothingScreen(ScreenEnvironment& environment, DeviceWindow& window);

    // Scroll step of the rows, 0 to ClothingSizes::MaxShift.
    int shift() const { return m_shift; }
    // The table title and its rows as they are drawn now, scrolled by the shift.
    QString tableTitle() const;
    QStringList shownRows() const;

protected:
    void initialise() override;
    void paint(QPainter& painter) override;

private:
    // Scrolls the rows sideways by `delta` characters, within 0 to ClothingSizes::MaxShift.
    void shiftRows(int delta);
    // Fills the garment list with the chosen wearer's garments and selects `garment`.
    void fillGarments(int garment);
    void showTable();

    Spinner* m_wearerSpinner;
    Spinner* m_garmentSpinner;
    Spinner* m_shiftSpinner;
    QFont m_labelFont;
    QFont m_listFont;
    QFont m_rowFont;
    const ClothingSizes::Table* m_table = nullptr;
    int m_shift = 0;
};
