#include "orvane/app/access/Access.h"

#include "orvane/app/access/AccessibleFieldTable.h"
#include "orvane/app/access/AccessibleMessage.h"
#include "orvane/app/access/AccessibleView.h"
#include "orvane/app/access/ControlName.h"
#include "orvane/app/fields/FieldTableView.h"
#include "orvane/app/messages/MessageRow.h"
#include "orvane/app/view/SceneView.h"

#include <QAccessible>
#include <QWidget>

namespace {

// Called for the class of the object, and then for each class above until one gives an interface.
QAccessibleInterface* makeInterface(const QString& className, QObject* object)
{
    auto* const widget = qobject_cast<QWidget*>(object);
    if (widget == nullptr)
        return nullptr;
    if (auto* const table = qobject_cast<FieldTableView*>(widget); table != nullptr)
        return new AccessibleFieldTable(table);
    if (auto* const view = qobject_cast<SceneView*>(widget); view != nullptr)
        return new AccessibleView(view);
    if (auto* const message = qobject_cast<MessageRow*>(widget); message != nullptr)
        return new AccessibleMessage(message);
    if (className == QLatin1String(widget->metaObject()->className()))
        orvane::nameControl(*widget);
    return nullptr; // that of the kind of widget
}

} // namespace

void orvane::installAccess()
{
    QAccessible::removeFactory(&makeInterface); // so that a second call changes nothing
    QAccessible::installFactory(&makeInterface);
}
