#pragma once

#include "meridane/scene/check/NxCheckOptions.h"
#include "meridane/scene/check/NxSceneProblem.h"
#include "meridane/scene/check/detail/ClassPlan.h"
#include "meridane/scene/check/detail/MeshCheck.h"

#include <cstddef>
#include <vector>

namespace meridane {

class WorkMeter;

/// Finds what is wrong with the values of one node, in slices.
class NodeCheck {
public:
    /// All live longer.
    NodeCheck(const NxCheckOptions& options, ClassPlans& plans)
        : m_options(options)
        , m_plans(plans)
    {
    }

    void start(NxNode& node);
    /// Forgets the node.
    void stop() noexcept;
    /// The node that is being checked, or null.
    [[nodiscard]] NxNode* node() const noexcept { return m_node.get(); }
    /// Works on. True when done; then the problems can be taken.
    bool step(WorkMeter& meter);
    [[nodiscard]] std::vector<NxSceneProblem> take();
    /// Whether the caller still looks for a file of the node, so that the node must be checked again.
    [[nodiscard]] bool awaitsFile() const noexcept { return m_awaitsFile; }

private:
    /// What is wrong with the numbers of a field.
    struct Findings {
        std::size_t notFinite = 0;
        std::size_t outOfRange = 0;
        int firstNotFinite = -1;
        int firstOutOfRange = -1;
    };

    bool checkNumbers(WorkMeter& meter);
    bool checkField(const ClassPlan::Numbers& numbers, NxField& field, WorkMeter& meter);
    void checkNumber(const ClassPlan::Numbers& numbers, int row, double value);
    void reportNumbers(const ClassPlan::Numbers& numbers, NxField& field);
    void checkFiles();
    void reportLargeImage(NxField& field, const NxFileFinding& finding);
    void checkByClass();
    NxSceneProblem& report(NxProblemKind kind, NxField* field = nullptr);

    const NxCheckOptions& m_options;
    ClassPlans& m_plans;
    NxRef<NxNode> m_node;
    const ClassPlan* m_plan = nullptr;
    std::size_t m_field = 0; // of the plan's numbers
    int m_component = 0;
    int m_row = 0;
    Findings m_findings; // of that field
    MeshCheck m_mesh;
    std::vector<NxSceneProblem> m_problems;
    bool m_awaitsFile = false;
};

} // namespace meridane
