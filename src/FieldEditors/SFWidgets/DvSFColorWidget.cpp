#include "FieldEditors/SFWidgets/DvSFColorWidget.h"

#include "FieldEditors/FieldChanges.h"
#include "FieldEditors/LayoutMetrics.h"
#include "FieldEditors/SFWidgets/ColorParts.h"
#include "FieldEditors/SFWidgets/NumberLine.h"

#include "meridane/scene/fields/single/NxSFColor.h"

#include <QColorDialog>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>

DvSFColorWidget::DvSFColorWidget(const char* name)
    : DvSFieldWidget(name)
{
    m_handledType = NxSFColor::getClassTypeId();
    if (name == nullptr)
        setObjectName(QLatin1String("DvSFColorWidget"));
    m_name = "SFColor";
}

DvSFColorWidget::~DvSFColorWidget() = default;

void DvSFColorWidget::load()
{
    setFieldTypeLabel(QLatin1String("SFColor"));
    DvSFieldWidget::load();
    m_colorDisp = orvane::addColorDisplay(m_editLayout, m_editionFrame);
    addRow(m_redLabel, m_redLine);
    addRow(m_greenLabel, m_greenLine);
    addRow(m_blueLabel, m_blueLine);
    m_redLabel->setText(tr("<p align=\"right\">R</p>"));
    m_greenLabel->setText(tr("<p align=\"right\">G</p>"));
    m_blueLabel->setText(tr("<p align=\"right\">B</p>"));
    // Connected by text, with these blanks in the signals' spelling.
    // clang-format off
    connect(m_redLine, SIGNAL(textChanged ( const QString & )), this, SLOT(changeRValue(const QString & )));
    connect(m_greenLine, SIGNAL(textChanged ( const QString & )), this, SLOT(changeGValue(const QString & )));
    connect(m_blueLine, SIGNAL(textChanged ( const QString & )), this, SLOT(changeBValue(const QString & )));
    // clang-format on
    connect(m_colorDisp, &QPushButton::clicked, this, &DvSFColorWidget::getColorEditor);
}

void DvSFColorWidget::addRow(QLabel*& label, QLineEdit*& line)
{
    label = new QLabel(m_editionFrame);
    label->setObjectName(QStringLiteral("SFColorLabel"));
    line = new QLineEdit(tr("0"), m_editionFrame);
    line->setObjectName(QStringLiteral("SFColorLine"));
    QHBoxLayout* const row = orvane::addColorRow(m_editLayout, label, line);
    row->setObjectName(QStringLiteral("SFColorLayout"));
    row->setSpacing(getLayoutMetric(QStringLiteral("SFColorInterSpacing")));
    orvane::applyFromLine(line, this);
}

void DvSFColorWidget::changeRValue(const QString& str)
{
    m_red = str.toFloat();
    orvane::showColor(m_colorDisp, color());
}

void DvSFColorWidget::changeGValue(const QString& str)
{
    m_green = str.toFloat();
    orvane::showColor(m_colorDisp, color());
}

void DvSFColorWidget::changeBValue(const QString& str)
{
    m_blue = str.toFloat();
    orvane::showColor(m_colorDisp, color());
}

QColor DvSFColorWidget::color() const
{
    return {orvane::shownComponent(m_red), orvane::shownComponent(m_green), orvane::shownComponent(m_blue), 255};
}

void DvSFColorWidget::getColorEditor()
{
    const QColor chosen = QColorDialog::getColor(color(), getFrame(), QString());
    if (!chosen.isValid())
        return;
    // In double precision, unlike in the editor with opacity. The six digits that are shown are the same.
    m_red = static_cast<float>(chosen.red() / 255.0);
    m_green = static_cast<float>(chosen.green() / 255.0);
    m_blue = static_cast<float>(chosen.blue() / 255.0);
    showComponents();
    setCommandValue();
}

void DvSFColorWidget::showComponents()
{
    // Each text is read back into its component, so that the editor knows the number that it shows.
    orvane::showNumber(m_redLine, m_red);
    orvane::showNumber(m_greenLine, m_green);
    orvane::showNumber(m_blueLine, m_blue);
}

void DvSFColorWidget::updateFromField()
{
    if (m_field == nullptr)
        return;
    static_cast<NxSFColor*>(m_field)->getValue().getValue(m_red, m_green, m_blue);
    showComponents();
    orvane::resetCursors({m_redLine, m_greenLine, m_blueLine});
    orvane::showColor(m_colorDisp, color());
    DvSFieldWidget::updateFromField();
}

void DvSFColorWidget::applyChanges()
{
    if (m_field == nullptr)
        return;
    static_cast<NxSFColor*>(m_field)->setValue(VbColor(m_red, m_green, m_blue));
    orvane::pushSetValueCommand(m_field);
}

bool DvSFColorWidget::edited()
{
    return orvane::anyModified({m_redLine, m_greenLine, m_blueLine});
}
