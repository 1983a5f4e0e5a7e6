#include "FieldEditors/SFWidgets/DvSFVec3fWidget.h"

#include "FieldEditors/LayoutMetrics.h"
#include "FieldEditors/SFWidgets/NumberLine.h"
#include "FieldEditors/SFWidgets/VectorColumn.h"

#include "meridane/scene/fields/single/NxSFVec3f.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QVBoxLayout>

DvSFVec3fWidget::DvSFVec3fWidget(const char* name)
    : DvSFieldWidget(name)
{
    m_handledType = NxSFVec3f::getClassTypeId();
    if (name == nullptr)
        setObjectName(QLatin1String("DvSFVec3fWidget"));
    m_name = "SFVec3f";
}

DvSFVec3fWidget::~DvSFVec3fWidget() = default;

void DvSFVec3fWidget::load()
{
    setFieldTypeLabel(QLatin1String("SFVec3f"));
    DvSFieldWidget::load();
    setLayoutMetrics(m_editLayout, QStringLiteral("SF3fBoxHMargin"), QStringLiteral("SF3fBoxHSpacing"));
    addColumn(m_xLabel, m_xLine);
    addColumn(m_yLabel, m_yLine);
    addColumn(m_zLabel, m_zLine);
    m_xLabel->setText(tr("<p>x</p>"));
    m_yLabel->setText(tr("<p>y</p>"));
    m_zLabel->setText(tr("<p>z</p>"));
}

void DvSFVec3fWidget::addColumn(QLabel*& label, QLineEdit*& line)
{
    label = new QLabel(m_editionFrame);
    label->setObjectName(QStringLiteral("SFVec3fLabel"));
    line = new QLineEdit(m_editionFrame);
    line->setObjectName(QStringLiteral("SFVec3fLine"));
    line->setAlignment(Qt::AlignLeft);
    orvane::acceptFloats(line);
    QVBoxLayout* const column = orvane::addVectorColumn(m_editLayout, label, line);
    column->setObjectName(QStringLiteral("SFVec3fLayout"));
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(getLayoutMetric(QStringLiteral("SF3fBoxVSpacing")));
    orvane::applyFromLine(line, this);
}

void DvSFVec3fWidget::updateFromField()
{
    if (m_field == nullptr)
        return;
    float x = 0;
    float y = 0;
    float z = 0;
    static_cast<NxSFVec3f*>(m_field)->getValue().getValue(x, y, z);
    orvane::showNumber(m_xLine, x);
    orvane::showNumber(m_yLine, y);
    orvane::showNumber(m_zLine, z);
    orvane::resetCursors({m_xLine, m_yLine, m_zLine});
    DvSFieldWidget::updateFromField();
}

void DvSFVec3fWidget::applyChanges()
{
    if (m_field == nullptr)
        return;
    static_cast<NxSFVec3f*>(m_field)->setValue(
        orvane::numberIn(m_xLine), orvane::numberIn(m_yLine), orvane::numberIn(m_zLine));
    orvane::pushVectorCommand(m_field, m_editionFrame);
}

bool DvSFVec3fWidget::edited()
{
    return orvane::anyModified({m_xLine, m_yLine, m_zLine});
}
