#pragma once

#include "orvane/app/input/NumberLimits.h"
#include "orvane/app/look/Look.h"

#include <QWidget>

#include <functional>
#include <span>
#include <vector>

class NumberLine;

/// Lines for the numbers of one value side by side, each with a letter in the colour of its component.
class NumberRow : public QWidget {
    Q_OBJECT

public:
    struct Component {
        QString letter; ///< before the line; empty for none
        orvane::look::Tint tint = orvane::look::Tint::AxisW;
        QString name; ///< for people who can't see it
    };
    using Text = std::function<QString(double number)>;

    /// `text` shows a number.
    NumberRow(const std::vector<Component>& components, Text text, QWidget* parent);

    /// The letters x, y and z in the colours of the axes; `title` begins their names.
    [[nodiscard]] static std::vector<Component> axes(const QString& title);

    void setLimits(const orvane::NumberLimits& limits);
    /// One number for each line.
    void setNumbers(std::span<const double> numbers);
    [[nodiscard]] const std::vector<NumberLine*>& lines() const noexcept { return m_lines; }

Q_SIGNALS:
    /// The user gave a component another number. What the line shows stays until `setNumbers`.
    void numberChanged(int component, double number);

private:
    void addLine(int component, const Component& description);

    Text m_text;
    std::vector<double> m_numbers;
    std::vector<NumberLine*> m_lines;
};
