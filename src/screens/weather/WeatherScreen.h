// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "store/CityCatalogue.h"
#include "time/ZoneOffset.h"
#include "ui/Screen.h"
#include "weather/ForecastDisplay.h"

#include <QFont>
#include <QImage>

#include <array>
#include <cstdint>
#include <string>

class Spinner;
class WeatherFavourites;

// World Weather: the stored forecast of one weather favourite, one day at a time over five days. Opened by
// the launcher for the favourite last chosen ("wetp"), or by another screen for one of its cities, which
// sets the entry mode: then the favourite cannot be changed and "Services" is disabled.
class WeatherScreen final : public Screen
{
    Q_OBJECT

public:
    WeatherScreen(ScreenEnvironment& environment, DeviceWindow& window, WeatherFavourites& favourites);

    // The launcher opens the screen for the favourite of "wetp".
    void openedAsService() override { m_entryMode = false; }
    // Before another screen opens it for its city.
    void setEntryCity(const std::wstring& cityName);
    bool entryMode() const { return m_entryMode; }

    const std::wstring& favouriteName() const { return m_favouriteName; }
    std::int32_t favouritePosition() const { return m_favouritePosition; }
    const QString& homeCityName() const { return m_homeCityName; }
    int currentDay() const { return m_currentDay; }
    // What the current day shows.
    const ForecastDayTexts& shownDay() const { return m_shown; }
    QString shownWeekday() const;
    QString cityLine() const;
    // Where the current day's icon is drawn (empty while there is none).
    QRect iconRect() const;
    // The tour shows a sample forecast, stored for the favourite of "wetp" when it has none yet.
    void tourPrepare() override;
    void tourVisit() override;

protected:
    void initialise() override;
    void layout(int width, int height) override;
    void paint(QPainter& painter) override;

private:
    void readHomeCity();
    // The favourite's city's offset from GMT now, when the catalogue knows the city.
    std::optional<ZoneOffset> cityOffset();
    void changeFavourite();
    // False when the favourite is not in the store: the screen has told the user and closed.
    bool computeForecast();
    // Left/Right: the next or previous day of the five, wrapping.
    void stepDay(int delta);
    void showDay(int day);
    void paintDay(QPainter& painter) const;
    void paintWeekday(QPainter& painter) const;
    int weekdayWidth() const;
    void paintDetails(QPainter& painter) const;

    WeatherFavourites& m_favourites;
    CityCatalogue m_cities;
    bool m_entryMode = false;
    std::int32_t m_favouritePosition = 0;
    std::wstring m_favouriteName;
    QString m_homeCityName;
    DeviceOffset m_deviceOffset;
    QString m_cityLine;
    std::wstring m_iconFolder;
    std::wstring m_mapping;
    std::array<QString, 7> m_weekdays;
    SystemTime m_today;
    std::uint8_t m_temperatureUnit = 0; // 0: Fahrenheit; nothing sets it
    std::optional<ForecastDisplay> m_display;
    int m_currentDay = 1;
    ForecastDayTexts m_shown;
    QImage m_icon;
    Spinner* m_days;
    // Normal 18, normal 20, bold 18, bold 20, bold 35.
    QFont m_labelFont, m_valueFont, m_conditionFont, m_cityFont, m_temperatureFont;
    bool m_weekdayInCard = false;
    bool m_twoColumns = false;
    int m_labelWidth = 0;
    QRect m_cityBand, m_dayBand, m_card, m_details;
};
