// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "screens/city/CityScreen.h"
#include "screens/worldclock/ClockCell.h"
#include "time/ClockOffsets.h"
#include "time/ClockSlotText.h"

#include <array>
#include <vector>

class CityCatalogue;
class Spinner;
class WeatherFavourites;

// World Clocks: the home clock (the device's own time) and four cities, each with an analog dial, its
// time and date, a daylight-saving mark and a weather icon. Left/right move the focus over the ten
// entries (clock faces and weather icons); the action key changes a clock's city or adds the city to
// the weather favourites.
class WorldClockScreen final : public CityScreen
{
    Q_OBJECT

public:
    static constexpr int SlotCount = 5;

    WorldClockScreen(
        ScreenEnvironment& environment, DeviceWindow& window, CityCatalogue& cities, WeatherFavourites& favourites);

    std::uint32_t slotCity(int slot) const { return m_cityOf[static_cast<std::size_t>(slot)]; }
    const ClockSlot& slot(int slot) const { return m_slots[static_cast<std::size_t>(slot)]; }
    // The time and date as drawn (twelve-hour form applied) and the AM/PM mark ("" in 24-hour form).
    QString shownTime(int slot) const;
    QString shownSuffix(int slot) const;
    QString shownDate(int slot) const;
    QString shownName(int slot) const;
    bool twelveHour() const { return m_twelveHour; }
    // Where focus entry `entry` is drawn: even entries are clock faces, odd ones weather icons.
    QRect entryRect(int entry) const;
    // One tick of the clock: new texts from the device clock, and a repaint of what changed.
    void refresh();
    void tourVisit() override;

protected:
    void initialise() override;
    void layout(int width, int height) override;
    void paint(QPainter& painter) override;
    void timerTick(int id) override;
    void tap(QPoint at) override;

private:
    void readSettings();
    void computeOffsets();
    void formatTexts();
    void makeHomeFavourite();
    bool addFavourite(std::uint32_t city);
    // The action key on the focused entry: a clock face changes its city, a weather icon shows its weather.
    void openFocusedEntry();
    void changeCity(int slot);
    void showWeather(int slot);
    void toggleTwelveHour();
    // A step of the focus: the title arrow on its side lights up.
    void showFocusStep(int delta);
    ClockView view(int slot) const;
    // The arrows at the title band's right end, drawn larger after a step to that side.
    void paintTitleArrows(QPainter& painter) const;
    void paintFocus(QPainter& painter) const;
    // The focus entry (0 home dial, 1 home weather, 2 first city's dial, ...) under `at`, or -1.
    int entryAt(QPoint at) const;

    std::array<std::uint32_t, SlotCount> m_cityOf {};
    std::array<QString, SlotCount> m_names;
    std::array<ZoneOffset, SlotCount> m_standardOffsets {};
    std::array<bool, SlotCount> m_favourite {};
    std::array<ClockSlot, SlotCount> m_slots {};
    std::array<ClockSlotText, SlotCount> m_texts {};
    std::array<SystemTime, SlotCount> m_handTimes {};
    DeviceOffset m_device;
    bool m_twelveHour = false;
    bool m_syncLocalZone = false;
    Spinner* m_focusList;
    bool m_movedLeft = false;
    bool m_movedRight = false;
    ClockFonts m_fonts;
    std::vector<ClockCell> m_cells; // the home clock's panel, then the city rows
};
