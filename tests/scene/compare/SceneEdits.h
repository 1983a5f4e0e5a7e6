#pragma once

#include "scene/RandomValues.h"

#include "meridane/scene/fields/NxRef.h"
#include "meridane/scene/nodes/NxGroup.h"

#include <QString>
#include <QStringList>

#include <map>
#include <string>
#include <unordered_set>
#include <vector>

/// A random scene whose nodes all have different names and contents, and random edits of it, each with the line that a
/// comparison must report. Edits don't overlap, so that there is one right answer.
class SceneEdits {
public:
    explicit SceneEdits(unsigned int seed);

    [[nodiscard]] NxGroup* scene() { return m_scene.get(); }
    /// Makes up to that many edits.
    void edit(int count);
    /// What must be reported, sorted: the kind, the path in the scene before the edits, or after them for what was
    /// added, and the field.
    [[nodiscard]] QStringList expected() const;

private:
    struct Place {
        NxGroup* group;
        int index;
    };

    void addNodes(int count);
    void addUses(int count);
    void notePaths(NxGroup* group, const std::string& path);
    [[nodiscard]] NxNode* makeNode();
    [[nodiscard]] NxNode* randomNode();
    [[nodiscard]] NxGroup* randomGroup();
    [[nodiscard]] Place placeOf(const NxNode* node);
    [[nodiscard]] std::string pathOf(const NxNode* node);
    [[nodiscard]] bool isFree(NxNode* node) const;
    void hold(NxNode* node);
    void holdAll(NxNode* node);

    void setValue();
    void setIgnored();
    void rename();
    void remove();
    void add();
    void move();
    void reorder();
    void use();

    RandomValues m_random;
    NxRef<NxGroup> m_scene{new NxGroup};
    std::vector<NxRef<NxNode>> m_nodes; // of the scene before the edits
    std::vector<NxGroup*> m_groups; // with the scene
    std::map<const NxNode*, std::string> m_paths; // before the edits
    std::unordered_set<const NxNode*> m_held; // which have been edited, or must stay where they are
    int m_number = 0;
    QStringList m_expected;
    std::vector<std::pair<const NxNode*, NxGroup*>> m_added;
};
