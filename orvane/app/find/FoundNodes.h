#pragma once

#include "orvane/app/find/NodeFinder.h"
#include "orvane/app/tree/NodeMarks.h"

#include <QPointer>

/// The hits of a search as marks in the scene tree.
class FoundNodes : public NodeMarks {
public:
    explicit FoundNodes(const NodeFinder* finder)
        : m_finder(finder)
    {
    }

    [[nodiscard]] bool isHit(const NxNode& node) const override { return m_finder && m_finder->isHit(node); }
    [[nodiscard]] bool leadsToHit(const NxNode& node) const override { return m_finder && m_finder->leadsToHit(node); }

private:
    QPointer<const NodeFinder> m_finder;
};
