#pragma once

#include "extender/HistoryWalk.h"

#include "orvane/app/fields/values/FieldSet.h"

#include "meridane/base/values/VbName.h"
#include "meridane/scene/fields/NxField.h"
#include "meridane/scene/nodes/NxGroup.h"

#include <memory>
#include <string>
#include <vector>

/// Services with an open scene of several nodes at the top.
class ManyNodes {
public:
    explicit ManyNodes(const std::vector<NxRef<NxNode>>& nodes)
    {
        for (const NxRef<NxNode>& node : nodes) {
            m_scene->addChild(node.get());
            m_nodes->emplace_back(node);
        }
        m_services.document().open(OrvDocument::makeJournal(*m_scene));
    }
    ManyNodes(const ManyNodes&) = delete;
    ManyNodes& operator=(const ManyNodes&) = delete;
    ~ManyNodes() { m_services.document().close(); }

    [[nodiscard]] OrvServices& services() { return m_services; }
    [[nodiscard]] NxGroup& scene() { return *m_scene; }
    [[nodiscard]] const std::shared_ptr<FieldSet::Nodes>& nodes() const { return m_nodes; }
    [[nodiscard]] NxField& field(std::size_t node, const char* name) { return *(*m_nodes)[node]->getField(name); }
    /// The field of that name of all nodes, the first one first.
    [[nodiscard]] FieldSet set(const char* name) { return {field(0, name), m_nodes}; }

    /// The scene as a file, once the step has ended.
    [[nodiscard]] std::string text()
    {
        HistoryWalk::settle();
        return NxSceneWriter::toText(m_scene.get());
    }
    /// Ends the step of what was written.
    static void finish() { HistoryWalk::settle(); }
    /// The labels of all steps.
    [[nodiscard]] QStringList labels()
    {
        HistoryWalk::settle();
        QStringList result;
        for (int step = 0; step < m_services.steps().count(); ++step)
            result += m_services.steps().label(step);
        return result;
    }

private:
    OrvServices m_services;
    NxRef<NxGroup> m_scene = new NxGroup;
    std::shared_ptr<FieldSet::Nodes> m_nodes = std::make_shared<FieldSet::Nodes>();
};
