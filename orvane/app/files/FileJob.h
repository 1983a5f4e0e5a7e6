#pragma once

#include "meridane/scene/fields/NxRef.h"
#include "meridane/scene/nodes/NxGroup.h"

#include <QObject>
#include <QString>

#include <utility>

/// Long work on a file, done in slices or by another process, so that the window never waits for it.
///
/// `start` returns at once. The job ends with exactly one of `finished`, `failed` and `cancelled`, emitted from the
/// event loop, and does nothing afterwards. Destroying a job ends it without a signal; a file being written keeps its
/// old content.
class FileJob : public QObject {
    Q_OBJECT

public:
    explicit FileJob(const QString& fileName)
        : m_fileName(fileName)
    {
    }

    virtual void start() = 0;
    /// Ends the job; `cancelled` follows.
    virtual void cancel() = 0;

    [[nodiscard]] const QString& fileName() const noexcept { return m_fileName; }

Q_SIGNALS:
    /// The share of the work that is done, 0 to 1, or -1 while it isn't known.
    void progressed(double share);
    void finished();
    /// One message that tells the file, what is wrong and where.
    void failed(const QString& message);
    void cancelled();

private:
    QString m_fileName;
};

/// A job that ends with a scene.
class SceneJob : public FileJob {
    Q_OBJECT

public:
    using FileJob::FileJob;

    /// The scene, once the job has finished; null after the first call.
    [[nodiscard]] NxRef<NxGroup> takeScene() { return std::exchange(m_scene, NxRef<NxGroup>()); }

protected:
    void setScene(NxRef<NxGroup> scene) { m_scene = std::move(scene); }

private:
    NxRef<NxGroup> m_scene;
};
