#pragma once

#include "meridane/base/types/NxType.h"
#include "meridane/scene/fields/NxRef.h"
#include "meridane/scene/nodes/NxGroup.h"

#include <QString>

#include <string>
#include <vector>

class NxField;
class NxTypedObject;

/// The scene that a plug-in is tried with: a node with a field of each class, and one of each of some other classes.
class TrialScene {
public:
    /// The classes of nodes that can be made now. Those that come with a plug-in are the others, afterwards.
    [[nodiscard]] static std::vector<NxType> nodeClasses();

    /// Abstract classes, and those that aren't nodes, are left out.
    explicit TrialScene(const std::vector<NxType>& classes);

    [[nodiscard]] NxGroup& root() const noexcept { return *m_root; }
    /// The nodes and fields of that type in the scene.
    [[nodiscard]] std::vector<NxTypedObject*> objectsOf(NxType type) const;
    /// The scene as a file has it.
    [[nodiscard]] std::string text() const;
    /// Reads such a text and writes it again; `failure` is why it can't be read.
    [[nodiscard]] static std::string readAgain(const std::string& text, QString& failure);

private:
    NxRef<NxGroup> m_root;
};
