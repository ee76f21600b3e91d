// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "ui/Screen.h"
#include "units/UnitCatalogue.h"
#include "units/UnitLists.h"

#include <QFont>

class NumericEdit;

// The Measurements screen: an amount converted between two units of one of seven categories. The
// category, both units and the amount are kept in the settings between visits.
class MeasureScreen final : public Screen
{
    Q_OBJECT

public:
    MeasureScreen(ScreenEnvironment& environment, DeviceWindow& window);

protected:
    void initialise() override;

private:
    // The edit boxes are made on the first opening, so that the program's start does not pay for them.
    void makeFields();
    void readUnits();
    // Fills both unit lists with the units of the selected category.
    void fillUnitLists();
    void changeCategory();
    void convert();
    // Puts `text` into the amount field, which converts it.
    void setAmount(const QString& text);
    void clear();
    void undo();
    void setUndoEnabled(bool enabled);

    UnitCatalogue m_catalogue;
    UnitLists m_units;
    Spinner* m_categorySpinner;
    Spinner* m_fromSpinner;
    Spinner* m_toSpinner;
    NumericEdit* m_amountEdit = nullptr;
    NumericEdit* m_resultEdit = nullptr;
    QFont m_listFont;
};
