#pragma once

#include <QCoreApplication>
#include <QString>

namespace orvane {

/// What is said about a value that isn't written yet.
[[nodiscard]] inline QString pendingText()
{
    return QCoreApplication::translate("PendingText",
        "Not written yet. It is written when you release the button, press Return or close the popup; Escape drops "
        "it.");
}

} // namespace orvane
