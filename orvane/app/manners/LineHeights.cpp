#include "orvane/app/manners/LineHeights.h"

#include "orvane/app/manners/EditorDocks.h"

#include <QAbstractSpinBox>
#include <QCoreApplication>
#include <QEvent>
#include <QLabel>
#include <QLayout>
#include <QLineEdit>

#include <algorithm>

namespace {

constexpr int lineFrames = 3; // of a line, above and below the text

/// The height that shows a line of text whole; 0 for a widget that shows none.
int neededHeight(const QWidget* widget)
{
    const auto* const label = qobject_cast<const QLabel*>(widget);
    if (label != nullptr)
        return label->text().isEmpty() ? 0 : label->fontMetrics().height();
    const bool isLine
        = qobject_cast<const QLineEdit*>(widget) != nullptr || qobject_cast<const QAbstractSpinBox*>(widget) != nullptr;
    return isLine ? std::max(widget->minimumSizeHint().height(), widget->fontMetrics().height() + 2 * lineFrames) : 0;
}

void layOutAgain(const QWidget* widget)
{
    for (QWidget* each = widget->parentWidget(); each != nullptr && !each->isWindow(); each = each->parentWidget()) {
        if (each->layout() != nullptr) {
            each->layout()->invalidate();
            each->layout()->activate();
        }
        each->updateGeometry();
    }
}

} // namespace

LineHeights::LineHeights(QObject* parent)
    : QObject(parent)
{
    QCoreApplication::instance()->installEventFilter(this);
}

LineHeights::~LineHeights() = default;

bool LineHeights::eventFilter(QObject* object, QEvent* event)
{
    const bool isShown = event->type() == QEvent::Show || event->type() == QEvent::FontChange;
    if (!isShown || !object->isWidgetType())
        return false;
    auto* const widget = static_cast<QWidget*>(object);
    const bool isCut = widget->minimumHeight() == widget->maximumHeight()
        && widget->minimumHeight() < widget->fontMetrics().height();
    if (isCut && EditorDocks::dockOf(widget) != nullptr) {
        widget->setFixedHeight(std::max(widget->minimumHeight(), neededHeight(widget)));
        // When it is shown, for layouts that were computed before aren't asked again by themselves.
        QMetaObject::invokeMethod(
            widget, [widget] { layOutAgain(widget); }, Qt::QueuedConnection);
    }
    return false;
}
