#pragma once

#include <QAccessibleWidget>

class MessageRow;

/// What screen readers get of a message: an alert, which they read when it appears, with its text as name.
class AccessibleMessage final : public QAccessibleWidget {
public:
    explicit AccessibleMessage(MessageRow* row);

    QString text(QAccessible::Text kind) const override;
};
