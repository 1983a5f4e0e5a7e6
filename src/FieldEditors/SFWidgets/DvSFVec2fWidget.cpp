#include "FieldEditors/SFWidgets/DvSFVec2fWidget.h"

#include "FieldEditors/LayoutMetrics.h"
#include "FieldEditors/SFWidgets/NumberLine.h"
#include "FieldEditors/SFWidgets/VectorColumn.h"

#include "meridane/scene/fields/single/NxSFVec2f.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>

DvSFVec2fWidget::DvSFVec2fWidget(const char* name)
    : DvSFieldWidget(name)
{
    m_handledType = NxSFVec2f::getClassTypeId();
    if (name == nullptr)
        setObjectName(QLatin1String("DvSFVec2fWidget"));
    m_name = "SFVec2f";
}

DvSFVec2fWidget::~DvSFVec2fWidget() = default;

void DvSFVec2fWidget::load()
{
    setFieldTypeLabel(QLatin1String("SFVec2f"));
    DvSFieldWidget::load();
    setLayoutMetrics(m_editLayout, QStringLiteral("SF2BoxHMargin"), QStringLiteral("SF2BoxHSpacing"));
    addColumn(m_xLabel, m_xLine);
    addColumn(m_yLabel, m_yLine);
    m_xLabel->setText(tr("<p>x</p>"));
    m_yLabel->setText(tr("<p>y</p>"));
}

void DvSFVec2fWidget::addColumn(QLabel*& label, QLineEdit*& line)
{
    label = new QLabel(m_editionFrame);
    label->setObjectName(QStringLiteral("SFVec2fLabel"));
    line = new QLineEdit(m_editionFrame);
    line->setObjectName(QStringLiteral("SFVec2fBox"));
    orvane::acceptFloats(line);
    orvane::addVectorColumn(m_editLayout, label, line);
    // Contract: set on the row and not on the column, in place of what load has set there.
    m_editLayout->setContentsMargins(0, 0, 0, 0);
    m_editLayout->setSpacing(getLayoutMetric(QStringLiteral("SF2BoxVSpacing")));
    m_editLayout->setObjectName(QStringLiteral("SFVec2fLayout"));
    orvane::applyFromLine(line, this);
}

void DvSFVec2fWidget::updateFromField()
{
    if (m_field == nullptr)
        return;
    float x = 0;
    float y = 0;
    static_cast<NxSFVec2f*>(m_field)->getValue().getValue(x, y);
    orvane::showNumber(m_xLine, x);
    orvane::showNumber(m_yLine, y);
    orvane::resetCursors({m_xLine, m_yLine});
    DvSFieldWidget::updateFromField();
}

void DvSFVec2fWidget::applyChanges()
{
    if (m_field == nullptr)
        return;
    static_cast<NxSFVec2f*>(m_field)->setValue(orvane::numberIn(m_xLine), orvane::numberIn(m_yLine));
    orvane::pushVectorCommand(m_field, m_editionFrame);
}

bool DvSFVec2fWidget::edited()
{
    return orvane::anyModified({m_xLine, m_yLine});
}
