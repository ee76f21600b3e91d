// SPDX-License-Identifier: GPL-3.0-or-later
#include "screens/measure/MeasureScreen.h"

#include "settings/SettingsTable.h"
#include "ui/BusyCursor.h"
#include "ui/Commands.h"
#include "ui/ConverterLayout.h"
#include "ui/MessageBox.h"
#include "ui/NumericEdit.h"
#include "ui/Painting.h"
#include "ui/SoftKeyBar.h"
#include "ui/Spinner.h"
#include "ui/StringIds.h"
#include "ui/TitleBand.h"
#include "ui/WideString.h"
#include "units/UnitConversion.h"

#include <QSignalBlocker>

#include <functional>

namespace {

// Layout, b being the title band's height and W the work area's width: the category list at (6, b+26),
// W-17 wide; the from list, the amount field, the to list and the result field below it. Lists are 24
// high and end 11 pixels from the right edge, the fields 25 high and 10 from it.
constexpr int Band = TitleBand::Height;
constexpr int FieldLeft = 5;
constexpr int FieldHeight = 25;
constexpr int FieldRightMargin = 10;
constexpr int CategoryTop = Band + 26;
constexpr int FromTop = Band + 86;
constexpr int AmountTop = Band + 115;
constexpr int ToTop = Band + 176;
constexpr int ResultTop = Band + 205;
// The labels: "Convert:" under the band, "From:" and "To:" above their lists.
constexpr int ConvertLabelTop = 28;
constexpr int FromLabelTop = Band + 60;
constexpr int ToLabelTop = Band + 150;

QStringList toStrings(const std::vector<std::wstring>& texts)
{
    QStringList strings;
    for (const std::wstring& text : texts)
        strings << ToQString(text);
    return strings;
}

// The top of an item laid out at `top` on a work area `height` high. The offsets are fixed from the top;
// on a work area too short for the result field (a rotated handheld is 240 high) the space under the
// title band is shared out in the same proportions, so nothing is cut off at the bottom.
int placed(int top, int height)
{
    const int needed = ResultTop + FieldHeight + 3;
    if (height >= needed || top <= Band)
        return top;
    return Band + (top - Band) * (height - Band - FieldHeight - 3) / (ResultTop - Band);
}

// Where a list box, a field or a label laid out at `top` goes on a work area.
std::function<QRect(QSize)> listBoxPlace(int top)
{
    return [top](QSize area) { return ConverterLayout::listBox(placed(top, area.height()), area.width()); };
}

std::function<QRect(QSize)> fieldPlace(int top)
{
    return [top](QSize area) {
        return QRect(FieldLeft, placed(top, area.height()), area.width() - FieldRightMargin - FieldLeft, FieldHeight);
    };
}

std::function<QPoint(QSize)> labelPlace(int top)
{
    return [top](QSize area) { return QPoint(ConverterLayout::TextLeft, placed(top, area.height())); };
}

} // namespace

MeasureScreen::MeasureScreen(ScreenEnvironment& environment, DeviceWindow& window)
    : Screen(environment, window, MenuBarId::Converter, QStringLiteral("measure"))
    , m_catalogue(environment.objects)
    , m_categorySpinner(addSpinner(QStringLiteral("categorySpinner")))
    , m_fromSpinner(addSpinner(QStringLiteral("fromSpinner")))
    , m_toSpinner(addSpinner(QStringLiteral("toSpinner")))
{
    setTitleBand(TitleBand(Painting::ConverterBand, StringIds::Measurements));
    setBackgroundPicture(L"bconv.jpg");
    place(*m_categorySpinner, listBoxPlace(CategoryTop));
    place(*m_fromSpinner, listBoxPlace(FromTop));
    place(*m_toSpinner, listBoxPlace(ToTop));
    const QFont labelFont = Painting::makeFont(21, Painting::Bold);
    addLabel(StringIds::Convert, labelFont, labelPlace(ConvertLabelTop));
    addLabel(StringIds::From, labelFont, labelPlace(FromLabelTop));
    addLabel(StringIds::To, labelFont, labelPlace(ToLabelTop));
    setTabOrder(m_categorySpinner, m_fromSpinner);
    connect(m_categorySpinner, &Spinner::currentChanged, this, &MeasureScreen::changeCategory);
    connect(m_fromSpinner, &Spinner::currentChanged, this, &MeasureScreen::convert);
    connect(m_toSpinner, &Spinner::currentChanged, this, &MeasureScreen::convert);
    keepSetting(Settings::MeasureType, *m_categorySpinner);
    keepSetting(Settings::MeasureUnit1, *m_fromSpinner);
    keepSetting(Settings::MeasureUnit2, *m_toSpinner);
    keepSetting(Settings::MeasureValue, [this] { return UnitConversion::AmountText(ToWide(m_amountEdit->text())); });
    onCommand({Commands::Clear}, std::bind_front(&MeasureScreen::clear, this));
    onCommand({Commands::Undo}, std::bind_front(&MeasureScreen::undo, this));
}

void MeasureScreen::makeFields()
{
    m_amountEdit = addControl<NumericEdit>(QStringLiteral("amountLineEdit"));
    m_resultEdit = addControl<NumericEdit>(QStringLiteral("resultLineEdit"));
    m_resultEdit->setReadOnly(true); // looks like the amount field; the program alone writes it
    place(*m_amountEdit, fieldPlace(AmountTop));
    place(*m_resultEdit, fieldPlace(ResultTop));
    setTabOrder(m_fromSpinner, m_amountEdit);
    setTabOrder(m_amountEdit, m_toSpinner);
    setTabOrder(m_toSpinner, m_resultEdit);
    connect(m_amountEdit, &QLineEdit::textChanged, this, &MeasureScreen::convert);
}

void MeasureScreen::initialise()
{
    if (!m_amountEdit)
        makeFields();
    {
        const BusyCursor busy;
        m_catalogue.Build();
    }
    m_listFont = Painting::makeFont(21, Painting::Normal);
    takeOverBackKey();
    readUnits();

    QStringList titles;
    for (const UnitCategory& category : UnitTables::Categories())
        titles << Painting::loadString(category.titleId);
    m_categorySpinner->setItems(titles);
    m_categorySpinner->setCurrentIndex(static_cast<int>(ReadSetting(settings(), Settings::MeasureType)));
    fillUnitLists();
    m_fromSpinner->setCurrentIndex(static_cast<int>(ReadSetting(settings(), Settings::MeasureUnit1)));
    m_toSpinner->setCurrentIndex(static_cast<int>(ReadSetting(settings(), Settings::MeasureUnit2)));

    for (Spinner* list : {m_categorySpinner, m_fromSpinner, m_toSpinner})
        list->setFont(m_listFont);
    m_resultEdit->setText(QStringLiteral("0"));
    setAmount(QStringLiteral("0"));
    setAmount(ToQString(ReadSetting(settings(), Settings::MeasureValue)));
    // The conversions made while opening leave "Undo" grey.
    setUndoEnabled(false);
    m_categorySpinner->setFocus();
}

void MeasureScreen::readUnits()
{
    const BusyCursor busy;
    m_units = UnitLists::Read(m_catalogue);
}

void MeasureScreen::fillUnitLists()
{
    const QStringList names = toStrings(m_units.Names(m_categorySpinner->currentIndex()));
    m_fromSpinner->setItems(names);
    m_toSpinner->setItems(names);
}

void MeasureScreen::changeCategory()
{
    {
        const BusyCursor busy;
        fillUnitLists();
    }
    m_fromSpinner->setCurrentIndex(0);
    m_toSpinner->setCurrentIndex(0);
    // Both units are the same: the amount is shown as it was typed.
    m_resultEdit->setText(m_amountEdit->text());
}

void MeasureScreen::convert()
{
    const auto result = UnitConversion::Convert(m_units, m_categorySpinner->currentIndex(),
        m_fromSpinner->currentIndex(), m_toSpinner->currentIndex(), ToWide(m_amountEdit->text()));
    if (result.belowAbsoluteZero)
        environment().boxes.show(this, Painting::loadString(StringIds::BelowAbsoluteZero), QString());
    m_resultEdit->setText(ToQString(result.text));
    setUndoEnabled(true);
}

// Setting the text converts even when it is unchanged.
void MeasureScreen::setAmount(const QString& text)
{
    {
        const QSignalBlocker quiet(m_amountEdit);
        m_amountEdit->setText(text);
    }
    convert();
}

void MeasureScreen::clear()
{
    m_resultEdit->setText(QStringLiteral("0"));
    setAmount(QStringLiteral("0"));
}

void MeasureScreen::undo()
{
    m_amountEdit->undo();
    setUndoEnabled(false);
}

void MeasureScreen::setUndoEnabled(bool enabled)
{
    if (SoftKeyBar* keys = softKeys())
        keys->setItemEnabled(Commands::Undo, enabled);
}
