#include "orvane/app/fields/popups/NumberRow.h"

#include "orvane/app/input/NumberLine.h"

#include <QHBoxLayout>
#include <QLabel>

#include <utility>

using orvane::look::Tint;

NumberRow::NumberRow(const std::vector<Component>& components, Text text, QWidget* parent)
    : QWidget(parent)
    , m_text(std::move(text))
    , m_numbers(components.size())
{
    auto* const layout = new QHBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(orvane::look::unit(fontMetrics()));
    for (std::size_t i = 0; i < components.size(); ++i)
        addLine(static_cast<int>(i), components[i]);
}

std::vector<NumberRow::Component> NumberRow::axes(const QString& title)
{
    return {{tr("x"), Tint::AxisX, tr("%1 x").arg(title)}, {tr("y"), Tint::AxisY, tr("%1 y").arg(title)},
        {tr("z"), Tint::AxisZ, tr("%1 z").arg(title)}};
}

void NumberRow::addLine(int component, const Component& description)
{
    auto* const line = new NumberLine(this);
    line->setAccessibleName(description.name);
    line->setMinimumWidth(10 * fontMetrics().averageCharWidth());
    if (!description.letter.isEmpty()) {
        auto* const letter = new QLabel(description.letter, this);
        QPalette colors; // inherits what it doesn't set
        colors.setColor(
            QPalette::WindowText, orvane::look::textColor(description.tint, palette().color(QPalette::Window)));
        letter->setPalette(colors);
        letter->setBuddy(line);
        layout()->addWidget(letter);
    }
    layout()->addWidget(line);
    m_lines.push_back(line);
    connect(line, &NumberLine::accepted, this,
        [this, component, line] { Q_EMIT numberChanged(component, line->number()); });
    connect(line, &NumberLine::stepped, this, [this, component, line](double factor) {
        const double present = m_numbers[static_cast<std::size_t>(component)];
        Q_EMIT numberChanged(component, present + factor * line->limits().stepFrom(present));
    });
}

void NumberRow::setLimits(const orvane::NumberLimits& limits)
{
    for (NumberLine* line : m_lines)
        line->setLimits(limits);
}

void NumberRow::setNumbers(std::span<const double> numbers)
{
    for (std::size_t i = 0; i < m_lines.size(); ++i) {
        m_numbers[i] = numbers[i];
        m_lines[i]->setValue(numbers[i], m_text(numbers[i]));
    }
}
