#include "orvane/app/access/AccessibleMessage.h"

#include "orvane/app/messages/MessageRow.h"

#include <QCoreApplication>

namespace {

struct AccessibleMessageTexts {
    Q_DECLARE_TR_FUNCTIONS(AccessibleMessage)
};

QString severityText(MessageSeverity severity)
{
    switch (severity) {
    case MessageSeverity::Information:
        return AccessibleMessageTexts::tr("Information");
    case MessageSeverity::Warning:
        return AccessibleMessageTexts::tr("Warning");
    case MessageSeverity::Error:
        break;
    }
    return AccessibleMessageTexts::tr("Error");
}

} // namespace

AccessibleMessage::AccessibleMessage(MessageRow* row)
    : QAccessibleWidget(row, QAccessible::AlertMessage)
{
}

QString AccessibleMessage::text(QAccessible::Text kind) const
{
    const auto& row = static_cast<const MessageRow&>(*widget());
    if (kind == QAccessible::Name)
        return row.text();
    return kind == QAccessible::Description ? severityText(row.severity()) : QAccessibleWidget::text(kind);
}
