#include "orvane/app/base/PendingEdits.h"

#include <QApplication>
#include <QPointer>
#include <QWidget>

namespace orvane {

void commitPendingEdit()
{
    const QPointer<QWidget> widget = QApplication::focusWidget();
    if (widget == nullptr)
        return;
    widget->clearFocus();
    if (widget != nullptr)
        widget->setFocus();
}

} // namespace orvane
