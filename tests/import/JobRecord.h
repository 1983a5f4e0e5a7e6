#pragma once

#include "Patience.h"

#include "orvane/app/files/FileJob.h"

#include <QList>
#include <QStringList>
#include <QTest>

/// The signals of a job, and how it ended.
class JobRecord {
public:
    explicit JobRecord(FileJob& job)
    {
        QObject::connect(&job, &FileJob::progressed, &job, [this](double share) { shares.append(share); });
        QObject::connect(&job, &FileJob::finished, &job, [this] { ++finished; });
        QObject::connect(&job, &FileJob::cancelled, &job, [this] { ++cancelled; });
        QObject::connect(&job, &FileJob::failed, &job, [this](const QString& message) { messages.append(message); });
    }

    [[nodiscard]] int ends() const { return finished + cancelled + static_cast<int>(messages.size()); }
    /// Runs the event loop until the job has ended.
    [[nodiscard]] bool waitForEnd() const
    {
        return QTest::qWaitFor([this] { return ends() > 0; }, testPatience);
    }
    /// The message of a job that failed.
    [[nodiscard]] QString message() const { return messages.isEmpty() ? QString() : messages.first(); }

    QList<double> shares;
    QStringList messages;
    int finished = 0;
    int cancelled = 0;
};
