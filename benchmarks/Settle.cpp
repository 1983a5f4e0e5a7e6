#include "Settle.h"

#include "Timing.h"

#include "meridane/base/NxDelayQueue.h"

#include <QCoreApplication>
#include <QEvent>
#include <QEventLoop>
#include <QWidget>

namespace bench {

namespace {

class PaintCounter final : public QObject {
public:
    explicit PaintCounter(QWidget* widget)
        : m_widget(widget)
    {
        m_widget->installEventFilter(this);
    }
    ~PaintCounter() override { m_widget->removeEventFilter(this); }

    int count = 0;

protected:
    bool eventFilter(QObject* /*watched*/, QEvent* event) override
    {
        count += event->type() == QEvent::Paint ? 1 : 0;
        return false;
    }

private:
    QWidget* m_widget;
};

/// Notes when a window has painted all that changed.
class PaintClock final : public QObject {
public:
    explicit PaintClock(QWidget* window)
        : m_window(window)
    {
        m_window->installEventFilter(this);
    }
    ~PaintClock() override { m_window->removeEventFilter(this); }

    double firstPaint = 0;

protected:
    bool eventFilter(QObject* watched, QEvent* event) override
    {
        if (event->type() != QEvent::UpdateRequest || firstPaint > 0)
            return false;
        watched->event(event);
        firstPaint = processorTime();
        return true;
    }

private:
    QWidget* m_window;
};

} // namespace

void settle()
{
    QEventLoop loop;
    while (loop.processEvents() || !NxDelayQueue::getDefault().isEmpty()) { }
    // Only the main event loop handles deferred deletions; without it, these events would slow down all others.
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
}

double secondsToPainted(QWidget* widget, const std::function<void()>& action)
{
    const PaintCounter counter(widget);
    const double start = processorTime();
    action();
    settle();
    const double time = processorTime() - start;
    if (counter.count == 0)
        qFatal("%s wasn't painted", widget->metaObject()->className());
    return time;
}

double secondsToFirstPaint(QWidget* widget, const std::function<void()>& action)
{
    const PaintCounter counter(widget);
    const PaintClock clock(widget->window());
    const double start = processorTime();
    action();
    settle();
    if (counter.count == 0 || clock.firstPaint == 0.0)
        qFatal("%s wasn't painted", widget->metaObject()->className());
    return clock.firstPaint - start;
}

} // namespace bench
