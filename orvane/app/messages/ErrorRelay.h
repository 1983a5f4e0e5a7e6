#pragma once

#include "orvane/app/messages/MessageBar.h"

#include <QObject>

/// Brings toolkit errors that nobody else handles in front of the user: from whichever thread they come, they arrive in
/// the event loop as a signal.
///
/// It is the handler of the six error classes while it lives. An extension that takes the handlers over gives them back
/// when it goes, so the relay outlives the extensions.
class ErrorRelay : public QObject {
    Q_OBJECT

public:
    ErrorRelay();
    ~ErrorRelay() override;

    bool event(QEvent* event) override;

Q_SIGNALS:
    void reported(MessageBar::Severity severity, const QString& text);
};
