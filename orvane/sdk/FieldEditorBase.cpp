#include "orvane/sdk/FieldEditorBase.h"

#include "orvane/extender/ReplacedEditors.h"
#include "orvane/sdk/detail/FieldButtons.h"

#include "meridane/base/values/VbName.h"
#include "meridane/scene/fields/NxField.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>

namespace orv {

FieldEditorBase::FieldEditorBase(NxType handled, const char* name)
    : m_frame(new QFrame)
{
    m_handledType = handled;
    m_name = name != nullptr ? name : handled.getName().getString();
    m_widget = m_frame;
    m_frame->setObjectName(QString::fromLatin1(handled.getName().getString()));
    m_frame->hide();
}

void FieldEditorBase::replaces(const QStringList& names)
{
    orvane::setReplacedEditors(*this, names);
}

FieldEditorBase::~FieldEditorBase()
{
    destroyWidgets();
}

void FieldEditorBase::load()
{
    if (m_frame.isNull())
        m_widget = m_frame = new QFrame;
    m_frame->hide();
}

void FieldEditorBase::unload()
{
    forgetWidgets();
    destroyWidgets();
}

void FieldEditorBase::destroyWidgets()
{
    m_buttons.reset();
    m_layout = nullptr;
    delete m_frame.data();
    m_widget = nullptr;
}

void FieldEditorBase::activate()
{
    OrvExtension::activate();
    NxTypedObject* const object = getEditedObject();
    if (object == nullptr || !object->isOfType(m_handledType)) {
        hide();
        return;
    }
    buildOnce();
    auto* const field = static_cast<NxField*>(object);
    m_buttons->attach(field);
    attachField(field);
    show();
}

void FieldEditorBase::deactivate()
{
    OrvExtension::deactivate();
    attachField(nullptr);
    if (m_buttons != nullptr)
        m_buttons->attach(nullptr);
    hide();
}

void FieldEditorBase::hide()
{
    OrvExtension::hide();
    if (!m_frame.isNull())
        m_frame->hide();
}

void FieldEditorBase::show()
{
    OrvExtension::show();
    if (!m_frame.isNull())
        m_frame->show();
}

// At first need, so that the start of the program doesn't wait for editors that nobody opens.
void FieldEditorBase::buildOnce()
{
    if (m_layout != nullptr)
        return;
    auto* const row = new QHBoxLayout(m_frame);
    auto* const label = new QLabel(QString::fromLatin1(m_handledType.getName().getString()));
    label->setObjectName(QStringLiteral("typeLabel"));
    label->setFrameShape(QFrame::Box);
    row->addWidget(label, 0, Qt::AlignVCenter);
    m_layout = new QHBoxLayout;
    row->addLayout(m_layout, 1);
    m_buttons = std::make_unique<FieldButtons>(*m_frame);
    row->addWidget(&m_buttons->defaultButton());
    row->addWidget(&m_buttons->ignoreButton());
    build();
}

void FieldEditorBase::addWidget(QWidget& widget)
{
    if (widget.objectName().isEmpty())
        widget.setObjectName(QStringLiteral("widget%1").arg(m_layout->count()));
    m_layout->addWidget(&widget);
}

} // namespace orv
