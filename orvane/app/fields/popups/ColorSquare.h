#pragma once

#include "orvane/app/fields/popups/ColorValue.h"

#include <QWidget>

/// A square of all saturations, from left to right, and values, from bottom to top, of one hue. A click or a drag
/// chooses one; so do the arrow keys, in steps of 0.01, with Shift 0.1 and with Ctrl 0.001.
class ColorSquare : public QWidget {
    Q_OBJECT

public:
    explicit ColorSquare(QWidget* parent = nullptr);

    void setColor(const orvane::HueNumbers& color);
    [[nodiscard]] const orvane::HueNumbers& color() const noexcept { return m_color; }
    [[nodiscard]] QSize sizeHint() const override;

Q_SIGNALS:
    /// The user chose a saturation and a value.
    void chosen(double saturation, double value);

protected:
    void paintEvent(QPaintEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;

private:
    void chooseAt(const QPointF& position);
    void choose(double saturation, double value);

    orvane::HueNumbers m_color;
};
