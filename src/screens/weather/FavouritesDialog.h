// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "store/CountryCityList.h"
#include "ui/Screen.h"

#include <QFont>

#include <array>
#include <string>

class QPushButton;
class Spinner;
class WeatherFavourites;

// The weather favourites: the list with "Remove", the chosen favourite's country, and with "Add" a view
// that adds a city from the country lists of "\weatcs\". The caller sets the favourite to start on and
// reads back the one current when "Done" closes it.
class FavouritesDialog final : public Screen
{
    Q_OBJECT

public:
    FavouritesDialog(ScreenEnvironment& environment, DeviceWindow& window, WeatherFavourites& favourites,
        QString name = QStringLiteral("favourites"));

    void setCurrentFavourite(int index) { m_currentFavourite = index; }
    int currentFavourite() const { return m_currentFavourite; }
    const std::wstring& currentCountry() const { return m_currentCountry; }
    bool addViewShown() const { return m_addViewShown; }
    // The next opening starts in the Add view, as if "Add" had been pressed.
    void openInAddView() { m_openInAddView = true; }

protected:
    void initialise() override;
    void layout(int width, int height) override;
    void paint(QPainter& painter) override;

private:
    // The country spinner, the city spinner and "ADD": hidden until the Add view is shown.
    std::array<QWidget*, 3> addViewControls() const;
    void fillFavourites();
    void favouriteChanged(int index);
    void reloadCountry();
    void showAddView();
    // The action key presses the focused button, as in a dialog.
    void pressFocusedButton();
    void readCountryFile();
    void addSelectedCity();
    void removeSelectedFavourite();

    WeatherFavourites& m_favourites;
    Spinner* m_favouriteList;
    QPushButton* m_removeButton;
    Spinner* m_countryList;
    Spinner* m_cityList;
    QPushButton* m_addButton;
    int m_currentFavourite = 0;
    std::wstring m_currentCountry;
    bool m_addViewShown = false;
    bool m_openInAddView = false;
    CountryCityList m_countryText;
    QFont m_bandFont;
    QFont m_textFont;
    QRect m_listBand, m_informationBand, m_countryLine, m_addBand;
};
