#include "orvane/app/find/NodeFinder.h"

#include "orvane/extender/OrvDocument.h"
#include "orvane/extender/OrvServices.h"

#include "meridane/query/QueryFacts.h"
#include "meridane/scene/journal/Journal.h"

#include <QTimerEvent>

#include <chrono>
#include <utility>

namespace {

// Leaves time in a slice for the rows that are unfolded and painted.
constexpr std::chrono::milliseconds sliceOfSearch(2);
/// With a key, whose other work has to be done, too.
constexpr std::chrono::milliseconds firstSlice(1);
constexpr std::chrono::milliseconds openStepInterval(200);
/// Each report has rows and numbers painted.
constexpr std::chrono::milliseconds reportInterval(30);
/// Names are read so long after the latest change of the structure.
constexpr std::chrono::milliseconds idleInterval(1000);

} // namespace

NodeFinder::NodeFinder(OrvServices& services, SliceClock::Clock clock)
    : m_services(services)
    , m_clock(clock)
{
    connect(&services.document(), &OrvDocument::aboutToClose, this, &NodeFinder::forgetScene);
    connect(&services, &OrvServices::stepFinished, this, [this] {
        m_openStep.stop();
        noteStep(true);
    });
}

NodeFinder::~NodeFinder()
{
    forgetScene();
}

bool NodeFinder::listen()
{
    if (m_journal == nullptr) {
        m_journal = m_services.document().journal();
        if (m_journal != nullptr)
            m_journal->addListener(*this);
    }
    return m_journal != nullptr;
}

void NodeFinder::prepare()
{
    m_hasChanged = true;
    if (!m_idle.isActive())
        m_idle.start(static_cast<int>(idleInterval.count()), this);
}

void NodeFinder::readNames()
{
    if (std::exchange(m_hasChanged, false))
        return; // it waits once more
    m_idle.stop();
    if (m_query.isEmpty() && (m_shown == nullptr || m_isOutdated) && listen())
        restart();
}

/// Begins to search the scene as it is now.
void NodeFinder::restart()
{
    if (m_isOutdated && m_coming != nullptr && !m_isComingOutdated)
        m_shown = std::move(m_coming);
    else if (m_shown == nullptr)
        m_shown = std::make_unique<meridane::SceneSearch>(*m_journal);
    else if (m_isOutdated)
        m_shown->restart();
    m_coming.reset();
    m_isOutdated = false;
    m_isComingOutdated = false;
    m_shown->begin(m_query, m_facts);
    m_isReported = false;
    goOn();
}

void NodeFinder::search(const meridane::Query& query)
{
    m_query = query;
    if (!query.needsFacts())
        m_facts.reset();
    if (!listen())
        return;
    m_idle.stop();
    restart();
    runSlice(firstSlice); // so that the first hits are in the next picture
}

void NodeFinder::setFacts(Facts facts)
{
    if (facts == m_facts || !m_query.needsFacts())
        return;
    m_facts = std::move(facts);
    m_isOutdated = true;
    m_isComingOutdated = true;
    goOn();
}

void NodeFinder::end()
{
    if (m_query.isEmpty())
        return;
    m_query = {};
    m_facts.reset();
    m_coming.reset();
    if (m_shown != nullptr)
        m_shown->begin({});
    if (m_isOutdated)
        prepare();
    Q_EMIT changed();
}

void NodeFinder::forgetScene()
{
    m_slices.stop();
    m_openStep.stop();
    m_idle.stop();
    if (m_journal != nullptr)
        m_journal->removeListener(*this);
    m_journal = nullptr;
    m_shown.reset();
    m_coming.reset();
    m_isOutdated = false;
    m_toCompare.clear();
    m_written.clear();
}

bool NodeFinder::areNamesKnown() const noexcept
{
    return m_shown != nullptr && !m_isOutdated && m_shown->index().isComplete();
}

bool NodeFinder::isComplete() const noexcept
{
    return m_shown == nullptr || (!m_isOutdated && m_toCompare.empty() && m_shown->isComplete());
}

std::size_t NodeFinder::count() const noexcept
{
    return m_shown != nullptr ? m_shown->hits().size() : 0;
}

std::optional<std::size_t> NodeFinder::place(const NxNode& node) const
{
    if (!isHit(node))
        return std::nullopt;
    return m_shown->hitsBefore(*m_shown->index().find(node));
}

std::vector<NxNode*> NodeFinder::path(std::size_t place) const
{
    return m_shown->index().path(m_shown->hits()[place]);
}

bool NodeFinder::isBesideTheOneBefore(std::size_t place) const
{
    const meridane::NodeIndex& index = m_shown->index();
    return place > 0 && index.parent(m_shown->hits()[place]) == index.parent(m_shown->hits()[place - 1]);
}

std::vector<NxNode*> NodeFinder::hits() const
{
    std::vector<NxNode*> nodes;
    nodes.reserve(count());
    for (std::size_t i = 0; i < count(); ++i) {
        // Only the address: the node may be gone.
        const NxNode& node = m_shown->index().node(m_shown->hits()[i]);
        nodes.push_back(const_cast<NxNode*>(&node)); // NOLINT(cppcoreguidelines-pro-type-const-cast)
    }
    return nodes;
}

std::optional<std::size_t> NodeFinder::beside(const NxNode* node, Direction direction) const
{
    if (count() == 0)
        return std::nullopt;
    const auto entry = node != nullptr ? m_shown->index().find(*node) : std::nullopt;
    if (!entry)
        return direction == Direction::Next ? 0 : count() - 1;
    const std::size_t before = m_shown->hitsBefore(*entry);
    if (direction == Direction::Previous)
        return before > 0 ? std::optional(before - 1) : std::nullopt;
    const std::size_t next = before + (m_shown->isHit(*node) ? 1 : 0);
    return next < count() ? std::optional(next) : std::nullopt;
}

void NodeFinder::aboutToChange(const meridane::PlaceChange& change) noexcept
{
    using Kind = meridane::ChangeRecord::Kind;
    if (change.kind == Kind::Children) {
        m_isOutdated = true;
        m_isComingOutdated = true;
    }
    if (m_query.isEmpty()) { // then only names count
        if (m_isOutdated)
            prepare();
        if (m_isOutdated || change.kind != Kind::Name)
            return;
    }
    if (auto* const node = dynamic_cast<NxNode*>(change.node); node != nullptr && change.kind != Kind::Children) {
        m_toCompare.push_back({NxRef<NxNode>(node), true});
    }
    if (!m_openStep.isActive())
        m_openStep.start(static_cast<int>(openStepInterval.count()), this);
    goOn();
}

// Only the first of the writes to a place within a step is reported.
void NodeFinder::noteStep(bool isOver)
{
    if (m_written.empty() && !(isOver && !m_toCompare.empty()))
        return;
    for (Written& written : m_toCompare)
        written.mayChangeAgain = written.mayChangeAgain && !isOver;
    for (NxRef<NxNode>& node : std::exchange(m_written, {}))
        m_toCompare.push_back({std::move(node), !isOver});
    goOn();
}

void NodeFinder::goOn()
{
    const bool isWaiting = m_query.isEmpty() && m_isOutdated;
    if (!m_slices.isActive() && m_shown != nullptr && !isWaiting)
        m_slices.start(0, this);
}

void NodeFinder::timerEvent(QTimerEvent* event)
{
    if (event->timerId() == m_slices.timerId())
        runSlice(sliceOfSearch);
    else if (event->timerId() == m_openStep.timerId())
        noteStep(false);
    else if (event->timerId() == m_idle.timerId())
        readNames();
}

void NodeFinder::runSlice(std::chrono::milliseconds length)
{
    if (m_isOutdated && m_query.isEmpty()) {
        m_slices.stop(); // the scene is read when it doesn't change any more
        return;
    }
    const meridane::WorkBudget budget(length, m_clock);
    if (m_isOutdated && (m_coming == nullptr || std::exchange(m_isComingOutdated, false))) {
        m_coming = std::make_unique<meridane::SceneSearch>(*m_journal);
        m_coming->begin(m_query, m_facts);
        m_isComingOutdated = false;
    }
    meridane::SceneSearch& search = m_isOutdated ? *m_coming : *m_shown;
    const bool isBusy = compareWritten(search, budget) || search.step(budget);
    if (isBusy && m_isOutdated)
        return;
    if (m_isOutdated) {
        m_shown = std::move(m_coming);
        m_isOutdated = false;
        m_isReported = false;
    }
    if (!isBusy)
        m_slices.stop();
    report(isBusy);
}

void NodeFinder::report(bool isBusy)
{
    const bool isFirst = !std::exchange(m_isReported, true);
    const bool hasOthers = m_reportedCount != count();
    if (isBusy && !isFirst) {
        // The first hits at once.
        if (!hasOthers || (m_reportedCount > 0 && m_clock() < m_reported + reportInterval))
            return;
    }
    m_reportedCount = count();
    m_reported = m_clock();
    Q_EMIT changed();
}

/// Returns whether there are more.
bool NodeFinder::compareWritten(meridane::SceneSearch& search, const meridane::WorkBudget& budget)
{
    while (!m_toCompare.empty()) {
        if (budget.isSpent())
            return true;
        const Written written = std::move(m_toCompare.back());
        m_toCompare.pop_back();
        search.update(*written.node);
        if (written.mayChangeAgain)
            m_written.push_back(written.node);
    }
    return false;
}
