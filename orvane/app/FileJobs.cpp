#include "orvane/app/FileJobs.h"

#include "orvane/app/LoadJob.h"
#include "orvane/app/SaveJob.h"
#include "orvane/app/SceneDocument.h"

namespace {

/// Stands in for the jobs that need the import helper.
template <typename Job>
class UnavailableJob : public Job {
public:
    using Job::Job;

    void start() override
    {
        QMetaObject::invokeMethod(
            this,
            [this] {
                Q_EMIT this->failed(
                    QStringLiteral("%1: only scenes (.mrd) can be read and written yet").arg(this->fileName()));
            },
            Qt::QueuedConnection);
    }
    void cancel() override { QMetaObject::invokeMethod(this, &FileJob::cancelled, Qt::QueuedConnection); }
};

} // namespace

namespace orvane {

std::unique_ptr<SceneJob> makeLoadJob(const QString& fileName)
{
    if (SceneDocument::isSceneFileName(fileName))
        return std::make_unique<LoadJob>(fileName);
    return std::make_unique<UnavailableJob<SceneJob>>(fileName);
}

std::unique_ptr<FileJob> makeSaveJob(const NxRef<NxGroup>& scene, const QString& fileName)
{
    if (SceneDocument::isSceneFileName(fileName))
        return std::make_unique<SaveJob>(scene, fileName);
    return std::make_unique<UnavailableJob<FileJob>>(fileName);
}

QString openFilters()
{
    return QStringLiteral(
        "Scenes and models (*.mrd *.glb *.gltf *.obj *.fbx *.dae *.stl *.ply *.3ds *.blend *.x *.off);;"
        "Scenes (*.mrd);;All files (*)");
}

QString importFilters()
{
    return QStringLiteral("Models (*.glb *.gltf *.obj *.fbx *.dae *.stl *.ply *.3ds *.blend *.x *.off);;All files (*)");
}

QString saveFilters()
{
    return QStringLiteral("Scenes (*.mrd)");
}

QString exportFilters()
{
    return QStringLiteral("glTF binary (*.glb);;glTF (*.gltf);;Wavefront OBJ (*.obj);;Collada (*.dae);;"
                          "Stanford PLY (*.ply);;STL (*.stl)");
}

} // namespace orvane
