#include "FieldEditors/SFWidgets/DvSF2iSpinBox.h"

#include "FieldEditors/EditorKinds.h"
#include "FieldEditors/LayoutMetrics.h"
#include "FieldEditors/SFWidgets/VectorColumn.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QSpinBox>
#include <QVBoxLayout>

#include <limits>

DvSF2iSpinBox::DvSF2iSpinBox(const char* name)
    : DvSFieldWidget(name)
{
    if (name == nullptr)
        setObjectName(QLatin1String("DvSF2iSpinBox"));
}

DvSF2iSpinBox::~DvSF2iSpinBox() = default;

void DvSF2iSpinBox::load()
{
    DvSFieldWidget::load();
    setLayoutMetrics(m_editLayout, QStringLiteral("SF2BoxHMargin"), QStringLiteral("SF2BoxHSpacing"));
    addColumn(m_xLabel, m_xSpinBox);
    addColumn(m_yLabel, m_ySpinBox);
}

void DvSF2iSpinBox::addColumn(QLabel*& label, QSpinBox*& spinBox)
{
    label = new QLabel(m_editionFrame);
    label->setObjectName(QStringLiteral("SF4flabel")); // Contract: named like the labels of four lines.
    spinBox = new QSpinBox(m_editionFrame);
    spinBox->setObjectName(QStringLiteral("SF2Box"));
    QVBoxLayout* const column = orvane::addVectorColumn(m_editLayout, label, spinBox);
    column->setObjectName(QStringLiteral("SF2BoxLayout"));
    column->setSpacing(getLayoutMetric(QStringLiteral("SF2BoxVSpacing")));
    connect(spinBox, &QSpinBox::valueChanged, this, &DvSF2iSpinBox::setCommandValue);
}

void DvSF2iSpinBox::setLabels(const QString* names)
{
    for (QLabel* const label : {m_xLabel, m_yLabel})
        label->setText(tr("<p>") + *names++ + tr("</p>"));
}

void DvSF2iSpinBox::setSpinBoxRange(int kind)
{
    using orvane::SpinBoxKind;
    const auto setRange = [this](int lower, int upper) {
        for (QSpinBox* const spinBox : {m_xSpinBox, m_ySpinBox})
            spinBox->setRange(lower, upper);
    };
    switch (static_cast<SpinBoxKind>(kind)) {
    case SpinBoxKind::Int16:
        setRange(std::numeric_limits<short>::min(), std::numeric_limits<short>::max());
        break;
    case SpinBoxKind::Integer:
    case SpinBoxKind::Int32:
        setRange(std::numeric_limits<int>::min(), std::numeric_limits<int>::max());
        break;
    default:
        break;
    }
}

void DvSF2iSpinBox::showNumbers(int x, int y)
{
    m_xSpinBox->setValue(x);
    m_ySpinBox->setValue(y);
}
