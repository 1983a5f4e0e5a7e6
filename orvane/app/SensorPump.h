#pragma once

#include <QObject>

/// Runs the toolkit's delay queue from the event loop: each time the queue asks, one posted event, which gives the
/// waiting sensors some milliseconds. While it lives, the queue's wake-up hook is its own.
class SensorPump : public QObject {
    Q_OBJECT

public:
    SensorPump();
    ~SensorPump() override;

    bool event(QEvent* event) override;
};
