#pragma once

#include "orvane/app/base/Result.h"

#include "meridane/query/Query.h"
#include "meridane/query/QueryFacts.h"
#include "meridane/scene/file/NxScenePathNamer.h"

#include <QString>

#include <utility>
#include <vector>

class NxGroup;
class QTextStream;

/// Prints what a query finds in a scene: the path of each node that matches, or of each field if the query has words
/// about fields, one a line, in the order of the scene. A node that is in several places is printed with the first one.
class FoundPlaces {
public:
    /// `scene` must outlive the object and must not change meanwhile. The paths of files in it count from `folder`,
    /// which is empty for a scene without one.
    FoundPlaces(NxGroup* scene, QTextStream& output, QString folder = {})
        : m_scene(scene)
        , m_output(output)
        , m_folder(std::move(folder))
    {
    }

    /// The query of a text. A failure names the text and the place in it.
    [[nodiscard]] static orvane::Result<meridane::Query> parse(const QString& text);
    /// Prints line by line. Ends early when the output can't be written any more. Fails if nothing is found.
    orvane::Result<> print(const QString& text);

private:
    [[nodiscard]] meridane::QueryFacts facts() const;
    void printPath(const std::vector<int>& places, const NxField* field);

    NxGroup* m_scene;
    QTextStream& m_output;
    QString m_folder;
    NxScenePathNamer m_namer;
};
