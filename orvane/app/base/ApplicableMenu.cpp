#include "orvane/app/base/ApplicableMenu.h"

#include <QAction>
#include <QMenu>

#include <algorithm>

void orvane::giveApplicableMenu(QAbstractScrollArea* view)
{
    view->setContextMenuPolicy(Qt::CustomContextMenu);
    QObject::connect(view, &QWidget::customContextMenuRequested, view, [view](const QPoint& place) {
        const QList<QAction*> actions = view->actions();
        const auto applies = [](const QAction* action) { return action->isEnabled() && !action->isSeparator(); };
        if (std::none_of(actions.begin(), actions.end(), applies))
            return;
        auto* const menu = new QMenu(view);
        menu->setAttribute(Qt::WA_DeleteOnClose);
        menu->setObjectName(QStringLiteral("contextMenu"));
        for (QAction* const action : actions) {
            if (action->isSeparator() || action->isEnabled())
                menu->addAction(action);
        }
        menu->popup(view->viewport()->mapToGlobal(place));
    });
}
