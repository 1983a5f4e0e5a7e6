#include "FieldEditors/DvSlider.h"

#include "FieldEditors/OrvFieldEditors.h"

#include "orvane/extender/VbText.h"

#include <QCheckBox>
#include <QHBoxLayout>
#include <QLineEdit>
#include <QSlider>

DvSlider::DvSlider(int mode, OrvFieldEditors* owner, QWidget* parent, int row, int column)
    : QFrame(parent)
    , m_mode(mode)
    , m_owner(owner)
    , m_row(row)
    , m_column(column)
{
    setObjectName(QLatin1String("DvSliderFrame"));
    m_commandValue.makeNull();

    const bool inCell = mode != FieldEditor;
    const int margin = inCell ? 0 : 2;
    m_layout = new QHBoxLayout(this);
    m_layout->setContentsMargins(margin, margin, margin, margin);
    m_layout->setSpacing(inCell ? 3 : 4);
    m_layout->setObjectName(QLatin1String("orvaneslider"));

    m_edit = new QLineEdit(this);
    m_qslider = new QSlider(this);
    m_qslider->setTracking(true);
    m_qslider->setOrientation(Qt::Horizontal);
    m_checkBox = new QCheckBox(this);
    m_layout->addWidget(m_checkBox);
    m_layout->addWidget(m_qslider);
    m_layout->addWidget(m_edit);

    connect(m_qslider, &QSlider::sliderPressed, this, &DvSlider::beginCallback);
    connect(m_qslider, &QSlider::valueChanged, this, &DvSlider::valueChangeSlot);
    connect(m_qslider, &QSlider::sliderReleased, this, &DvSlider::finishCallback);
    m_checkBox->setChecked(m_notify);
    connect(m_edit, &QLineEdit::returnPressed, this, &DvSlider::changeValueFromEdit);
    connect(m_edit, &QLineEdit::editingFinished, this, &DvSlider::changeValueFromEdit);
    connect(m_checkBox, &QCheckBox::toggled, this, &DvSlider::eventNotify);
    m_reactToSlider = true;
}

DvSlider::~DvSlider()
{
    delete m_edit;
    delete m_checkBox;
    delete m_qslider;
}

bool DvSlider::edited() const
{
    return m_edit->isModified();
}

QString DvSlider::editText() const
{
    switch (m_radix) {
    case 8:
        return QLatin1Char('0') + m_edit->text();
    case 16:
        return QLatin1String("0x") + m_edit->text();
    default:
        return m_edit->text();
    }
}

// NOLINTNEXTLINE(performance-unnecessary-value-param): the integer sliders take the text
void DvSlider::setValueText(QString /*text*/) { }

void DvSlider::showValue() { }

void DvSlider::readValueFromEdit() { }

void DvSlider::setValueFromPosition(int /*position*/) { }

void DvSlider::saveCommandValue() { }

void DvSlider::takeText(const QString& text)
{
    setEditText(text);
    readValueFromEdit();
    moveSliderSilently();
}

void DvSlider::setEditText(const QString& text)
{
    m_edit->setText(text);
    m_edit->setCursorPosition(0);
}

QString DvSlider::withoutPrefix(const QString& text) const
{
    // Contract: by the radix alone, so a text without a prefix loses its first digits.
    switch (m_radix) {
    case 8:
        return text.mid(1);
    case 16:
        return text.mid(2);
    default:
        return text;
    }
}

void DvSlider::setCommandValue(const QString& text)
{
    m_commandValue = orvane::toVbString(text);
}

void DvSlider::moveSliderSilently()
{
    m_reactToSlider = false;
    m_qslider->setValue(m_position);
    m_reactToSlider = true;
}

void DvSlider::setSliderMinimum(int minimum)
{
    m_reactToSlider = false;
    m_qslider->setMinimum(minimum);
    m_reactToSlider = true;
}

void DvSlider::setSliderMaximum(int maximum)
{
    m_reactToSlider = false;
    m_qslider->setMaximum(maximum);
    m_reactToSlider = true;
}

void DvSlider::setSliderRange(int minimum, int maximum)
{
    m_reactToSlider = false;
    m_qslider->setRange(minimum, maximum);
    m_reactToSlider = true;
}

void DvSlider::changeValueFromEdit()
{
    // Contract: Return calls this twice, so it notifies twice unless the owner's refresh clears the modified flag
    // first.
    if (!edited())
        return;

    readValueFromEdit();
    moveSliderSilently();
    notifyOwner();
}

void DvSlider::eventNotify(bool state)
{
    m_notify = state;
}

void DvSlider::beginCallback()
{
    m_inDrag = true;
    saveCommandValue();
}

void DvSlider::finishCallback()
{
    m_inDrag = false;
    setValueFromPosition(m_qslider->value());
    notifyOwner();
}

void DvSlider::valueChangeSlot(int newValue)
{
    if (!m_reactToSlider)
        return;

    m_inDrag = true;
    setValueFromPosition(newValue);
    showValue();
    if (m_notify)
        notifyOwner();

    m_inDrag = false;
}

void DvSlider::notifyOwner()
{
    if (m_mode == FieldEditor) {
        m_owner->applyChanges();
        return;
    }
    m_owner->setRefreshEnabled(false);
    m_owner->setCellValue(m_row, m_column, editText());
    m_owner->setRefreshEnabled(true);
}
