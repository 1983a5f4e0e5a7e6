#include "FieldEditors/DvIntSlider.h"

#include "FieldEditors/EditorKinds.h"
#include "FieldEditors/FieldRangeTable.h"

#include <QIntValidator>
#include <QLineEdit>

#include <functional>

DvIntSlider::DvIntSlider(int kind, int mode, OrvFieldEditors* owner, QWidget* parent, int row, int column)
    : DvSlider(mode, owner, parent, row, column)
    , m_validator(new QIntValidator(m_edit))
{
    // Without bounds of its own a validator has those of a 32-bit integer.
    if (static_cast<orvane::IntegerKind>(kind) == orvane::IntegerKind::Int16)
        m_validator->setRange(-32768, 32767);
}

DvIntSlider::~DvIntSlider()
{
    delete m_validator;
}

void DvIntSlider::setRange(int lower, int upper, bool bounded)
{
    lower = std::max(lower, m_validator->bottom());
    upper = std::min(upper, m_validator->top());
    m_max = upper;
    m_bounded = bounded;
    if (bounded) {
        m_min = lower;
        m_validator->setRange(lower, upper);
        setSliderRange(lower, upper);
        return;
    }
    setSliderMaximum(upper);
    m_min = lower;
    setSliderMinimum(lower);
}

void DvIntSlider::setValueText(QString text)
{
    if (m_firstText) {
        m_radix = FieldRangeTable::detectRadix(text);
        if (m_radix == 10)
            m_edit->setValidator(m_validator);

        m_firstText = false;
    }
    takeText(withoutPrefix(text));
}

void DvIntSlider::showValue()
{
    setEditText(QString::number(m_value, m_radix));
}

void DvIntSlider::readValueFromEdit()
{
    bool ok = false;
    int value = m_edit->text().toInt(&ok, m_radix);
    // Contract: a text that is no number is read as 0. A decimal one has passed the validator.
    if (ok && m_radix != 10)
        value = limited(value, m_validator->bottom(), m_validator->top());

    value = fitted(value, m_min, m_max, m_bounded, std::identity());
    m_position = value;
    m_value = value;
}

void DvIntSlider::setValueFromPosition(int position)
{
    m_position = position;
    m_value = position;
}

void DvIntSlider::saveCommandValue()
{
    // Contract: without the prefix of the radix, unlike an unsigned slider.
    setCommandValue(QString::number(m_value, m_radix));
}
