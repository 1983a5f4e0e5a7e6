#pragma once

#include <QAbstractScrollArea>

namespace orvane {

/// Gives a view a context menu of its actions that can be used now, named "contextMenu"; none if there are none.
void giveApplicableMenu(QAbstractScrollArea* view);

} // namespace orvane
