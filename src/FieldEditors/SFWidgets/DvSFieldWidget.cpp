#include "FieldEditors/SFWidgets/DvSFieldWidget.h"

#include "FieldEditors/DvSliderFactory.h"
#include "FieldEditors/EditorIcons.h"
#include "FieldEditors/FieldChanges.h"
#include "FieldEditors/IconButton.h"
#include "FieldEditors/LayoutMetrics.h"

#include "meridane/scene/fields/NxField.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>

namespace {

QHBoxLayout* makeRow(QWidget* parent, const QString& name, const QString& marginMetric, const QString& spacingMetric)
{
    auto* const layout = new QHBoxLayout(parent);
    setLayoutMetrics(layout, marginMetric, spacingMetric);
    layout->setObjectName(name);
    return layout;
}

void setBox(QFrame* frame, const QString& lineWidthMetric)
{
    frame->setFrameShape(QFrame::Box);
    frame->setFrameShadow(QFrame::Plain);
    frame->setLineWidth(getLayoutMetric(lineWidthMetric));
}

QSpacerItem* addSpacer(QHBoxLayout* layout)
{
    auto* const spacer = new QSpacerItem(0, 0, QSizePolicy::Minimum, QSizePolicy::Minimum);
    layout->addItem(spacer);
    return spacer;
}

} // namespace

DvSFieldWidget::DvSFieldWidget(int sliderKind, const char* name)
    : DvSFieldWidget(name != nullptr ? name : "DvSFieldWidget")
{
    m_editionFrame = makeSlider(sliderKind, this, m_frame);
}

DvSFieldWidget::DvSFieldWidget(const char* name)
    : m_defaultPixmap(orvane::setDefaultIcon())
    , m_ignorePixmap(orvane::ignoreIcon())
{
    setObjectName(QString::fromLatin1(name));
}

DvSFieldWidget::~DvSFieldWidget() = default;

void DvSFieldWidget::load()
{
    OrvFieldEditors::load();
    setBox(m_frame, QStringLiteral("frameLineWidth"));
    m_mainLayout = makeRow(m_frame, QStringLiteral("SFieldLayout"), QStringLiteral("SFieldLayoutMargin"),
        QStringLiteral("SFieldLayoutSpacing"));
    buildLabel();
    buildEditionArea();
    buildButtons();
    m_editionAreaLayout->setSizeConstraint(QLayout::SetMinimumSize);
    m_mainLayout->addLayout(m_editionAreaLayout);
    languageChange();
    connect(m_defaultButton, &QPushButton::clicked, this, &DvSFieldWidget::setDefaultFieldValue);
    connect(m_ignoreButton, &QPushButton::released, this, &DvSFieldWidget::ignoreButtonStateChanged);
}

void DvSFieldWidget::buildLabel()
{
    m_label->setObjectName(QStringLiteral("m_label"));
    QFont font = m_label->font();
    font.setPointSize(getLayoutMetric(QStringLiteral("labelPointSize")));
    m_label->setFont(font);
    setBox(m_label, QStringLiteral("labelLineWidth"));
    m_label->setScaledContents(true);
    m_mainLayout->addWidget(m_label, 0);
    m_labelSpacer = addSpacer(m_mainLayout);
}

void DvSFieldWidget::buildEditionArea()
{
    m_editionAreaLayout = makeRow(nullptr, QStringLiteral("SFieldEditionAreaLayout"),
        QStringLiteral("SFEditionAreaLayMargin"), QStringLiteral("SFEditionAreaLaySpacing"));
    if (m_editionFrame != nullptr) {
        // A slider keeps its own layout, margins and names.
        m_editLayout = qobject_cast<QHBoxLayout*>(m_editionFrame->layout());
    } else {
        m_editionFrame = new QFrame(m_frame);
        m_editionFrame->setObjectName(QStringLiteral("m_editionFrame"));
        // So that labels and controls stay together in a high dock.
        m_editionFrame->setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Maximum);
        setBox(m_editionFrame, QStringLiteral("frameLineWidth"));
        m_editLayout = makeRow(m_editionFrame, QStringLiteral("editLayout"), QStringLiteral("SFieldEditLayoutMargin"),
            QStringLiteral("SFieldEditLayoutSpacing"));
    }
    m_editionAreaLayout->addWidget(m_editionFrame, 0);
    m_editionSpacer = addSpacer(m_editionAreaLayout);
}

void DvSFieldWidget::buildButtons()
{
    // Contract: it has the name of the main layout, so a search by name finds the main one first.
    m_buttonsLayout = makeRow(nullptr, QStringLiteral("SFieldLayout"), QStringLiteral("SFButtonLayoutMargin"),
        QStringLiteral("SFButtonLayoutSpacing"));
    m_defaultButton = orvane::makeIconButton(m_frame, QStringLiteral("m_defaultButton"), m_defaultPixmap);
    m_ignoreButton = orvane::makeIconButton(m_frame, QStringLiteral("m_ignoreButton"), m_ignorePixmap);
    m_ignoreButton->setCheckable(true);
    for (QPushButton* const button : {m_defaultButton, m_ignoreButton}) {
        // A click must not take the focus from a line that is being edited.
        button->setFocusPolicy(Qt::NoFocus);
        m_buttonsLayout->addWidget(button, 0);
    }
    m_editionAreaLayout->addLayout(m_buttonsLayout);
}

void DvSFieldWidget::setField(NxField* field)
{
    m_field = field;
    OrvFieldEditors::setField(field);
}

void DvSFieldWidget::updateFromField()
{
    if (m_field == nullptr)
        return;
    m_ignoreButton->setChecked(m_field->isIgnored());
}

void DvSFieldWidget::setRefreshEnabled(bool /*enabled*/) { }

void DvSFieldWidget::swapRows(int /*first*/, int /*second*/) { }

void DvSFieldWidget::reservedRowOperation() { }

void DvSFieldWidget::setCellValue(int /*row*/, int /*column*/, QString /*value*/) { }

void DvSFieldWidget::setRowColor(int /*row*/, const VbVec4f& /*value*/) { }

bool DvSFieldWidget::edited()
{
    return false;
}

void DvSFieldWidget::languageChange()
{
    m_defaultButton->setText(QString());
    m_defaultButton->setToolTip(QStringLiteral("Set to default"));
    m_ignoreButton->setText(QString());
    m_ignoreButton->setToolTip(QStringLiteral("Ignore this field"));
}

void DvSFieldWidget::setCommandValue()
{
    applyChanges();
}

void DvSFieldWidget::setFocusLeaveEvent()
{
    if (edited())
        applyChanges();
}

void DvSFieldWidget::ignoreButtonStateChanged()
{
    orvane::setFieldIgnored(m_field, m_ignoreButton->isChecked());
}

void DvSFieldWidget::setDefaultFieldValue()
{
    orvane::setDefaultFieldValue(m_field);
}

void DvSFieldWidget::applyChanges() { }

void DvSFieldWidget::setFieldTypeLabel(const QString& typeName)
{
    if (m_label == nullptr)
        m_label = new QLabel(m_frame);
    if (!m_label->text().isEmpty())
        return;
    m_label->setText(tr("<p align=\"center\">") + typeName + tr("</p>"));
}

void DvSFieldWidget::centreEditionArea()
{
    for (QSpacerItem* const spacer : {m_labelSpacer, m_editionSpacer})
        spacer->changeSize(0, 0, QSizePolicy::Expanding, QSizePolicy::Minimum);
    m_mainLayout->invalidate();
}
