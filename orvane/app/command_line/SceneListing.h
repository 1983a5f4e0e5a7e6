#pragma once

#include "meridane/scene/file/NxScenePathNamer.h"

#include <QString>

#include <unordered_map>
#include <vector>

class NxGroup;
class NxNode;
class QTextStream;

/// Prints a scene: one line for each node (path, class) and for each of its fields (path, type, value), separated by
/// tabs, in the order of the scene.
///
/// A node that is in several places is printed in full in the first one only, with all that is below it. In each
/// further place it has a line of its own: path, class, and the first path behind "same as". So the length of the
/// output follows from the number of nodes, however often they are used. Values of more than a thousand characters are
/// cut and end in an ellipsis.
class SceneListing {
public:
    /// `scene` must outlive the listing and must not change meanwhile.
    SceneListing(NxGroup* scene, QTextStream& output)
        : m_scene(scene)
        , m_output(output)
    {
    }

    /// Prints line by line. Ends early when the output can't be written any more.
    void print();

private:
    /// From the scene on, each the index of a child of the node before.
    using Places = std::vector<int>;

    void printNode(NxNode& node, const Places& places, const Places* first);
    [[nodiscard]] QString pathOf(const Places& places);
    [[nodiscard]] const Places* firstPlacesOf(const NxNode& node, const Places& places);

    NxGroup* m_scene;
    QTextStream& m_output;
    NxScenePathNamer m_namer;
    std::unordered_map<const NxNode*, Places> m_firstPlaces; // of the nodes in several places
};
