#include "orvane/app/actions/KeyTips.h"

#include <QAction>
#include <QCoreApplication>
#include <QHelpEvent>
#include <QKeySequence>
#include <QTextDocument>
#include <QToolButton>
#include <QToolTip>

KeyTips::KeyTips(QObject* parent)
    : QObject(parent)
{
    QCoreApplication::instance()->installEventFilter(this);
}

KeyTips::~KeyTips() = default;

bool KeyTips::eventFilter(QObject* object, QEvent* event)
{
    if (event->type() != QEvent::ToolTip)
        return false;
    const auto* const button = qobject_cast<QToolButton*>(object);
    const QAction* const action = button != nullptr ? button->defaultAction() : nullptr;
    if (action == nullptr || action->shortcuts().isEmpty() || button->toolTip().isEmpty())
        return false;
    const QString keys = QKeySequence::listToString(action->shortcuts(), QKeySequence::NativeText);
    const QString tip = button->toolTip();
    if (tip.contains(keys))
        return false;
    const QString text = Qt::mightBeRichText(tip) ? tr("%1<br>%2").arg(tip, keys.toHtmlEscaped())
                                                  : tr("%1 (%2)", "tool tip (keys)").arg(tip, keys);
    QToolTip::showText(static_cast<QHelpEvent*>(event)->globalPos(), text, const_cast<QToolButton*>(button));
    return true;
}
