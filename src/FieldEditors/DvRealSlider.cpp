#include "FieldEditors/DvRealSlider.h"

#include <QDoubleValidator>
#include <QLineEdit>

#include <limits>

namespace {

constexpr double steps = 100.0;

/// Cuts the fraction off. A number outside the range of an int, or no number, becomes the smallest int: equal bounds
/// rely on it, and the language leaves such a conversion undefined.
int truncate(double number)
{
    constexpr double limit = 2147483648.0;
    return number > -limit && number < limit ? static_cast<int>(number) : std::numeric_limits<int>::min();
}

} // namespace

DvRealSlider::DvRealSlider(int mode, OrvFieldEditors* owner, QWidget* parent, bool isFloat, int row, int column)
    : DvSlider(mode, owner, parent, row, column)
    , m_isFloat(isFloat)
{
    const double limit
        = isFloat ? static_cast<double>(std::numeric_limits<float>::max()) : std::numeric_limits<double>::max();
    m_validator = new QDoubleValidator(-limit, limit, isFloat ? 6 : 15, m_edit);
    m_edit->setValidator(m_validator);
    m_position = positionOf(m_value);
}

DvRealSlider::~DvRealSlider()
{
    delete m_validator;
}

void DvRealSlider::setRange(double lower, double upper, bool bounded)
{
    m_max = upper;
    m_bounded = bounded;
    if (bounded) {
        m_min = lower;
        m_validator->setBottom(lower);
        m_validator->setTop(upper);
        setSliderRange(positionOf(lower), positionOf(upper));
        return;
    }
    // Contract: the validator stays as it is, with the bounds of the last bounded range.
    setSliderMaximum(positionOf(upper));
    m_min = lower;
    setSliderMinimum(positionOf(lower));
}

void DvRealSlider::setValue(double value)
{
    takeText(textOf(value));
}

void DvRealSlider::showValue()
{
    setEditText(textOf(m_value));
}

void DvRealSlider::readValueFromEdit()
{
    const double value = fitted(
        m_edit->text().toDouble(), m_min, m_max, m_bounded, [this](double number) { return positionOf(number); });
    m_position = positionOf(value);
    m_value = value;
}

void DvRealSlider::setValueFromPosition(int position)
{
    m_position = position;
    m_value = (m_max - m_min) * position / steps + m_min;
}

void DvRealSlider::saveCommandValue()
{
    setCommandValue(textOf(m_value));
}

QString DvRealSlider::textOf(double value) const
{
    return m_isFloat ? QString::number(value, 'f', 6) : QString::number(value, 'g', 15);
}

int DvRealSlider::positionOf(double value) const
{
    return truncate((value - m_min) * steps / (m_max - m_min) + 0.5);
}
