#include "orvane/app/manners/ShortTips.h"

#include "orvane/app/base/PlainText.h"
#include "orvane/app/manners/EditorDocks.h"

#include <QAbstractItemView>
#include <QCoreApplication>
#include <QHelpEvent>
#include <QTextDocumentFragment>
#include <QToolTip>

namespace {

/// The tip of a widget, or of the cell of a view at that place of its viewport.
QString tipOf(const QWidget* widget, const QPoint& place)
{
    const auto* const view = qobject_cast<const QAbstractItemView*>(widget->parentWidget());
    if (view != nullptr && view->viewport() == widget) {
        QString tip = view->indexAt(place).data(Qt::ToolTipRole).toString();
        if (!tip.isEmpty())
            return tip;
    }
    return widget->toolTip();
}

} // namespace

ShortTips::ShortTips(QObject* parent)
    : QObject(parent)
{
    QCoreApplication::instance()->installEventFilter(this);
}

ShortTips::~ShortTips() = default;

bool ShortTips::eventFilter(QObject* object, QEvent* event)
{
    if (event->type() != QEvent::ToolTip || !object->isWidgetType())
        return false;
    auto* const widget = static_cast<QWidget*>(object);
    const auto* const help = static_cast<QHelpEvent*>(event);
    const QString tip = tipOf(widget, help->pos());
    if (tip.size() <= mostCharacters || EditorDocks::dockOf(widget) == nullptr)
        return false;
    const QString plain = Qt::mightBeRichText(tip) ? QTextDocumentFragment::fromHtml(tip).toPlainText() : tip;
    const QString cut = plain.size() > mostCharacters ? plain.left(mostCharacters - 1) + u'…' : plain;
    QToolTip::showText(help->globalPos(), orvane::plainToolTip(cut), widget);
    return true;
}
