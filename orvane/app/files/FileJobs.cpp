#include "orvane/app/files/FileJobs.h"

#include "orvane/app/files/ExportJob.h"
#include "orvane/app/files/ImportJob.h"
#include "orvane/app/files/LoadJob.h"
#include "orvane/app/files/SaveJob.h"
#include "orvane/app/scene/SceneDocument.h"

namespace orvane {

std::unique_ptr<SceneJob> makeLoadJob(const QString& fileName)
{
    if (SceneDocument::isSceneFileName(fileName))
        return std::make_unique<LoadJob>(fileName);
    return std::make_unique<ImportJob>(fileName);
}

std::unique_ptr<FileJob> makeSaveJob(const NxRef<NxGroup>& scene, const QString& fileName, const QString& pathFolder)
{
    if (SceneDocument::isSceneFileName(fileName))
        return std::make_unique<SaveJob>(scene, fileName, pathFolder);
    return std::make_unique<ExportJob>(scene, fileName, HelperOptions(), pathFolder);
}

} // namespace orvane
