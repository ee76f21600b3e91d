// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "astro/CitySunTimes.h"
#include "screens/city/CityScreen.h"
#include "screens/map/MapLayout.h"
#include "screens/map/MapRenderer.h"
#include "time/CityDaylight.h"
#include "time/ClockOffsets.h"

#include <QFont>

class CityCatalogue;
class Spinner;
class WeatherFavourites;

// World Map: the world picture with the night side darkened, the device's time, and one selected
// city with its time, coordinates, sunrise and sunset. Left/right step through the catalogue (wrapping
// at both ends); the menu shows or hides the World Clocks cities and changes the city.

class MapScreen final : public CityScreen
{
    Q_OBJECT

public:
    static constexpr int TickMilliseconds = 250;
    static constexpr int TicksPerRedraw = 240; // the map is drawn again every 60 seconds

    MapScreen(
        ScreenEnvironment& environment, DeviceWindow& window, CityCatalogue& cities, WeatherFavourites& favourites);

    std::int32_t selectedCity() const { return m_selected; }
    bool showCities() const { return m_showCities; }
    const MapLayout& mapLayout() const { return m_layout; }
    // The texts as drawn: the device time (twelve-hour form applied), the city's time, name and sun.
    QString shownLocalTime() const;
    const QString& cityTime() const { return m_cityTime; }
    QString shownCityName() const;
    const CitySunTimes& sun() const { return m_sun; }
    // The map as last drawn, night and markers included; null before the first paint.
    const QImage& mapPicture() const { return m_map; }
    bool holdsNightPicture() const { return !m_nightPicture.isNull(); }
    // One tick of the 250 ms timer.
    void tick();

protected:
    void initialise() override;
    void layout(int width, int height) override;
    void eraseBackground(QPainter& painter) override;
    void paint(QPainter& painter) override;
    void timerTick(int id) override;
    void destroyWork() override;

private:
    void loadPictures();
    void computeDeviceOffset();
    void computeCity();
    void formatTimes();
    // Left/Right: the next or previous city of the catalogue, wrapping at both ends.
    void stepCity(int delta);
    void selectCity(std::int32_t city);
    void toggleMarkers();
    void changeCity();
    void showWeather();
    void drawMap();
    MapRenderer::MarkerSet markers();
    void paintClock(QPainter& painter) const;
    void paintCity(QPainter& painter) const;

    Spinner* m_spinner;
    std::int32_t m_selected = 0;
    bool m_showCities = true;
    bool m_twelveHour = false;
    bool m_redrawMap = true;
    int m_tickCount = 0;
    bool m_leftPressed = false;
    bool m_rightPressed = false;
    DeviceOffset m_device;
    CityZoneTexts m_homeZone; // the home city's zone, read when the device offset is computed
    bool m_deviceDaylight = false;
    ClockSlot m_citySlot;
    CityRecord m_city;
    CitySunTimes m_sun;
    QString m_localTime; // "HH:MM:SS", 24-hour
    QString m_cityTime;
    QImage m_dayPicture;
    QImage m_nightPicture; // "bmap.jpg": loaded and held, never drawn
    QImage m_map;
    MapLayout m_layout;
    QFont m_timeFont, m_smallFont, m_cityTimeFont, m_nameFont, m_sunFont;
};
