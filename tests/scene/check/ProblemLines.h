#pragma once

#include "scene/SceneText.h"

#include "meridane/base/values/VbName.h"
#include "meridane/scene/check/NxSceneCheck.h"
#include "meridane/scene/fields/NxField.h"
#include "meridane/scene/file/NxScenePathNamer.h"

#include <QString>
#include <QStringList>

#include <chrono>

/// Problems as lines of text, for tests.
namespace ProblemLines {

/// Such as "index-out-of-range /robot/arm.indices 3 (2)": identifier, path, row and count. Without row and count where
/// there is one number alone.
inline QString line(const NxSceneProblem& problem, const NxGroup& scene, std::span<const int> places)
{
    NxScenePathNamer namer;
    QString text = QString::fromUtf8(
                       problem.about().identifier.data(), static_cast<qsizetype>(problem.about().identifier.size()))
        + u' '
        + QString::fromStdString(
            namer.name(scene, places, problem.field, std::chrono::nanoseconds::max()).value_or("?"));
    if (problem.row >= 0)
        text += QStringLiteral(" row %1").arg(problem.row);
    if (problem.count != 1)
        text += QStringLiteral(" (%1)").arg(problem.count);
    return text;
}

/// All problems in the order of the scene.
inline QStringList of(const NxSceneCheck& check, const NxGroup& scene)
{
    QStringList lines;
    check.reportAll([&](const NxSceneProblem& problem, std::span<const int> places) {
        lines += line(problem, scene, places);
        return true;
    });
    return lines;
}

inline QStringList of(NxGroup& scene, const NxCheckOptions& options = {})
{
    NxSceneCheck check(NxRef<NxGroup>(&scene), options);
    check.run();
    return of(check, scene);
}

/// The problems themselves.
inline std::vector<NxSceneProblem> all(NxGroup& scene, const NxCheckOptions& options = {})
{
    NxSceneCheck check(NxRef<NxGroup>(&scene), options);
    check.run();
    std::vector<NxSceneProblem> problems;
    check.reportAll([&](const NxSceneProblem& problem, std::span<const int> /*places*/) {
        problems.push_back(problem);
        return true;
    });
    return problems;
}

} // namespace ProblemLines
