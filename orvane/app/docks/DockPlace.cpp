#include "orvane/app/docks/DockPlace.h"

#include <QDockWidget>
#include <QMainWindow>

namespace {

constexpr int firstHeight = 250;

} // namespace

void orvane::placeAtBottom(QMainWindow* window, QDockWidget* dock)
{
    QDockWidget* beside = nullptr;
    for (QDockWidget* const other : window->findChildren<QDockWidget*>(Qt::FindDirectChildrenOnly)) {
        const bool isAtBottom = window->dockWidgetArea(other) == Qt::BottomDockWidgetArea;
        if (other != dock && isAtBottom && other->isVisible() && !other->isFloating())
            beside = other;
    }
    window->addDockWidget(Qt::BottomDockWidgetArea, dock);
    if (beside != nullptr)
        window->tabifyDockWidget(beside, dock);
    else
        window->resizeDocks({dock}, {firstHeight}, Qt::Vertical);
}
