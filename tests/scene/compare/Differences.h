#pragma once

#include "scene/SceneText.h"

#include "meridane/scene/compare/NxSceneComparison.h"

#include <QString>
#include <QStringList>

/// The differences of scenes as lines, for tests.
namespace Differences {

inline NxSceneDifferences of(const NxRef<NxGroup>& left, const NxRef<NxGroup>& right)
{
    NxSceneComparison comparison(left, right);
    comparison.run();
    return comparison.takeDifferences();
}

/// Such as "value /robot/arm.rotation: 0 0 1 0 -> 1 0 0 0".
inline QString line(const NxSceneDifferences& differences, const NxSceneDifference& difference)
{
    using Side = NxSceneDifferences::Side;
    std::string text = std::string(NxSceneDifferences::kindName(difference.kind)) + ' ' + differences.path(difference);
    if (const std::string field = differences.fieldName(difference); !field.empty())
        text += '.' + field;
    text += ": " + differences.text(difference, Side::Left) + " -> " + differences.text(difference, Side::Right);
    return QString::fromStdString(text);
}

inline QStringList lines(const NxSceneDifferences& differences)
{
    QStringList result;
    for (const NxSceneDifference& difference : differences.list())
        result += line(differences, difference);
    return result;
}

inline QStringList lines(const NxRef<NxGroup>& left, const NxRef<NxGroup>& right)
{
    return lines(of(left, right));
}

/// The differences of two scene files, given without their first line.
inline QStringList lines(std::string_view left, std::string_view right)
{
    return lines(SceneText::read(SceneText::file(left)), SceneText::read(SceneText::file(right)));
}

} // namespace Differences
