#include "FieldEditors/SFWidgets/DvSFColorRGBAWidget.h"

#include "FieldEditors/FieldChanges.h"
#include "FieldEditors/LayoutMetrics.h"
#include "FieldEditors/SFWidgets/ColorParts.h"
#include "FieldEditors/SFWidgets/NumberLine.h"

#include "meridane/scene/fields/single/NxSFColorRGBA.h"

#include <QColorDialog>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>

DvSFColorRGBAWidget::DvSFColorRGBAWidget(const char* name)
    : DvSFieldWidget(name)
{
    m_handledType = NxSFColorRGBA::getClassTypeId();
    if (name == nullptr)
        setObjectName(QLatin1String("DvSFColorRGBAWidget"));
    m_name = "SFColorRGBA";
}

DvSFColorRGBAWidget::~DvSFColorRGBAWidget() = default;

void DvSFColorRGBAWidget::load()
{
    setFieldTypeLabel(QLatin1String("SFColorRGBA"));
    DvSFieldWidget::load();
    m_colorDisp = orvane::addColorDisplay(m_editLayout, m_editionFrame);
    addRow(m_redLabel, m_redLine);
    addRow(m_greenLabel, m_greenLine);
    addRow(m_blueLabel, m_blueLine);
    addRow(m_alphaLabel, m_alphaLine);
    m_redLabel->setText(tr("<p align=\"right\">R</p>"));
    m_greenLabel->setText(tr("<p align=\"right\">G</p>"));
    m_blueLabel->setText(tr("<p align=\"right\">B</p>"));
    m_alphaLabel->setText(tr("<p align=\"right\">A</p>"));
    connect(m_redLine, &QLineEdit::textChanged, this, &DvSFColorRGBAWidget::changeRValue);
    connect(m_greenLine, &QLineEdit::textChanged, this, &DvSFColorRGBAWidget::changeGValue);
    connect(m_blueLine, &QLineEdit::textChanged, this, &DvSFColorRGBAWidget::changeBValue);
    connect(m_alphaLine, &QLineEdit::textChanged, this, &DvSFColorRGBAWidget::changeAValue);
    connect(m_colorDisp, &QPushButton::clicked, this, &DvSFColorRGBAWidget::getColorEditor);
}

void DvSFColorRGBAWidget::addRow(QLabel*& label, QLineEdit*& line)
{
    label = new QLabel(m_editionFrame);
    label->setObjectName(QStringLiteral("SFColorRGBALabel"));
    line = new QLineEdit(tr("0"), m_editionFrame);
    line->setObjectName(QStringLiteral("SFColorRGBALine"));
    QHBoxLayout* const row = orvane::addColorRow(m_editLayout, label, line);
    row->setObjectName(QStringLiteral("SFColorRGBALayout"));
    // Contract: there is no metric of this name, so label and line touch.
    row->setSpacing(getLayoutMetric(QStringLiteral("SFColorRGBAInterSpacing")));
    connect(line, &QLineEdit::returnPressed, this, &DvSFColorRGBAWidget::setCommandValue);
    connect(line, &QLineEdit::editingFinished, this, &DvSFColorRGBAWidget::setFocusLeaveEvent);
}

void DvSFColorRGBAWidget::changeRValue(const QString& str)
{
    m_red = str.toFloat();
    orvane::showColor(m_colorDisp, color());
}

void DvSFColorRGBAWidget::changeGValue(const QString& str)
{
    m_green = str.toFloat();
    orvane::showColor(m_colorDisp, color());
}

void DvSFColorRGBAWidget::changeBValue(const QString& str)
{
    m_blue = str.toFloat();
    orvane::showColor(m_colorDisp, color());
}

void DvSFColorRGBAWidget::changeAValue(const QString& str)
{
    m_alpha = str.toFloat();
    orvane::showColor(m_colorDisp, color());
}

QColor DvSFColorRGBAWidget::color() const
{
    return {orvane::shownComponent(m_red), orvane::shownComponent(m_green), orvane::shownComponent(m_blue),
        orvane::shownComponent(m_alpha)};
}

void DvSFColorRGBAWidget::getColorEditor()
{
    // An empty title rather than a null one, and single precision; the editor without opacity differs in both.
    const QColor chosen
        = QColorDialog::getColor(color(), getFrame(), QLatin1String(""), QColorDialog::ShowAlphaChannel);
    if (!chosen.isValid())
        return;
    m_red = static_cast<float>(chosen.red()) / 255.0F;
    m_green = static_cast<float>(chosen.green()) / 255.0F;
    m_blue = static_cast<float>(chosen.blue()) / 255.0F;
    m_alpha = static_cast<float>(chosen.alpha()) / 255.0F;
    showComponents();
    setCommandValue();
}

void DvSFColorRGBAWidget::showComponents()
{
    // Each text is read back into its component, so that the editor knows the number that it shows.
    orvane::showNumber(m_redLine, m_red);
    orvane::showNumber(m_greenLine, m_green);
    orvane::showNumber(m_blueLine, m_blue);
    orvane::showNumber(m_alphaLine, m_alpha);
}

void DvSFColorRGBAWidget::updateFromField()
{
    if (m_field == nullptr)
        return;
    static_cast<NxSFColorRGBA*>(m_field)->getValue().getValue(m_red, m_green, m_blue, m_alpha);
    showComponents();
    orvane::resetCursors({m_redLine, m_greenLine, m_blueLine, m_alphaLine});
    orvane::showColor(m_colorDisp, color());
    DvSFieldWidget::updateFromField();
}

void DvSFColorRGBAWidget::applyChanges()
{
    if (m_field == nullptr)
        return;
    VbColorRGBA value;
    value.setValue(m_red, m_green, m_blue, m_alpha);
    static_cast<NxSFColorRGBA*>(m_field)->setValue(value);
    orvane::pushSetValueCommand(m_field);
}

bool DvSFColorRGBAWidget::edited()
{
    return orvane::anyModified({m_redLine, m_greenLine, m_blueLine, m_alphaLine});
}
