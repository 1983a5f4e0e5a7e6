#include "FieldEditors/SFWidgets/DvSFImageWidget.h"

#include "FieldEditors/LayoutMetrics.h"
#include "FieldEditors/SFWidgets/DvSFImageLabel.h"
#include "FieldEditors/SFWidgets/ImagePixmap.h"

#include "meridane/scene/fields/single/NxSFImage.h"

#include <QHBoxLayout>

DvSFImageWidget::DvSFImageWidget(const char* name)
    : DvSFieldWidget(name)
{
    m_handledType = NxSFImage::getClassTypeId();
    if (name == nullptr)
        setObjectName(QLatin1String("DvSFImageWidget"));
    m_name = "SFImage";
}

void DvSFImageWidget::load()
{
    setFieldTypeLabel(QLatin1String("SFImage"));
    DvSFieldWidget::load();
    // As large as a check box.
    const int side = getLayoutMetric(QStringLiteral("SFBoolWidth"));
    m_imageBox = new DvSFImageLabel(side, side, m_editionFrame, "m_imageBox");
    m_editLayout->addWidget(m_imageBox, 0);
}

void DvSFImageWidget::updateFromField()
{
    m_imageBox->showPixmap(m_field != nullptr ? orvane::imagePixmap(*m_field) : QPixmap());
    DvSFieldWidget::updateFromField();
}

void DvSFImageWidget::applyChanges() { }
