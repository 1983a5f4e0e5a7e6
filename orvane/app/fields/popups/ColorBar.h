#pragma once

#include "orvane/app/fields/popups/ColorValue.h"

#include <QWidget>

/// A bar from which the hue or the opacity of a colour is chosen by a click, a drag or the arrow keys.
class ColorBar : public QWidget {
    Q_OBJECT

public:
    enum class Kind { Hue, Opacity };

    explicit ColorBar(Kind kind, QWidget* parent = nullptr);

    void setColor(const orvane::HueNumbers& color, double opacity);
    [[nodiscard]] QSize sizeHint() const override;

Q_SIGNALS:
    /// The user chose a hue from 0 to 360, or an opacity from 0 to 1.
    void chosen(double number);

protected:
    void paintEvent(QPaintEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;

private:
    [[nodiscard]] double highest() const noexcept { return m_kind == Kind::Hue ? 360 : 1; }
    void chooseAt(const QPointF& position);
    void choose(double number);

    Kind m_kind;
    orvane::HueNumbers m_color;
    double m_number = 0;
};
