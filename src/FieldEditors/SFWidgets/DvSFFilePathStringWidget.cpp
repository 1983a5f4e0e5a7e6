#include "FieldEditors/SFWidgets/DvSFFilePathStringWidget.h"

#include "FieldEditors/SFWidgets/EditLine.h"

#include "meridane/scene/fields/single/NxSFFilePathString.h"

#include <QFileDialog>
#include <QHBoxLayout>
#include <QLineEdit>
#include <QPushButton>

DvSFFilePathStringWidget::DvSFFilePathStringWidget(const char* name)
    : DvSFieldWidget(name)
{
    m_handledType = NxSFFilePathString::getClassTypeId();
    if (name == nullptr)
        setObjectName(QLatin1String("DvSFFilePathStringWidget"));
    m_name = "SFFilePathString";
}

void DvSFFilePathStringWidget::load()
{
    setFieldTypeLabel(QLatin1String("SFFilePathString"));
    DvSFieldWidget::load();
    lineEdit = orvane::addEditLine(*m_editionFrame, *m_editLayout);
    m_openFileButton = new QPushButton(m_editionFrame);
    QSizePolicy policy(QSizePolicy::Maximum, QSizePolicy::Fixed, QSizePolicy::DefaultType);
    policy.setHeightForWidth(m_openFileButton->sizePolicy().hasHeightForWidth());
    m_openFileButton->setSizePolicy(policy);
    m_openFileButton->setObjectName(QStringLiteral("openFileButton"));
    m_openFileButton->setText(QStringLiteral("..."));
    // More stretch than the line has. The button can't use it, so the line gets the rest.
    m_editLayout->addWidget(m_openFileButton, 2);
    // Contract: finished editing writes the field, whether the text has changed or not.
    connect(lineEdit, &QLineEdit::editingFinished, this, &DvSFFilePathStringWidget::setCommandValue);
    connect(m_openFileButton, &QPushButton::clicked, this, &DvSFFilePathStringWidget::openFileDialog);
}

void DvSFFilePathStringWidget::openFileDialog()
{
    const QString path = QFileDialog::getOpenFileName(getWidget(), tr("Open File"));
    if (path.isEmpty())
        return;
    lineEdit->setText(path);
    applyChanges();
}

void DvSFFilePathStringWidget::updateFromField()
{
    orvane::showString(lineEdit, m_field, NxSFFilePathString::getClassTypeId());
    DvSFieldWidget::updateFromField();
}

void DvSFFilePathStringWidget::applyChanges()
{
    orvane::applyString(lineEdit, m_field, NxSFFilePathString::getClassTypeId());
}

bool DvSFFilePathStringWidget::edited()
{
    return lineEdit->isModified();
}
