#include "orvane/app/structure/StepSelections.h"

#include "orvane/extender/OrvDocument.h"
#include "orvane/extender/OrvServices.h"
#include "orvane/extender/OrvStepList.h"

#include <unordered_set>

StepSelections::StepSelections(OrvServices& services, QObject* parent)
    : QObject(parent)
    , m_services(services)
{
    connect(&services, &OrvServices::stepFinished, this, &StepSelections::takePending);
    connect(&services.steps(), &OrvStepList::changed, this, &StepSelections::forgetDropped);
    connect(&services.document(), &OrvDocument::aboutToClose, this, [this] {
        m_pending.reset();
        m_entries.clear();
    });
}

void StepSelections::note(const QString& label, Rows before, Rows after)
{
    m_pending = Entry{std::move(before), std::move(after)};
    m_pendingLabel = label;
    takePending(); // if the step has ended already
}

bool StepSelections::isLatest(const QString& label) const
{
    const OrvStepList& steps = m_services.steps();
    const int latest = steps.position() - 1;
    return latest >= 0 && steps.label(latest) == label && !m_entries.contains(steps.number(latest));
}

const StepSelections::Rows* StepSelections::afterMove(int index) const
{
    const OrvStepList& steps = m_services.steps();
    if (index < 0 || index >= steps.count())
        return nullptr;
    const auto found = m_entries.find(steps.number(index));
    if (found == m_entries.end())
        return nullptr;
    return index < steps.position() ? &found->second.after : &found->second.before;
}

void StepSelections::takePending()
{
    if (!m_pending || !isLatest(m_pendingLabel))
        return;
    const OrvStepList& steps = m_services.steps();
    m_entries.insert_or_assign(steps.number(steps.position() - 1), std::move(*m_pending));
    m_pending.reset();
}

void StepSelections::forgetDropped()
{
    const OrvStepList& steps = m_services.steps();
    if (m_entries.empty())
        return;
    std::unordered_set<std::uint64_t> present;
    for (int index = 0; index < steps.count(); ++index)
        present.insert(steps.number(index));
    std::erase_if(m_entries, [&present](const auto& entry) { return !present.contains(entry.first); });
}
