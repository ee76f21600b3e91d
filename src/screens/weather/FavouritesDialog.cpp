// SPDX-License-Identifier: GPL-3.0-or-later
#include "screens/weather/FavouritesDialog.h"

#include "store/WeatherFavourites.h"
#include "ui/Commands.h"
#include "ui/MessageBox.h"
#include "ui/Painting.h"
#include "ui/SoftKeyBar.h"
#include "ui/Spinner.h"
#include "ui/StringIds.h"
#include "ui/WideString.h"
#include "weather/WeatherCountries.h"

#include <QPainter>
#include <QPushButton>

#include <functional>
#include <utility>

namespace {

constexpr int BandHeight = 24;
constexpr int RowHeight = 26;
constexpr int Gap = 5;
constexpr int ButtonWidth = 78;
constexpr int MinimumColumn = 240; // the width the favourites list and the Add view each need

QPushButton* makeButton(const QString& text, const char* name, QWidget* parent)
{
    auto* button = new QPushButton(text, parent);
    button->setObjectName(QString::fromLatin1(name));
    return button;
}

} // namespace

FavouritesDialog::FavouritesDialog(
    ScreenEnvironment& environment, DeviceWindow& window, WeatherFavourites& favourites, QString name)
    : Screen(environment, window, MenuBarId::Favourites, std::move(name))
    , m_favourites(favourites)
    , m_favouriteList(addSpinner(QStringLiteral("favouriteSpinner")))
    , m_removeButton(makeButton(QStringLiteral("Remove"), "removePushButton", this))
    , m_countryList(addSpinner(QStringLiteral("countrySpinner")))
    , m_cityList(addSpinner(QStringLiteral("citySpinner")))
    , m_addButton(makeButton(QStringLiteral("ADD"), "addPushButton", this))
{
    connect(m_favouriteList, &Spinner::currentChanged, this, &FavouritesDialog::favouriteChanged);
    connect(m_countryList, &Spinner::currentChanged, this, [this] { readCountryFile(); });
    connect(m_addButton, &QPushButton::clicked, this, &FavouritesDialog::addSelectedCity);
    connect(m_removeButton, &QPushButton::clicked, this, &FavouritesDialog::removeSelectedFavourite);
    onCommand({Commands::Add}, std::bind_front(&FavouritesDialog::showAddView, this));
    onCommand({Commands::Ok}, std::bind_front(&FavouritesDialog::pressFocusedButton, this));
}

void FavouritesDialog::initialise()
{
    m_addViewShown = false;
    for (QWidget* control : addViewControls())
        control->hide();
    m_countryList->clear();
    m_cityList->clear();
    m_countryText = {};
    m_favourites.openFavourites(-1);
    fillFavourites();
    m_favouriteList->setCurrentIndex(m_currentFavourite);
    reloadCountry();
    m_bandFont = Painting::makeFont(20, Painting::Bold);
    m_textFont = Painting::makeFont(18, Painting::Normal);
    m_favouriteList->setFont(m_textFont);
    m_removeButton->setFont(m_textFont);
    for (QWidget* control : addViewControls())
        control->setFont(m_textFont);
    m_favouriteList->setFocus();
    if (std::exchange(m_openInAddView, false))
        showAddView();
}

std::array<QWidget*, 3> FavouritesDialog::addViewControls() const
{
    return {m_countryList, m_cityList, m_addButton};
}

void FavouritesDialog::fillFavourites()
{
    QStringList names;
    const std::uint16_t count = m_favourites.count();
    for (std::uint32_t i = 0; i < count; ++i)
        names << ToQString(m_favourites.getName(i));
    m_favouriteList->setItems(names);
}

void FavouritesDialog::favouriteChanged(int index)
{
    m_currentFavourite = index;
    reloadCountry();
    update();
}

void FavouritesDialog::reloadCountry()
{
    m_currentCountry = m_favourites.getCountryFile(static_cast<std::uint32_t>(m_currentFavourite));
}

void FavouritesDialog::pressFocusedButton()
{
    if (auto* focused = qobject_cast<QPushButton*>(focusWidget()))
        focused->click();
}

void FavouritesDialog::showAddView()
{
    m_addViewShown = true;
    layout(workWidth(), workHeight());
    for (QWidget* control : addViewControls())
        control->show();
    QStringList countries;
    for (const std::wstring& country : ListWeatherCountries(environment().paths))
        countries << ToQString(country);
    m_countryList->setItems(countries);
    m_countryList->setCurrentIndex(0);
    readCountryFile();
    softKeys()->setKeyEnabled(Commands::Add, false);
    m_countryList->setFocus();
    update();
}

void FavouritesDialog::readCountryFile()
{
    m_countryText = CountryCityList::read(environment().paths, ToWide(m_countryList->currentText()));
    QStringList cities;
    for (const std::wstring& city : m_countryText.cities())
        cities << ToQString(city);
    m_cityList->setItems(cities);
    m_cityList->setCurrentIndex(0);
}

void FavouritesDialog::addSelectedCity()
{
    const std::wstring city = ToWide(m_cityList->currentText());
    const auto code = m_countryText.codeOf(city);
    if (!code)
        return;
    const std::wstring updateKey
        = std::wstring(WeatherFavourites::InitialUpdateDate) + L":" + ToWide(m_countryList->currentText());
    if (!m_favourites.addFavourite(city, *code, L"", updateKey))
        return;
    fillFavourites();
    // The new city is selected by its name, as a list box selects the first item starting with a text;
    // it becomes the current favourite.
    const QStringList& names = m_favouriteList->items();
    const auto found = std::find_if(names.begin(), names.end(),
        [&](const QString& name) { return name.startsWith(ToQString(city), Qt::CaseInsensitive); });
    m_favouriteList->setCurrentIndex(found == names.end() ? -1 : static_cast<int>(found - names.begin()));
    favouriteChanged(m_favouriteList->currentIndex());
}

void FavouritesDialog::removeSelectedFavourite()
{
    const int selected = m_favouriteList->currentIndex();
    const QString city = m_favouriteList->currentText();
    const QString question
        = QStringLiteral("Are you sure you want to remove the following city from Favorites List ?\n") + city
        + QStringLiteral(", ") + ToQString(m_currentCountry);
    const auto answer = environment().boxes.show(
        this, question, QStringLiteral("Wanderkit"), QMessageBox::Yes | QMessageBox::No, QMessageBox::Question);
    if (answer != QMessageBox::Yes || selected < 0)
        return;
    const std::uint16_t count = m_favourites.count();
    std::uint32_t position = 0;
    while (position < count && m_favourites.getName(position) != ToWide(city))
        ++position;
    if (position == count || !m_favourites.removeFavourite(position))
        return;
    QStringList names = m_favouriteList->items();
    names.removeAt(selected);
    m_favouriteList->setItems(names);
    // The same index again: after the last item, nothing is selected.
    m_favouriteList->setCurrentIndex(selected);
    favouriteChanged(m_favouriteList->currentIndex());
}

void FavouritesDialog::layout(int width, int height)
{
    const int inner = width - 2 * Gap;
    m_listBand = QRect(0, 0, width, BandHeight);
    m_favouriteList->setGeometry(Gap, m_listBand.bottom() + 1 + Gap, inner - ButtonWidth - Gap, RowHeight);
    m_removeButton->setGeometry(width - Gap - ButtonWidth, m_favouriteList->y(), ButtonWidth, RowHeight);
    m_informationBand = QRect(0, m_favouriteList->geometry().bottom() + 1 + Gap, width, BandHeight);
    m_countryLine = QRect(Gap, m_informationBand.bottom() + 1 + 3, inner, RowHeight);
    // The Add view sits under the country line, or beside everything else when the area is wide.
    const bool beside = width >= 2 * MinimumColumn && width > height;
    const int addLeft = beside ? width / 2 + Gap : 0;
    const int addWidth = beside ? width - addLeft : width;
    const int addTop = beside ? m_informationBand.top() : m_countryLine.bottom() + 1 + Gap;
    m_addBand = QRect(addLeft, addTop, addWidth, BandHeight);
    if (beside) {
        m_informationBand.setWidth(addLeft - Gap);
        m_countryLine.setWidth(addLeft - 2 * Gap);
    }
    const int controlsWidth = addWidth - 2 * Gap;
    m_countryList->setGeometry(addLeft + Gap, m_addBand.bottom() + 1 + Gap, controlsWidth, RowHeight);
    m_cityList->setGeometry(addLeft + Gap, m_countryList->geometry().bottom() + 1 + Gap, controlsWidth, RowHeight);
    m_addButton->setGeometry(
        addLeft + addWidth - Gap - ButtonWidth, m_cityList->geometry().bottom() + 1 + Gap, ButtonWidth, RowHeight);
}

void FavouritesDialog::paint(QPainter& painter)
{
    Painting::drawBand(
        painter, m_listBand, Painting::ShellBand, Painting::loadString(StringIds::FavoritesList), m_bandFont);
    Painting::drawBand(
        painter, m_informationBand, Painting::ShellBand, Painting::loadString(StringIds::CityInformations), m_bandFont);
    painter.setPen(Qt::black);
    painter.setFont(m_textFont);
    const QFontMetrics metrics(m_textFont);
    const QString country = QStringLiteral("Country: ") + ToQString(m_currentCountry);
    painter.drawText(m_countryLine.left(),
        m_countryLine.top() + (m_countryLine.height() - metrics.height()) / 2 + metrics.ascent(),
        Painting::shortenToFit(metrics, country, m_countryLine.width()));
    if (m_addViewShown)
        Painting::drawBand(painter, m_addBand, Painting::ShellBand, QStringLiteral("Add Cities"), m_bandFont);
}
