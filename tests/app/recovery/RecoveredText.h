#pragma once

#include "Patience.h"

#include "orvane/app/recovery/RecoverJob.h"

#include "meridane/scene/file/NxSceneWriter.h"

#include <QSignalSpy>
#include <QTest>

#include <string>

namespace RecoveredText {

/// The text of the scene that a job recovers from that file, or its message in brackets.
inline std::string of(const QString& fileName)
{
    RecoverJob job(fileName, QStringLiteral("scene"));
    const QSignalSpy finished(&job, &FileJob::finished);
    const QSignalSpy failed(&job, &FileJob::failed);
    job.start();
    if (!QTest::qWaitFor([&] { return finished.size() + failed.size() > 0; }, testPatience))
        return "[the job doesn't end]";
    if (!failed.isEmpty())
        return '[' + failed.front().front().toString().toStdString() + ']';
    return NxSceneWriter::toText(job.takeScene().get());
}

} // namespace RecoveredText
