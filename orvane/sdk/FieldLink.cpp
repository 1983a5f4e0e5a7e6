#include "orvane/sdk/FieldLink.h"

#include "orvane/extender/OrvDocument.h"
#include "orvane/extender/OrvServices.h"

#include "meridane/scene/fields/NxField.h"

#include <QSignalBlocker>

#include <utility>

namespace orv {

FieldLink::FieldLink()
    : m_sensor([](void* link, NxSensor* /*sensor*/) { static_cast<FieldLink*>(link)->refresh(); }, this)
{
}

FieldLink::~FieldLink() = default;

void FieldLink::detach()
{
    m_sensor.detach();
    m_node = {};
}

void FieldLink::follow(NxField* field)
{
    // The former node is released last, since it may be the last reference to the field that is still attached.
    const NxRef<NxFieldContainer> former = std::exchange(m_node, field != nullptr ? field->getContainer() : nullptr);
    m_sensor.attach(field);
    if (OrvServices* const services = OrvServices::getInstance(); services != nullptr && !m_closing)
        m_closing
            = QObject::connect(&services->document(), &OrvDocument::aboutToClose, &m_context, [this] { detach(); });
    refresh();
}

void FieldLink::refresh()
{
    if (!isAttached())
        return;
    for (const Shown& shown : m_widgets)
        show(shown);
}

void FieldLink::clear()
{
    m_widgets.clear();
}

void FieldLink::addWidget(QObject& widget, std::function<void()> show)
{
    m_widgets.push_back({&widget, std::move(show)});
    if (isAttached())
        FieldLink::show(m_widgets.back());
}

void FieldLink::show(const Shown& shown)
{
    if (shown.widget.isNull())
        return;
    const QSignalBlocker blocker(shown.widget.data());
    shown.show();
}

} // namespace orv
