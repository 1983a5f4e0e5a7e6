#include "meridane/scene/recovery/detail/ChangeCapture.h"

#include "meridane/scene/fields/NxFieldData.h"
#include "meridane/scene/fields/NxMField.h"
#include "meridane/scene/journal/Journal.h"
#include "meridane/scene/recovery/detail/NodeCapture.h"

#include <new>
#include <utility>

namespace meridane {

namespace {

// Between two looks at the clock.
constexpr int numbersPerLook = 256;
constexpr int piecesPerLook = 8;

// After so many slices that only captured the same places again, one slice captures all.
constexpr int mostSlicesWithoutNews = 100;

} // namespace

ChangeCapture::ChangeCapture(Journal& journal, RecoveryDescription::Base base)
    : m_journal(journal)
    , m_base(base)
    , m_nodeCapture(std::make_unique<NodeCapture>(journal, m_numbers, m_operations, m_waiting))
{
    if (base == RecoveryDescription::Base::Nothing) {
        beginFromNothing();
    } else {
        m_journal.reportAllAgain();
        m_numbers.add(0, LogNumbers::State::Followed);
        m_traversal.emplace(m_journal.scene());
        if (!m_journal.scene().getName().isEmpty())
            dirtyNode(0).name = true; // which files don't have
    }
    m_journal.addListener(*this);
}

ChangeCapture::~ChangeCapture()
{
    m_journal.removeListener(*this);
}

void ChangeCapture::beginFromNothing()
{
    m_base = RecoveryDescription::Base::Nothing;
    m_traversal.reset();
    m_dirty.clear();
    m_queue.clear();
    m_numbers.clear();
    m_numbers.add(0, LogNumbers::State::Waiting);
    takeWaitingNode(0);
}

bool ChangeCapture::hasWork() const noexcept
{
    return m_traversal || !m_dirty.empty() || !m_waiting.empty() || !m_operations.isEmpty();
}

bool ChangeCapture::run(std::string& operations, const WorkBudget& budget)
{
    if (m_traversal && numberNodes(budget))
        return true;
    const bool isUnlimited = m_slicesWithoutNews >= mostSlicesWithoutNews;
    bool more = true;
    m_hadNews = false;
    do {
        for (int i = 0; i < piecesPerLook && more; ++i)
            more = captureSome();
    } while (more && (isUnlimited || !budget.isSpent()));
    m_operations.moveTo(operations);
    m_slicesWithoutNews = more && !m_hadNews ? m_slicesWithoutNews + 1 : 0;
    if (!more)
        m_numbers.noteCommit();
    return more;
}

bool ChangeCapture::numberNodes(const WorkBudget& budget)
{
    do {
        for (int i = 0; i < numbersPerLook; ++i) {
            const NxNode* const node = m_traversal->next();
            if (node == nullptr) {
                m_traversal.reset();
                m_baseNodeCount = m_numbers.count();
                return false;
            }
            m_numbers.add(*m_journal.number(*node), LogNumbers::State::Followed);
        }
    } while (!budget.isSpent());
    return true;
}

// Returns false if nothing is dirty.
bool ChangeCapture::captureSome()
{
    if (!m_present && !takeNext())
        return false;
    if (!m_present)
        return true;
    const auto found = m_dirty.find(*m_present);
    if (found == m_dirty.end()) {
        m_present.reset(); // it has been destroyed
        return true;
    }
    DirtyNode& dirty = found->second;
    if (!dirty.isEmpty()) {
        m_nodeCapture->capturePiece(*nodeOf(*m_present), *m_present, dirty);
        m_hadNews = m_hadNews || !m_isAgain;
    }
    if (dirty.isEmpty()) {
        m_dirty.erase(found);
        m_present.reset();
    }
    return true;
}

bool ChangeCapture::takeNext()
{
    if (!m_waiting.empty()) {
        const std::size_t number = m_waiting.back();
        m_waiting.pop_back();
        takeWaitingNode(number);
        return true;
    }
    if (m_queue.empty())
        return false;
    const std::size_t number = m_queue.front();
    m_queue.pop_front();
    // A node that was removed before the base was numbered isn't part of it.
    if (m_numbers.state(number) == LogNumbers::State::Followed) {
        m_present = number;
        m_isAgain = m_numbers.isCapturedAgain(number);
    } else {
        m_dirty.erase(number);
    }
    return true;
}

void ChangeCapture::takeWaitingNode(std::size_t number)
{
    NxNode* const node = nodeOf(number);
    if (node == nullptr || m_numbers.state(number) != LogNumbers::State::Waiting)
        return; // it has been destroyed
    DirtyNode contents = m_nodeCapture->contentsOf(*node);
    if (!contents.isEmpty()) {
        m_dirty.emplace(number, std::move(contents));
        m_present = number;
    }
    m_numbers.setFollowed(number);
    m_numbers.isCapturedAgain(number);
    m_isAgain = false;
    m_hadNews = true;
}

NxNode* ChangeCapture::nodeOf(std::size_t number) const noexcept
{
    return static_cast<NxNode*>(m_journal.node(number));
}

DirtyNode& ChangeCapture::dirtyNode(std::size_t number)
{
    const auto [place, isNew] = m_dirty.try_emplace(number);
    if (isNew)
        m_queue.push_back(number);
    else if (m_present == number)
        m_isAgain = true;
    return place->second;
}

void ChangeCapture::aboutToChange(const PlaceChange& change) noexcept
{
    try {
        if (const auto number = m_journal.number(*change.node); number && !m_hasFailed)
            note(change, *number);
    } catch (const std::bad_alloc&) {
        m_hasFailed = true;
    }
}

void ChangeCapture::note(const PlaceChange& change, std::size_t number)
{
    // While the base is being numbered, all nodes count as known, and their order must not change.
    if (m_traversal && change.kind == ChangeRecord::Kind::Children)
        beginFromNothing();
    if (!m_traversal && m_numbers.state(number) != LogNumbers::State::Followed)
        return;
    DirtyNode& dirty = dirtyNode(number);
    switch (change.kind) {
    case ChangeRecord::Kind::Name:
        dirty.name = true;
        return;
    case ChangeRecord::Kind::Children:
        return noteChildren(change, dirty, number);
    case ChangeRecord::Kind::Value:
    case ChangeRecord::Kind::Rows:
    case ChangeRecord::Kind::Ignored:
        return noteField(change, dirty);
    }
}

void ChangeCapture::noteField(const PlaceChange& change, DirtyNode& dirty)
{
    DirtyField& field = dirty.field(change.node->getFieldData()->getIndex(change.node, change.field));
    if (change.kind == ChangeRecord::Kind::Ignored) {
        field.ignored = true;
        return;
    }
    if (dynamic_cast<const NxMField*>(change.field) == nullptr) {
        field.value = true;
        field.position = 0;
        return;
    }
    if (field.rows == nullptr)
        field.rows = std::make_unique<DirtyRows>(DirtyRows::Joining::Allowed);
    if (change.kind == ChangeRecord::Kind::Rows)
        field.rows->replace(change.start, change.removed, change.inserted);
    else
        field.rows->replaceAll(change.removed);
}

void ChangeCapture::noteChildren(const PlaceChange& change, DirtyNode& dirty, std::size_t number)
{
    if (dirty.children == nullptr)
        dirty.children = std::make_unique<DirtyRows>(DirtyRows::Joining::Never);
    dirty.children->replace(change.start, change.removed, change.inserted);
    if (const auto removed = dirty.children->takeStale())
        m_operations.children(m_numbers.number(number), removed->logged, removed->stale, {});
}

void ChangeCapture::aboutToDestroy(std::size_t number) noexcept
{
    m_numbers.remove(number);
    m_dirty.erase(number);
}

} // namespace meridane
