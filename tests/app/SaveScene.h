#pragma once

#include "orvane/app/files/SaveJob.h"

#include "meridane/base/values/VbString.h"
#include "meridane/scene/fields/NxRef.h"
#include "meridane/scene/nodes/NxGroup.h"
#include "meridane/scene/nodes/NxMesh.h"

#include <QEventLoop>

#include <optional>

/// What is saved while something goes wrong.
namespace SaveScene {

/// A scene of some hundred nodes that all have that name, so that each part of its text shows which scene it is of.
inline NxRef<NxGroup> named(const char* name)
{
    NxRef<NxGroup> scene(new NxGroup);
    for (int index = 0; index < 500; ++index) {
        const NxRef<NxMesh> mesh(new NxMesh);
        mesh->setName(VbString(name));
        scene->addChild(mesh.get());
    }
    return scene;
}

/// Saves as the tool does; the result is the message of the failure, or nothing.
inline std::optional<QString> save(const NxRef<NxGroup>& scene, const QString& fileName)
{
    QEventLoop loop;
    std::optional<QString> failure;
    SaveJob job(scene, fileName);
    QObject::connect(&job, &FileJob::finished, &loop, &QEventLoop::quit);
    QObject::connect(&job, &FileJob::failed, &loop, [&](const QString& message) {
        failure = message;
        loop.quit();
    });
    job.start();
    loop.exec();
    return failure;
}

} // namespace SaveScene
