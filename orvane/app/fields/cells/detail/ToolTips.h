#pragma once

#include <QString>
#include <QTextDocument> // Qt::mightBeRichText

namespace orvane {

/// Two texts of `plainToolTip` as one, the second below the first.
[[nodiscard]] inline QString joinedToolTips(const QString& first, const QString& second)
{
    if (first.isEmpty() || second.isEmpty())
        return first + second;
    if (!Qt::mightBeRichText(first) && !Qt::mightBeRichText(second))
        return first + u'\n' + second;
    const auto asRich = [](const QString& tip) {
        return Qt::mightBeRichText(tip)
            ? tip
            : QStringLiteral("<div style=\"white-space: pre\">%1</div>").arg(tip.toHtmlEscaped());
    };
    return asRich(first) + asRich(second);
}

} // namespace orvane
