// SPDX-License-Identifier: GPL-3.0-or-later
#include "screens/currency/CurrencyScreen.h"

#include "currency/CurrencyList.h"
#include "device/DeviceClock.h"
#include "screens/select/SelectDialog.h"
#include "settings/SettingsTable.h"
#include "ui/Commands.h"
#include "ui/DeviceWindow.h"
#include "ui/NumericEdit.h"
#include "ui/Painting.h"
#include "ui/StringIds.h"
#include "ui/TitleBand.h"
#include "ui/WideString.h"

#include <QPainter>

#include <algorithm>
#include <functional>

namespace {

constexpr int Band = TitleBand::Height; // b
constexpr int FieldLeft = 55;
constexpr int FieldRight = 200;
constexpr int FieldHeight = 25;
// Field k's top is b + 20 + 35k; its code is drawn at (10, the same top).
constexpr int FirstFieldTop = Band + 20;
constexpr int FieldPitch = 35;
constexpr int CodeLeft = 10;
constexpr int CodeRight = 50; // the code's box ends 5 pixels before its field
constexpr int MaxFieldText = 49; // the field is read into 50 characters

const std::array<const DwordSetting*, CurrencyScreen::FieldCount> PositionSettings {
    &Settings::Currency1, &Settings::Currency2, &Settings::Currency3};

int fieldTop(std::size_t field)
{
    return FirstFieldTop + static_cast<int>(field) * FieldPitch;
}

// The focus band's top: 110 pixels above the bottom, but never over the third field, which a work area
// turned on its side (240 high) would otherwise reach. The rate lines follow the band.
int focusBandTop(int height)
{
    return std::max(height - 110, fieldTop(2) + FieldHeight + 4);
}

// The title font narrowed until `code` fits its box, so that a wide code ("GBP") is not hidden by its field.
QFont codeFont(const QFont& titleFont, const QString& code)
{
    QFont font = titleFont;
    for (int stretch = 99; stretch >= 50 && QFontMetrics(font).horizontalAdvance(code) > CodeRight - CodeLeft;
         --stretch)
        font.setStretch(stretch);
    return font;
}

} // namespace

CurrencyScreen::CurrencyScreen(
    ScreenEnvironment& environment, DeviceWindow& window, const InitialCurrencyList& initialCurrencies)
    : Screen(environment, window, MenuBarId::Currency, QStringLiteral("currency"))
    , m_initialCurrencies(initialCurrencies)
    , m_store(environment.objects)
    , m_titleFont(Painting::makeFont(23, Painting::Bold))
    , m_textFont(Painting::makeFont(20, Painting::Bold))
{
    setBackgroundPicture(L"back.jpg");
    TitleBand title(Painting::ConverterBand, StringIds::CurrencyConverter, m_titleFont);
    title.setTextOrigin(QPoint(5, 2));
    setTitleBand(title);
    for (std::size_t k = 0; k < FieldCount; ++k)
        keepSetting(*PositionSettings[k], [this, k] { return m_positions[k]; });
    keepSetting(Settings::CurrencyAmount, [this] { return ToWide(m_fields[0]->text().left(MaxFieldText)); });
    // "Update rates" has no action of its own.
    onCommand({Commands::Ok, Commands::ChangeCurrency}, std::bind_front(&CurrencyScreen::changeCurrency, this));
    onCommand({Commands::Clear}, std::bind_front(&CurrencyScreen::clearFields, this));
}

void CurrencyScreen::makeFields()
{
    for (std::size_t k = 0; k < FieldCount; ++k) {
        auto* field = addControl<NumericEdit>(QStringLiteral("amount%1NumericEdit").arg(k + 1));
        field->setFont(m_titleFont);
        connect(field, &NumericEdit::focusChanged, this, [this, k](bool focused) {
            if (focused)
                fieldFocused(k);
        });
        connect(field, &QLineEdit::textChanged, this, [this, k] { convertFrom(k); });
        m_fields[k] = field;
    }
}

void CurrencyScreen::initialise()
{
    if (!m_fields[0])
        makeFields();
    takeOverBackKey();
    m_store.SetInitialList(m_initialCurrencies);
    m_store.Load();
    for (std::size_t k = 0; k < FieldCount; ++k)
        chooseCurrency(k, ReadSetting(settings(), *PositionSettings[k]));
    m_focusLabel = ToQString(m_currencies[0].label);
    m_lastUpdate = ToQString(LastUpdateText(m_store.LastUpdate(), environment().clock.localTime().year));
    m_fields[0]->setFocus();
    m_fields[0]->setText(ToQString(ReadSetting(settings(), Settings::CurrencyAmount)));
    convertFrom(0);
}

void CurrencyScreen::chooseCurrency(std::size_t field, std::uint32_t position)
{
    m_positions[field] = position;
    m_currencies[field] = ReadConverterCurrency(m_store, position);
    m_codes[field] = ToQString(m_currencies[field].label).left(3);
    m_codeFonts[field] = codeFont(m_titleFont, m_codes[field]);
}

void CurrencyScreen::layout(int, int)
{
    for (std::size_t k = 0; k < FieldCount; ++k) {
        NumericEdit* field = m_fields[k];
        field->setGeometry(FieldLeft, fieldTop(k), FieldRight - FieldLeft, FieldHeight);
        field->raise();
    }
    if (const auto k = focusedField())
        m_focusFrame = m_fields[*k]->focusFrame();
}

void CurrencyScreen::fieldFocused(std::size_t field)
{
    m_focusFrame = m_fields[field]->focusFrame();
    m_focusLabel = ToQString(m_currencies[field].label);
    update();
}

// The screen's own focus, kept while its window is inactive or a popup menu is open.
std::optional<std::size_t> CurrencyScreen::focusedField() const
{
    const auto found = std::ranges::find(m_fields, focusWidget());
    return found == m_fields.end() ? std::nullopt : std::optional(static_cast<std::size_t>(found - m_fields.begin()));
}

// Runs only while `field` has the focus, so that the fields written here do not convert in turn.
void CurrencyScreen::convertFrom(std::size_t field)
{
    if (!isRunning() || focusedField() != field)
        return;
    const std::wstring text = ToWide(m_fields[field]->text().left(MaxFieldText));
    const double rate = m_currencies[field].rate;
    for (std::size_t j = 0; j < FieldCount; ++j) {
        if (j != field)
            m_fields[j]->setText(ToQString(ConvertedFieldText(text, rate, m_currencies[j].rate)));
    }
}

void CurrencyScreen::clearFields()
{
    for (NumericEdit* field : m_fields)
        field->setText(QString());
}

void CurrencyScreen::changeCurrency()
{
    const auto field = focusedField();
    const std::uint32_t shown = field ? m_positions[*field] : 0;
    SelectDialog dialog(environment(), window());
    dialog.setMode(SelectDialog::Mode::Currency);
    dialog.setSelection(CurrencyListIndex(m_store, shown));
    runModal(dialog);
    if (field) {
        // The dialog has no cancel: its index is taken as it stands, even when the program ends over it.
        chooseCurrency(*field, CurrencyPosition(m_store, dialog.selection()));
        m_fields[*field]->setFocus();
        convertFrom(*field);
        m_focusLabel = ToQString(m_currencies[*field].label);
    }
    update();
}

void CurrencyScreen::paint(QPainter& painter)
{
    const int width = workWidth();
    const int height = workHeight();
    painter.setPen(Painting::White);
    for (std::size_t k = 0; k < FieldCount; ++k)
        Painting::drawTextAt(painter, m_codeFonts[k], CodeLeft, fieldTop(k), m_codes[k]);

    Painting::drawTextAt(painter, m_textFont, 5, height - 25, m_lastUpdate);
    const int band = focusBandTop(height);
    paintRateLines(painter, band);
    painter.fillRect(QRect(0, band, width, 20), Painting::ConverterBand);
    Painting::drawTextAt(painter, m_textFont, 10, band, m_focusLabel);
    if (!m_focusFrame.isNull())
        Painting::drawRaisedEdge(painter, m_focusFrame.left(), m_focusFrame.top(),
            m_focusFrame.left() + m_focusFrame.width(), m_focusFrame.top() + m_focusFrame.height());
}

// The second line starts where the first line's equals sign stands: after the width of "1 CODE ".
void CurrencyScreen::paintRateLines(QPainter& painter, int bandTop)
{
    const auto& [first, second, third] = m_currencies;
    Painting::drawTextAt(painter, m_textFont, 5, bandTop + 35, ToQString(FirstRateLine(first, second)));
    const int lead = QFontMetrics(m_textFont).horizontalAdvance(ToQString(FirstRateLineLead(first)));
    Painting::drawTextAt(painter, m_textFont, 5 + lead, bandTop + 50, ToQString(SecondRateLine(first, third)));
}
