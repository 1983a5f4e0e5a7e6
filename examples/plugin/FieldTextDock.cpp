#include "FieldTextDock.h"

#include "orvane/extender/OrvServices.h"
#include "orvane/extender/OrvShell.h"
#include "orvane/extender/VbText.h"

#include "meridane/scene/fields/NxField.h"

#include <QDockWidget>
#include <QLabel>

namespace {

// A label isn't made for texts of megabytes.
constexpr qsizetype longestText = 1000;

} // namespace

// The sensor calls from the event loop, some time after the field has changed, however often that was.
FieldTextDock::FieldTextDock()
    : m_sensor([](void* dock, NxSensor*) { static_cast<FieldTextDock*>(dock)->showValue(); }, this)
{
    m_name = "Field Text";
    m_author = "The authors of Orvane";
    m_description = "Shows the selected field as text.";
    m_version = "1.0.0";
}

FieldTextDock::~FieldTextDock() = default;

// Builds the extension's own objects, hidden, and talks to nobody.
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

// Links the extension to the rest of the tool. The selection is announced once more behind the activation.
void FieldTextDock::activate()
{
    OrvExtension::activate();
    connect(
        OrvServices::getInstance(), &OrvServices::selectedFieldChanged, this, &FieldTextDock::s_selectedFieldChanged);
    OrvShell::getInstance()->addDockWidget(m_dock, Qt::RightDockWidgetArea);
    OrvShell::getInstance()->announceExtension(this, 1);
    show();
}

// Undoes what activate() did; the dock stays ours.
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
    // The sensor lets go of a field that dies, so this pointer is never stale.
    if (const NxField* const field = m_sensor.getAttachedField())
        field->get(text);
    m_label->setText(orvane::toQString(text).left(longestText));
}
