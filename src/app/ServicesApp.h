// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "app/ServiceTable.h"
#include "screens/weather/WeatherOpener.h"
#include "store/CityCatalogue.h"
#include "store/CurrencyStore.h"
#include "store/InitialCurrencyList.h"
#include "store/WeatherFavourites.h"
#include "ui/Screen.h"

#include <QFont>

#include <array>
#include <memory>

class Spinner;

// The Services launcher and the application object: it owns the data stores and every screen for
// the life of the program, shows the eight services as a grid of icons and opens the chosen one.
class ServicesApp final : public Screen, public WeatherOpener
{
    Q_OBJECT

public:
    ServicesApp(ScreenEnvironment& environment, DeviceWindow& window);
    ~ServicesApp() override;

    int selection() const;
    bool leftArrowPressed() const { return m_leftPressed; }
    bool rightArrowPressed() const { return m_rightPressed; }
    // The highlight around the selected icon: left, top and the exclusive right and bottom edges.
    QRect highlightRect() const;
    // The screen a service opens; nullptr for "Todo List" and services not built yet.
    Screen* serviceScreen(int index) const;
    // Where a finger picks service `index`: its cell of the icon grid.
    QRect iconTarget(int index) const;
    // The big icon, the label and the two arrows, as tap targets.
    QRect bigIconTarget() const;
    QRect labelTarget() const;
    QRect arrowTarget(int step) const;
    void openWeather(Screen& opener, const std::wstring& cityName) override;

protected:
    void initialise() override;
    void layout(int width, int height) override;
    void paint(QPainter& painter) override;
    void timerTick(int id) override;
    void keyPressEvent(QKeyEvent* event) override;
    void tap(QPoint at) override;

private:
    static constexpr int LeftArrowTimer = 1;
    static constexpr int RightArrowTimer = 2;

    void loadStores();
    int iconX(int index) const;
    int iconY(int index) const;
    void openService(int index);
    // A step of the selection: the arrow on its side is shown pressed for a moment.
    void pressArrow(int delta);

    // The launcher's own state.
    Spinner* m_selector;
    std::array<QString, ServiceCount> m_labels;
    QRect m_labelBand;
    bool m_leftPressed = false;
    bool m_rightPressed = false;
    QFont m_labelFont;
    InitialCurrencyList m_initialCurrencies;
    // The stores, then the screens: built once, destroyed in reverse order at the end.
    CityCatalogue m_cities;
    WeatherFavourites m_favourites;
    CurrencyStore m_currencies;
    std::array<std::unique_ptr<Screen>, ServiceCount> m_screens;
};
