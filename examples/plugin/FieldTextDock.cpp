#include "FieldTextDock.h"

#include "orvane/extender/OrvServices.h"
#include "orvane/extender/OrvShell.h"
#include "orvane/extender/VbText.h"

#include "meridane/scene/fields/NxField.h"

#include <QDockWidget>
#include <QLabel>

namespace {

// A label can't show texts of megabytes in reasonable time.
constexpr qsizetype longestText = 1000;

} // namespace

// The sensor calls it from the event loop, once after one or more changes of the field.
FieldTextDock::FieldTextDock()
    : m_sensor([](void* dock, NxSensor*) { static_cast<FieldTextDock*>(dock)->showValue(); }, this)
{
    m_name = "Field Text";
    m_author = "The authors of Orvane";
    m_description = "Shows the selected field as text.";
    m_version = "1.0.0";
}

FieldTextDock::~FieldTextDock() = default;

// Builds the extension's own objects, hidden, and uses nothing else of the tool.
void FieldTextDock::load()
{
    m_dock = new QDockWidget(QStringLiteral("Field Text"));
    m_dock->setObjectName(QStringLiteral("FieldTextDock"));
    m_label = new QLabel(m_dock);
    m_label->setTextFormat(Qt::PlainText);
    m_label->setWordWrap(true);
    m_dock->setWidget(m_label);
    m_dock->hide();
}

void FieldTextDock::unload()
{
    delete m_dock;
    m_dock = nullptr;
    m_label = nullptr;
}

// Connects the extension to the rest of the tool. The selection is announced again after the activation.
void FieldTextDock::activate()
{
    OrvExtension::activate();
    connect(
        OrvServices::getInstance(), &OrvServices::selectedFieldChanged, this, &FieldTextDock::s_selectedFieldChanged);
    OrvShell::getInstance()->addDockWidget(m_dock, Qt::RightDockWidgetArea);
    OrvShell::getInstance()->announceExtension(this, 1);
    show();
}

// Undoes what activate() did; the extension still owns the dock.
void FieldTextDock::deactivate()
{
    m_sensor.detach();
    m_label->clear();
    OrvExtension::deactivate();
    disconnect(OrvServices::getInstance(), nullptr, this, nullptr);
    OrvShell::getInstance()->removeDockWidget(m_dock);
    OrvShell::getInstance()->withdrawExtension(this);
}

void FieldTextDock::hide()
{
    OrvExtension::hide();
    m_dock->hide();
}

void FieldTextDock::show()
{
    OrvExtension::show();
    m_dock->show();
}

void FieldTextDock::s_selectedFieldChanged(NxField* field)
{
    m_sensor.attach(field);
    showValue();
}

void FieldTextDock::showValue()
{
    VbString text;
    // The sensor detaches from a field that is destroyed, so this pointer is never dangling.
    if (const NxField* const field = m_sensor.getAttachedField())
        field->get(text);
    m_label->setText(orvane::toQString(text).left(longestText));
}
