#pragma once

#include "orvane/app/structure/NodeEdit.h"

#include <QCoreApplication>
#include <QString>

#include <span>

namespace orvane {

/// The labels and messages of changes of the structure.
class EditTexts {
    Q_DECLARE_TR_FUNCTIONS(EditTexts)

public:
    using Set = meridane::NodeSet;

    /// The name of a single node, or how many there are.
    [[nodiscard]] static QString namesOf(std::span<NxNode* const> nodes);
    [[nodiscard]] static QString namesOf(const Set& set);

    // Labels of steps.
    [[nodiscard]] static QString remove(const Set& set);
    [[nodiscard]] static QString duplicate(const Set& set);
    [[nodiscard]] static QString group(const Set& set);
    [[nodiscard]] static QString ungroup(std::span<NxNode* const> groups);
    [[nodiscard]] static QString makeOwn(const Set& set);
    [[nodiscard]] static QString reorder(const Set& set);
    [[nodiscard]] static QString move(const Set& set, const NxGroup& to, const NxGroup& scene);
    [[nodiscard]] static QString moveOut(const Set& set);
    [[nodiscard]] static QString moveIn(const Set& set);
    [[nodiscard]] static QString share(std::span<NxNode* const> nodes, const NodeSpot& spot);
    [[nodiscard]] static QString copy(const Set& set, const NxGroup& to, const NxGroup& scene);
    [[nodiscard]] static QString cut(const Set& set);
    [[nodiscard]] static QString paste(std::span<NxNode* const> nodes);
    [[nodiscard]] static QString add(std::span<NxNode* const> nodes);

    // Why nothing can be done.
    [[nodiscard]] static QString notCopied(const NxNode& node);
    [[nodiscard]] static QString intoItself(const NxNode& node);
    [[nodiscard]] static QString isFirst(const Set& set);
    [[nodiscard]] static QString isLast(const Set& set);
    [[nodiscard]] static QString isAtTop(const Set& set);
    [[nodiscard]] static QString hasNoGroupAbove(const Set& set);
    [[nodiscard]] static QString isNoGroup(const Set& set);
    [[nodiscard]] static QString isOwn(const Set& set);

    /// What the user should know of transforms that were added; empty for none.
    [[nodiscard]] static QString addedTransforms(int count);
};

} // namespace orvane
