#pragma once

#include <string>
#include <vector>

#include <assimp/scene.h>

namespace orvane {

/// Adds cameras and lights to a glTF file: the export library writes the nodes that hold them, but not what they are.
///
/// Before the export, the names of these nodes are replaced by marks; then the marks are found in the text of the file.
class GltfAdditions {
public:
    /// Reads the cameras and lights of a model and marks their nodes.
    explicit GltfAdditions(aiScene& model);

    /// Completes a file that was written from the model: the text of a `.gltf` or the bytes of a `.glb`.
    void complete(std::string& file) const;

private:
    struct Addition {
        std::string mark; // the name that the node has meanwhile
        std::string text; // the node's members in place of that name
    };

    void mark(aiScene& model, const aiString& name, const char* kind, std::size_t index, const std::string& members);
    void completeText(std::string& text) const;

    std::vector<Addition> m_nodes;
    std::string m_cameras; // the elements of the lists
    std::string m_lights;
};

} // namespace orvane
