#pragma once

#include "plugins/nodes/SlicedText.h"

#include "meridane/gl/places/NodeFigures.h"

#include <memory>

namespace nodes {

/// A text about the meshes in and below a node: how many, their triangles, and the box around them in the units of the
/// group above.
class BelowFacts : public SlicedText {
    Q_OBJECT

public:
    BelowFacts();

protected:
    void begin(NxNode& node) override;
    bool advance(std::chrono::microseconds slice) override;
    QString finish() override;

private:
    std::unique_ptr<meridane::NodeFigures> m_figures; // while it works
};

} // namespace nodes
