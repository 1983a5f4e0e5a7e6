#include "orvane/app/access/AccessibleView.h"

#include "orvane/app/access/ViewText.h"
#include "orvane/app/view/SceneView.h"

AccessibleView::AccessibleView(SceneView* view)
    : QAccessibleWidget(view, QAccessible::Canvas)
{
}

QString AccessibleView::text(QAccessible::Text kind) const
{
    if (kind != QAccessible::Description)
        return QAccessibleWidget::text(kind);
    // What keys do here follows.
    return orvane::viewText(static_cast<const SceneView&>(*widget())) + u'\n' + QAccessibleWidget::text(kind);
}

QStringList AccessibleView::actionNames() const
{
    return QAccessibleWidget::actionNames() + QStringList{pressAction(), showMenuAction()};
}

void AccessibleView::doAction(const QString& actionName)
{
    auto& view = static_cast<SceneView&>(*widget());
    if (actionName == pressAction())
        view.input().pickMiddle();
    else if (actionName == showMenuAction())
        Q_EMIT view.menuRequested(view.mapToGlobal(view.rect().center()));
    else
        QAccessibleWidget::doAction(actionName);
}
