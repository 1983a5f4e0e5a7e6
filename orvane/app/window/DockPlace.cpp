#include "orvane/app/window/DockPlace.h"

#include <QDockWidget>
#include <QMainWindow>

#include <algorithm>

void orvane::placeAtBottom(QMainWindow* window, QDockWidget* dock, int height)
{
    QDockWidget* beside = nullptr;
    for (QDockWidget* const other : window->findChildren<QDockWidget*>(Qt::FindDirectChildrenOnly)) {
        const bool isAtBottom = window->dockWidgetArea(other) == Qt::BottomDockWidgetArea;
        if (other != dock && isAtBottom && other->isVisible() && !other->isFloating())
            beside = other;
    }
    window->addDockWidget(Qt::BottomDockWidgetArea, dock);
    if (beside != nullptr) {
        window->tabifyDockWidget(beside, dock);
        height = std::max(height, beside->height());
    }
    window->resizeDocks({beside != nullptr ? beside : dock}, {height}, Qt::Vertical);
}
