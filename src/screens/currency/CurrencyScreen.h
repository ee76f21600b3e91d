// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "currency/CurrencyConversion.h"
#include "store/CurrencyStore.h"
#include "store/InitialCurrencyList.h"
#include "ui/Screen.h"

#include <QFont>

#include <array>
#include <optional>

class NumericEdit;

// The Currency Converter: three amount fields, one per chosen currency. Typing into the focused field
// fills the other two at the chosen currencies' rates; the rates of the first currency against the other
// two and the rates' last update are shown below.
class CurrencyScreen final : public Screen
{
    Q_OBJECT

public:
    static constexpr std::size_t FieldCount = 3;

    // `initialCurrencies` is the launcher's list, handed to the screen's own store at every opening.
    CurrencyScreen(ScreenEnvironment& environment, DeviceWindow& window, const InitialCurrencyList& initialCurrencies);

    std::uint32_t position(std::size_t field) const { return m_positions[field]; }
    const QString& focusLabel() const { return m_focusLabel; }
    const QString& lastUpdateText() const { return m_lastUpdate; }
    // The focused field's rectangle grown by 2 pixels each way: left, top, exclusive right and bottom.
    const QRect& focusFrame() const { return m_focusFrame; }

protected:
    void initialise() override;
    void layout(int width, int height) override;
    void paint(QPainter& painter) override;

private:
    // The field that has the focus, if one has.
    std::optional<std::size_t> focusedField() const;
    // The fields are made on the first opening, so that the program's start does not pay for them.
    void makeFields();
    void chooseCurrency(std::size_t field, std::uint32_t position);
    void fieldFocused(std::size_t field);
    void convertFrom(std::size_t field);
    void changeCurrency();
    void clearFields();
    void paintRateLines(QPainter& painter, int bandTop);

    const InitialCurrencyList& m_initialCurrencies;
    CurrencyStore m_store;
    std::array<NumericEdit*, FieldCount> m_fields {};
    std::array<std::uint32_t, FieldCount> m_positions {};
    std::array<ConverterCurrency, FieldCount> m_currencies;
    // Each field's code as drawn and its font, narrowed once when the currency is chosen.
    std::array<QString, FieldCount> m_codes;
    std::array<QFont, FieldCount> m_codeFonts;
    QString m_focusLabel;
    QString m_lastUpdate;
    QRect m_focusFrame;
    QFont m_titleFont;
    QFont m_textFont;
};
