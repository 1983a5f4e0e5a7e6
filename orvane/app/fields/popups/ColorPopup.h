#pragma once

#include "orvane/app/fields/popups/ColorValue.h"
#include "orvane/app/fields/popups/PopupFrame.h"

#include <array>

class ColorBar;
class ColorSquare;
class Eyedropper;
class QGridLayout;
class QLineEdit;

/// Chooses a colour: by a square of saturation and value with a bar of hues, as numbers, as hexadecimal text, or from
/// the screen. What is chosen is announced at once, also during a drag.
class ColorPopup : public PopupFrame {
    Q_OBJECT

public:
    /// `hasOpacity` adds a bar and a line for the opacity.
    ColorPopup(bool hasOpacity, QWidget* parent);

    /// Shows a colour and announces nothing.
    void setColor(const orvane::ColorNumbers& color);
    [[nodiscard]] const orvane::ColorNumbers& color() const noexcept { return m_color; }

Q_SIGNALS:
    /// The user chose another colour.
    void colorChanged(const orvane::ColorNumbers& color);

private:
    enum Line { Red, Green, Blue, Opacity, Hue, Saturation, Value, LineCount };

    class Swatches;

    void addNumberLine(QGridLayout* grid, Line line, const QString& label, const QString& name, int row, int column);
    void addHexLine(QGridLayout* grid);
    void addEyedropper(QGridLayout* grid);
    void acceptHex();
    void takeNumber(Line line, double number);
    [[nodiscard]] orvane::ColorNumbers componentsOf(const QColor& color) const;
    void take(const orvane::ColorNumbers& color);
    void takeHue(const orvane::HueNumbers& color);
    void pick(const QColor& color);
    void showColor();
    [[nodiscard]] double numberOf(Line line) const;

    bool m_hasOpacity;
    orvane::ColorNumbers m_color{0, 0, 0, 1};
    orvane::HueNumbers m_hue; // of the colour; the hue of a grey is the one that was chosen last
    ColorSquare* m_square;
    ColorBar* m_hueBar;
    ColorBar* m_opacityBar = nullptr;
    Swatches* m_swatches;
    std::array<NumberLine*, LineCount> m_lines{};
    QLineEdit* m_hex = nullptr;
    Eyedropper* m_eyedropper;
};
