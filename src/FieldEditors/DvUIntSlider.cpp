#include "FieldEditors/DvUIntSlider.h"

#include "FieldEditors/EditorKinds.h"
#include "FieldEditors/FieldRangeTable.h"

#include <QLineEdit>

namespace {

constexpr unsigned bias = 0x80000000U;

/// The bias fits the whole range of an unsigned into the positions of a slider, which are signed.
int positionOf(unsigned value)
{
    return static_cast<int>(value + bias);
}

unsigned valueOf(int position)
{
    return static_cast<unsigned>(position) + bias;
}

} // namespace

DvUIntSlider::DvUIntSlider(int kind, int mode, OrvFieldEditors* owner, QWidget* parent, int row, int column)
    : DvSlider(mode, owner, parent, row, column)
    , m_limitTop(static_cast<orvane::IntegerKind>(kind) == orvane::IntegerKind::UInt16 ? 65535U : 4294967295U)
{
    m_position = positionOf(m_value);
}

void DvUIntSlider::setRange(unsigned lower, unsigned upper, bool bounded)
{
    lower = std::max(lower, m_limitBottom);
    upper = std::min(upper, m_limitTop);
    m_bounded = bounded;
    if (bounded) {
        m_limitBottom = lower;
        m_limitTop = upper;
        return;
    }
    m_max = upper;
    setSliderMaximum(positionOf(upper));
    m_min = lower;
    setSliderMinimum(positionOf(lower));
}

void DvUIntSlider::setValueText(QString text)
{
    if (m_firstText) {
        m_radix = FieldRangeTable::detectRadix(text);
        m_firstText = false;
    }
    takeText(withoutPrefix(text));
}

void DvUIntSlider::showValue()
{
    setEditText(QString::number(m_value, m_radix));
}

void DvUIntSlider::readValueFromEdit()
{
    bool ok = false;
    unsigned value = m_edit->text().toUInt(&ok, m_radix);
    if (!ok)
        return;

    value = limited(value, m_limitBottom, m_limitTop);
    value = fitted(value, m_min, m_max, m_bounded, positionOf);
    m_position = positionOf(value);
    m_value = value;
}

void DvUIntSlider::setValueFromPosition(int position)
{
    m_position = position;
    m_value = valueOf(position);
}

void DvUIntSlider::saveCommandValue()
{
    // Contract: with the prefix of the radix, unlike a signed slider.
    setCommandValue(editText());
}
