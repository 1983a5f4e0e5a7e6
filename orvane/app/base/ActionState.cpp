#include "orvane/app/base/ActionState.h"

#include <QAction>

void orvane::setReason(QAction& action, const QString& reason)
{
    action.setEnabled(reason.isEmpty());
    action.setToolTip(reason); // an empty one is the text of the action
}

QString orvane::reasonOf(const QAction& action)
{
    const QString toolTip = action.toolTip();
    // The tool tip of an action that has none is its text.
    return action.isEnabled() || toolTip == plainText(action) || toolTip == action.iconText() ? QString() : toolTip;
}

QString orvane::plainText(const QAction& action)
{
    QString text;
    const QString marked = action.text();
    for (qsizetype i = 0; i < marked.size(); ++i) {
        if (marked.at(i) == u'&' && i + 1 < marked.size())
            ++i; // "&&" is one
        text.append(marked.at(i));
    }
    for (const QString& dots : {QString(QChar(0x2026)), QStringLiteral("...")}) {
        if (text.endsWith(dots))
            text.chop(dots.size());
    }
    return text;
}
