#pragma once

#include "plugins/nodes/SlicedText.h"

#include "meridane/scene/check/NxSceneCheck.h"

#include <memory>

namespace nodes {

/// What is wrong with a node, a sentence a line. The checks are those of the Problems dock.
class NodeProblems : public SlicedText {
    Q_OBJECT

public:
    NodeProblems();

protected:
    void begin(NxNode& node) override;
    bool advance(std::chrono::microseconds slice) override;
    QString finish() override;

private:
    std::unique_ptr<NxSceneCheck> m_check; // while it works
};

} // namespace nodes
