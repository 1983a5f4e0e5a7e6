#pragma once

#include "orvane/app/messages/MessageBar.h"

#include "meridane/base/errors/ErrorCapture.h"

#include <QObject>

/// Reports toolkit errors that nobody else handles: they may come from any thread, and the signal is emitted from the
/// event loop.
///
/// It is the handler of the six error classes while it lives. An extension that takes the handlers over puts them back
/// when it is unloaded, so the relay must live longer than the extensions.
class ErrorRelay : public QObject {
    Q_OBJECT

public:
    ErrorRelay();
    ~ErrorRelay() override;

    bool event(QEvent* event) override;

Q_SIGNALS:
    void reported(MessageBar::Severity severity, const QString& text);

private:
    meridane::ErrorCapture::Callbacks m_formerCallbacks{};
    meridane::ErrorCapture::UserData m_formerData{};
    meridane::ErrorCapture m_capture{m_formerCallbacks, m_formerData};
};
