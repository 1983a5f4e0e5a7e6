#include "orvane/app/messages/ErrorRelay.h"

#include "orvane/app/base/TextConversion.h"

#include "meridane/base/errors/NxDebugError.h"

#include <QCoreApplication>
#include <QEvent>

namespace {

class ReportEvent : public QEvent {
public:
    ReportEvent(MessageBar::Severity severity, const QString& text)
        : QEvent(eventType())
        , m_severity(severity)
        , m_text(text)
    {
    }

    static Type eventType()
    {
        static const auto type = static_cast<Type>(registerEventType());
        return type;
    }

    [[nodiscard]] MessageBar::Severity severity() const noexcept { return m_severity; }
    [[nodiscard]] const QString& text() const noexcept { return m_text; }

private:
    MessageBar::Severity m_severity;
    QString m_text;
};

MessageBar::Severity severityOf(const NxError& error)
{
    switch (NxDebugError::severityOf(error)) {
    case NxDebugError::Error:
        break;
    case NxDebugError::Warning:
        return MessageBar::Severity::Warning;
    case NxDebugError::Information:
        return MessageBar::Severity::Information;
    }
    return MessageBar::Severity::Error;
}

void postReport(const NxError* error, void* relay)
{
    QCoreApplication::postEvent(static_cast<ErrorRelay*>(relay),
        new ReportEvent(severityOf(*error), orvane::toQString(error->getDebugString())));
}

} // namespace

ErrorRelay::ErrorRelay()
{
    m_capture.begin(&postReport, this);
}

ErrorRelay::~ErrorRelay()
{
    m_capture.end();
}

bool ErrorRelay::event(QEvent* event)
{
    if (event->type() != ReportEvent::eventType())
        return QObject::event(event);
    const auto* report = static_cast<ReportEvent*>(event);
    Q_EMIT reported(report->severity(), report->text());
    return true;
}
