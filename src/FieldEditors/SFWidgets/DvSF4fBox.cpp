#include "FieldEditors/SFWidgets/DvSF4fBox.h"

#include "FieldEditors/LayoutMetrics.h"
#include "FieldEditors/SFWidgets/NumberLine.h"
#include "FieldEditors/SFWidgets/VectorColumn.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QVBoxLayout>

DvSF4fBox::DvSF4fBox(const char* name)
    : DvSFieldWidget(name)
{
    if (name == nullptr)
        setObjectName(QLatin1String("DvSF4fBox"));
}

DvSF4fBox::~DvSF4fBox() = default;

void DvSF4fBox::load()
{
    DvSFieldWidget::load();
    setLayoutMetrics(m_editLayout, QStringLiteral("SF4fBoxHMargin"), QStringLiteral("SF4fBoxHSpacing"));
    addColumn(m_xLabel, m_xLine);
    addColumn(m_yLabel, m_yLine);
    addColumn(m_zLabel, m_zLine);
    addColumn(m_wLabel, m_wLine);
}

void DvSF4fBox::addColumn(QLabel*& label, QLineEdit*& line)
{
    // Contract: both names are spelt like this.
    label = new QLabel(m_editionFrame);
    label->setObjectName(QStringLiteral("SF4flabel"));
    line = new QLineEdit(m_editionFrame);
    line->setObjectName(QStringLiteral("SF4fine"));
    line->setAlignment(Qt::AlignLeft);
    orvane::acceptFloats(line);
    QVBoxLayout* const column = orvane::addVectorColumn(m_editLayout, label, line);
    column->setObjectName(QStringLiteral("SF4FvLayout"));
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(getLayoutMetric(QStringLiteral("SF4fBoxVSpacing")));
    orvane::applyFromLine(line, this);
}

bool DvSF4fBox::edited()
{
    return orvane::anyModified({m_xLine, m_yLine, m_zLine, m_wLine});
}

void DvSF4fBox::setLabels(const QString* names)
{
    for (QLabel* const label : {m_xLabel, m_yLabel, m_zLabel, m_wLabel})
        label->setText(tr("<p>") + *names++ + tr("</p>"));
}

void DvSF4fBox::resetLinesCursor()
{
    orvane::resetCursors({m_xLine, m_yLine, m_zLine, m_wLine});
}

void DvSF4fBox::showNumbers(float x, float y, float z, float w)
{
    orvane::showNumber(m_xLine, x);
    orvane::showNumber(m_yLine, y);
    orvane::showNumber(m_zLine, z);
    orvane::showNumber(m_wLine, w);
    resetLinesCursor();
}

VbVec4f DvSF4fBox::numbers() const
{
    return {orvane::numberIn(m_xLine), orvane::numberIn(m_yLine), orvane::numberIn(m_zLine), orvane::numberIn(m_wLine)};
}
