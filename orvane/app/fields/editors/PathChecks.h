#pragma once

#include <QElapsedTimer>
#include <QHash>
#include <QObject>
#include <QString>

/// Which files are there. They are looked for on another thread, since the disk may be slow or on the net.
///
/// Thread of the user interface only.
class PathChecks : public QObject {
    Q_OBJECT

public:
    enum class State { Unknown, Present, Missing };

    explicit PathChecks(QObject* parent = nullptr);
    ~PathChecks() override;

    /// What is known of a file. What is older than a second is found out again; `changed` announces what is new.
    [[nodiscard]] State stateOf(const QString& fileName);

Q_SIGNALS:
    /// The state of a file has changed.
    void changed();

private:
    struct Known {
        State state = State::Unknown;
        qint64 since = 0; // by the clock, in milliseconds
        bool isRunning = false;
    };

    void start(const QString& fileName);
    void take(const QString& fileName, bool isPresent);

    QElapsedTimer m_clock;
    QHash<QString, Known> m_known;
};
