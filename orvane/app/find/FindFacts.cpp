#include "orvane/app/find/FindFacts.h"

#include <QTimerEvent>

#include <chrono>
#include <utility>

namespace {

constexpr std::chrono::milliseconds sliceOfFacts(4);
constexpr std::size_t siblingsAtOnce = 1000;
constexpr std::size_t listsAtOnce = 1000;

} // namespace

FindFacts::FindFacts(Session& session, ImageFolderQuestion& folders)
    : m_check(session, folders)
{
    connect(&m_check, &LiveCheck::settledChanged, this, &FindFacts::follow);
    connect(&m_check, &LiveCheck::replaced, this, [this] {
        m_facts.reset();
        follow();
    });
}

void FindFacts::setOn(bool isOn)
{
    m_check.setOn(isOn);
    if (!isOn)
        m_facts.reset();
}

void FindFacts::follow()
{
    m_slices.stop();
    m_coming.reset();
    if (!m_check.isSettled())
        return;
    m_coming = std::make_shared<meridane::QueryFacts>();
    m_list = 0;
    m_problem = 0;
    m_sibling = 0;
    m_slices.start(0, this);
}

void FindFacts::timerEvent(QTimerEvent* event)
{
    if (event->timerId() != m_slices.timerId())
        return;
    const meridane::WorkBudget budget(sliceOfFacts);
    while (takeNext()) {
        if (budget.isSpent())
            return;
    }
    m_slices.stop();
    m_facts = std::exchange(m_coming, nullptr);
    Q_EMIT changed();
}

/// Takes some problems. Returns false when all were taken.
bool FindFacts::takeNext()
{
    const NxSceneCheck& check = *m_check.check();
    for (std::size_t looked = 0; looked < listsAtOnce && m_list < check.listEnd(); ++looked) {
        const auto problems = check.list(m_list);
        if (m_problem == problems.size()) {
            ++m_list;
            m_problem = 0;
            continue;
        }
        if (m_coming->add(problems[m_problem], m_sibling, siblingsAtOnce)) {
            m_sibling += siblingsAtOnce;
            return true;
        }
        m_sibling = 0;
        ++m_problem;
    }
    return m_list < check.listEnd();
}
