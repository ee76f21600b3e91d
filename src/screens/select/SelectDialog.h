// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "store/CityCatalogue.h"
#include "store/CurrencyStore.h"
#include "ui/Screen.h"

#include <QFont>

class Spinner;

// Chooses a city from the catalogue or a currency from the currency store. The caller sets the mode
// and the starting selection, runs the dialog and reads the selection back; "Done" is the only way out.
// In city mode a "City Informations" panel describes the highlighted city.
class SelectDialog final : public Screen
{
    Q_OBJECT

public:
    enum class Mode { City, Currency };

    SelectDialog(ScreenEnvironment& environment, DeviceWindow& window);

    void setMode(Mode mode) { m_mode = mode; }
    void setSelection(int selection) { m_selection = selection; }
    int selection() const { return m_selection; }
    // The six panel lines ("label: value") of the highlighted city; empty in currency mode.
    const QStringList& panelLines() const { return m_panelLines; }

protected:
    void initialise() override;
    void layout(int width, int height) override;
    void paint(QPainter& painter) override;
    void destroyWork() override;

private:
    void fillCities();
    void fillCurrencies();
    void listChanged(int index);
    void computePanel();

    Mode m_mode = Mode::City;
    int m_selection = 0;
    CityCatalogue m_cities;
    CurrencyStore m_currencies;
    Spinner* m_list;
    QStringList m_panelLines;
    QFont m_titleFont;
    QFont m_listFont;
    QFont m_panelFont;
    QRect m_infoBand;
    int m_panelTop = 0;
};
