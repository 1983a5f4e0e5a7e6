#pragma once

#include "orvane/app/base/SliceClock.h"

#include "meridane/query/SceneSearch.h"
#include "meridane/scene/fields/NxRef.h"
#include "meridane/scene/journal/JournalListener.h"
#include "meridane/scene/nodes/NxNode.h"

#include <QBasicTimer>
#include <QObject>

#include <chrono>
#include <cstddef>
#include <memory>
#include <optional>
#include <vector>

class OrvServices;

/// Searches the open scene for the nodes that match a query, in slices, and follows the changes of the scene.
///
/// The names of the scene are read when nothing else happens, so that a search finds them read. They stay read between
/// searches, which takes about 60 bytes a node.
///
/// A new query shows its hits as they are found. When the scene changes, the hits stay until the new ones are known.
/// Hits are known by their addresses and never looked into, since they may be destroyed meanwhile.
class NodeFinder : public QObject, private meridane::JournalListener {
    Q_OBJECT

public:
    enum class Direction { Next, Previous };
    using Facts = std::shared_ptr<const meridane::QueryFacts>;

    /// The services live longer; `clock` measures the slices.
    explicit NodeFinder(OrvServices& services, SliceClock::Clock clock = &std::chrono::steady_clock::now);
    ~NodeFinder() override;

    /// Reads the names of the scene, if there is one, once it hasn't changed for a while.
    void prepare();
    /// Whether they have been read, so that a search needn't.
    [[nodiscard]] bool areNamesKnown() const noexcept;
    /// Searches for another query. The empty one finds nothing, but reads the names for the next at once.
    void search(const meridane::Query& query);
    /// Uses other facts for the query that is searched for.
    void setFacts(Facts facts);
    /// Ends the search, without hits.
    void end();

    [[nodiscard]] const meridane::Query& query() const noexcept { return m_query; }
    [[nodiscard]] const meridane::QueryFacts* facts() const noexcept { return m_facts.get(); }
    /// Whether all hits are known, those of the scene as it is now.
    [[nodiscard]] bool isComplete() const noexcept;
    /// How many hits are known.
    [[nodiscard]] std::size_t count() const noexcept;
    /// The place of a node among the hits, from 0; nothing if it is none.
    [[nodiscard]] std::optional<std::size_t> place(const NxNode& node) const;
    [[nodiscard]] bool isHit(const NxNode& node) const { return m_shown != nullptr && m_shown->isHit(node); }
    [[nodiscard]] bool leadsToHit(const NxNode& node) const { return m_shown != nullptr && m_shown->leadsToHit(node); }
    /// The nodes that lead to the hit at that place, which is the last of them. The scene may have changed since.
    [[nodiscard]] std::vector<NxNode*> path(std::size_t place) const;
    /// Whether the hit at that place has the same parent as the one before it.
    [[nodiscard]] bool isBesideTheOneBefore(std::size_t place) const;
    /// All hits. The scene may have changed since.
    [[nodiscard]] std::vector<NxNode*> hits() const;
    /// The place of the hit that follows a node in the order of the scene, or precedes it; nothing if there is none
    /// there (yet). Without a node, the first or the last one.
    [[nodiscard]] std::optional<std::size_t> beside(const NxNode* node, Direction direction) const;

Q_SIGNALS:
    /// Hits have come or gone, or the search is complete.
    void changed();

protected:
    void timerEvent(QTimerEvent* event) override;

private:
    struct Written {
        NxRef<NxNode> node;
        bool mayChangeAgain = false; // in the same step, which isn't reported
    };

    void aboutToChange(const meridane::PlaceChange& change) noexcept override;
    void noteStep(bool isOver);
    bool listen();
    void restart();
    void goOn();
    void readNames();
    void report(bool isBusy);
    void runSlice(std::chrono::milliseconds length);
    bool compareWritten(meridane::SceneSearch& search, const meridane::WorkBudget& budget);
    void forgetScene();

    OrvServices& m_services;
    SliceClock::Clock m_clock;
    meridane::Journal* m_journal = nullptr; // that is listened to
    meridane::Query m_query;
    Facts m_facts;
    std::unique_ptr<meridane::SceneSearch> m_shown;
    /// Takes the place of the one that is shown when it is done.
    std::unique_ptr<meridane::SceneSearch> m_coming;
    bool m_isOutdated = false; // the one that is shown
    bool m_isComingOutdated = false;
    bool m_isReported = false;
    std::size_t m_reportedCount = 0;
    std::chrono::steady_clock::time_point m_reported;
    std::vector<Written> m_toCompare;
    std::vector<NxRef<NxNode>> m_written; // of the open step
    QBasicTimer m_slices;
    QBasicTimer m_openStep;
    QBasicTimer m_idle;
    bool m_hasChanged = false; // since that timer was started
};
