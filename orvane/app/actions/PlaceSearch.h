#pragma once

#include "orvane/app/base/LetterMatch.h"

#include "meridane/base/WorkBudget.h"
#include "meridane/scene/nodes/NodeTraversal.h"

#include <QHash>
#include <QList>
#include <QString>

#include <cstddef>
#include <memory>
#include <vector>

class NxField;
class NxFieldData;
class NxGroup;
class NxNode;

/// Finds the nodes and fields of a scene whose names have letters in order, the best ones first, in slices.
///
/// - `arm`: nodes with these letters in their name, or in the name of their class if they have none; then fields.
/// - `robot/arm`: nodes with `arm` in a node with `robot`.
/// - `arm.rot`: fields with `rot` of nodes with `arm`; `.rot` fields of any node.
///
/// The scene must not change between two slices: whoever changes it starts the search again. User-interface thread
/// only.
class PlaceSearch {
public:
    /// So many hits are kept.
    static constexpr std::size_t mostHits = 100;

    struct Hit {
        int score = 0;
        std::size_t order = 0; ///< the place in the scene
        std::vector<NxNode*> path;
        NxField* field = nullptr; ///< null for a node
    };

    explicit PlaceSearch(meridane::WorkBudget::Clock clock = &std::chrono::steady_clock::now)
        : m_clock(clock)
    {
    }

    /// Starts a search; a null scene has no hits. Nodes and fields in `preferred` are worth as much more as it says.
    void start(const NxGroup* scene, const QString& text, const QHash<const void*, int>& preferred = {});
    /// Goes on for the length of one slice. Whether hits were added.
    bool work();
    [[nodiscard]] bool isDone() const noexcept { return m_nodes == nullptr; }
    /// The best hits so far, the best one first. They are valid until the scene changes.
    [[nodiscard]] const std::vector<Hit>& hits();
    /// The letters that a name of a node and one of a field are matched with, to show them in the name.
    [[nodiscard]] const orvane::LetterMatch& nodeLetters() const noexcept { return m_node; }
    [[nodiscard]] const orvane::LetterMatch& fieldLetters() const noexcept { return m_field; }

    /// The name of a node as it is searched: its own, or that of its class.
    [[nodiscard]] static QString nameOf(const NxNode& node);

private:
    /// The fields of a class whose names match.
    struct FieldHits {
        struct One {
            int index;
            int score;
        };
        std::vector<One> fields;
    };

    bool visit(NxNode& node);
    bool visitFields(NxNode& node, int score);
    [[nodiscard]] const FieldHits& fieldHits(NxNode& node);
    [[nodiscard]] bool matchesParents() const;
    [[nodiscard]] bool isGoodEnough(int score) const;
    void add(int score, NxField* field);

    meridane::WorkBudget::Clock m_clock;
    std::unique_ptr<meridane::NodeTraversal> m_nodes;
    orvane::LetterMatch m_node;
    orvane::LetterMatch m_field;
    std::vector<orvane::LetterMatch> m_parents; ///< from the top one down
    bool m_wantsField = false;
    QHash<const void*, int> m_preferred;
    QHash<const NxFieldData*, std::shared_ptr<const FieldHits>> m_fieldHits;
    const NxFieldData* m_latestData = nullptr; // neighbours often have the same class
    std::shared_ptr<const FieldHits> m_latestHits;
    std::vector<Hit> m_hits; ///< a heap with the worst one first, unless it is sorted
    bool m_isSorted = true;
    std::size_t m_order = 0;
};
