#include "orvane/extender/OrvServices.h"

#include "orvane/extender/OrvCommand.h"
#include "orvane/extender/OrvDocument.h"
#include "orvane/extender/OrvStepList.h"
#include "orvane/extender/detail/CallExtensions.h"
#include "orvane/extender/detail/DelayQueuePump.h"
#include "orvane/extender/detail/HistoryLimit.h"
#include "orvane/extender/detail/OrvHistory.h"
#include "orvane/extender/detail/Selection.h"
#include "orvane/extender/detail/StepEnd.h"
#include "orvane/extender/detail/UserActionTracker.h"

#include "meridane/base/NxDelayQueue.h"
#include "meridane/base/NxPreferences.h"
#include "meridane/base/values/VbString.h"
#include "meridane/scene/journal/Journal.h"

#include <algorithm>
#include <optional>
#include <utility>

namespace {

OrvServices* theServices = nullptr;

} // namespace

// Announces at its end what has changed in the history.
class OrvServices::HistoryChange {
public:
    explicit HistoryChange(OrvServices& services)
        : m_services(services)
    {
    }
    HistoryChange(const HistoryChange&) = delete;
    HistoryChange& operator=(const HistoryChange&) = delete;

    ~HistoryChange() { m_services.announceHistory(); }

private:
    OrvServices& m_services;
};

// Editors may push commands as they show what is selected.
class OrvServices::Showing {
public:
    explicit Showing(OrvServices& services)
        : m_history(*services.m_history)
    {
        const HistoryChange change(services);
        m_history.beginGroup();
    }
    Showing(const Showing&) = delete;
    Showing& operator=(const Showing&) = delete;
    ~Showing() { m_history.endGroup(); }

private:
    OrvHistory& m_history;
};

OrvServices* OrvServices::getInstance()
{
    return theServices;
}

OrvServices::OrvServices()
    : m_pump(std::make_unique<DelayQueuePump>(NxDelayQueue::getDefault()))
    , m_userAction(std::make_unique<UserActionTracker>())
    , m_stepEnd(std::make_unique<StepEnd>(*m_userAction, NxDelayQueue::getDefault()))
    , m_selection(std::make_unique<Selection>(
          Selection::Announcements{[this](NxFieldContainer* node) {
                                       orvane::callExtensions(QStringLiteral("the selection of a node"),
                                           [&] { Q_EMIT selectedNodeChanged(node); });
                                   },
              [this](NxField* field) {
                  orvane::callExtensions(
                      QStringLiteral("the selection of a field"), [&] { Q_EMIT selectedFieldChanged(field); });
              }}))
    , m_document(std::make_unique<OrvDocument>())
    , m_history(std::make_unique<OrvHistory>())
    , m_steps(std::make_unique<OrvStepList>(*m_history))
{
    Q_ASSERT_X(theServices == nullptr, "OrvServices", "there is one services object at a time");
    theServices = this;
    connect(m_document.get(), &OrvDocument::opened, this, &OrvServices::useJournal);
    connect(m_document.get(), &OrvDocument::aboutToClose, this, &OrvServices::dropJournal);
    connect(m_userAction.get(), &UserActionTracker::began, this, [this] {
        beginStep({m_userAction->currentAction(), m_userAction->currentTyping()});
    });
    connect(m_userAction.get(), &UserActionTracker::ended, m_stepEnd.get(), &StepEnd::lookLater);
    connect(m_pump.get(), &DelayQueuePump::passBegins, this, [this] {
        const HistoryChange change(*this);
        m_history->beginPass();
    });
    connect(m_pump.get(), &DelayQueuePump::passEnded, this, [this](bool isLast) {
        const HistoryChange change(*this);
        m_history->endPass(isLast);
        if (isLast)
            m_stepEnd->lookLater();
    });
    connect(m_stepEnd.get(), &StepEnd::changed, this, &OrvServices::noteChange);
    connect(m_stepEnd.get(), &StepEnd::ended, this, [this] { beginStep({}); });
}

OrvServices::~OrvServices()
{
    m_document->close();
    theServices = nullptr;
}

void OrvServices::pushCommand(OrvCommand* command)
{
    if (command == nullptr)
        return;
    const HistoryChange change(*this);
    m_stepEnd->lookLater();
    m_history->push(std::unique_ptr<OrvCommand>(command),
        {m_userAction->currentAction(), m_selection->field(), m_selection->node(), m_selection->fieldOwner()});
}

void OrvServices::pushStep(OrvCommand* command, const QString& label)
{
    beginStep({});
    {
        const HistoryChange change(*this);
        m_stepEnd->lookLater();
        m_history->push(std::unique_ptr<OrvCommand>(command), {HistoryOrigin::none, nullptr, nullptr, nullptr, label});
    }
    // Now, since the step ends with the action of the user, before the change is looked for.
    Q_EMIT documentEdited();
}

void OrvServices::beginEdit(const QString& label)
{
    const HistoryChange change(*this);
    m_history->beginEdit(label);
}

void OrvServices::endEdit()
{
    const HistoryChange change(*this);
    m_history->endEdit();
}

void OrvServices::useJournal()
{
    const HistoryChange change(*this);
    meridane::Journal* const journal = m_document->journal();
    const bool isExact = NxPreferences::getString("ORVANE_UNDO", VbString()) != VbString("commands");
    if (const std::optional<std::size_t> limit = orvane::preferredHistoryLimit())
        m_history->setLimit(*limit);
    m_history->setJournal(journal, isExact ? OrvHistory::Moves::Exact : OrvHistory::Moves::Commands);
    journal->addListener(*m_stepEnd);
}

void OrvServices::dropJournal()
{
    const HistoryChange change(*this);
    m_history->setJournal(nullptr);
}

void OrvServices::noteChange()
{
    const HistoryChange change(*this);
    if (m_history->isStepOpen())
        Q_EMIT documentEdited();
}

void OrvServices::beginStep(const HistoryOrigin& origin)
{
    const HistoryChange change(*this);
    m_history->beginStep(origin);
}

void OrvServices::announceHistory()
{
    const OrvHistory::Changes changes = m_history->takeChanges();
    if (changes.areThere())
        Q_EMIT m_steps->changed(
            static_cast<int>(changes.dropped), static_cast<int>(std::min(changes.first, m_history->steps().size())));
    const Shown shown{m_steps->position(), m_history->cleanState(), m_history->bytes(), m_history->limit()};
    if (std::exchange(m_shown, shown) != shown || changes.areThere())
        Q_EMIT m_steps->updated();
    const Answers answers{m_history->canUndo(), m_history->canRedo(), m_history->isClean()};
    if (std::exchange(m_answers, answers) != answers)
        Q_EMIT historyChanged();
    if (changes.hasFinished)
        Q_EMIT stepFinished();
}

void OrvServices::selectNode(NxFieldContainer* node)
{
    const Showing showing(*this);
    m_selection->selectNode(node);
}

void OrvServices::selectField(NxField* field)
{
    const Showing showing(*this);
    m_selection->selectField(field);
}

void OrvServices::select(NxFieldContainer* node, NxField* field)
{
    const Showing showing(*this);
    m_selection->select(node, field);
}

void OrvServices::announceSelection()
{
    const Showing showing(*this);
    m_selection->announce();
}

NxFieldContainer* OrvServices::getSelectedNode() const noexcept
{
    return m_selection->node();
}

NxField* OrvServices::getSelectedField() const noexcept
{
    return m_selection->field();
}

void OrvServices::undo()
{
    bool moved = false;
    {
        const HistoryChange change(*this);
        moved = m_history->undo();
    }
    if (moved)
        Q_EMIT m_steps->movedOver(m_steps->position());
    Q_EMIT documentEdited();
}

void OrvServices::redo()
{
    bool moved = false;
    {
        const HistoryChange change(*this);
        moved = m_history->redo();
    }
    if (moved)
        Q_EMIT m_steps->movedOver(m_steps->position() - 1);
    Q_EMIT documentEdited();
}

bool OrvServices::isUndoExact() const
{
    return m_history->isExact();
}

bool OrvServices::canUndo() const
{
    return m_history->canUndo();
}

bool OrvServices::canRedo() const
{
    return m_history->canRedo();
}

QString OrvServices::undoText() const
{
    return m_history->undoText();
}

QString OrvServices::redoText() const
{
    return m_history->redoText();
}

void OrvServices::setClean()
{
    const HistoryChange change(*this);
    m_history->setClean();
}

void OrvServices::forgetClean()
{
    const HistoryChange change(*this);
    m_history->forgetClean();
}

bool OrvServices::isClean() const
{
    return m_history->isClean();
}

void OrvServices::clearHistory()
{
    const HistoryChange change(*this);
    m_history->clear();
}

int OrvServices::undoDepth() const
{
    return m_history->undoDepth();
}

void OrvServices::setHistoryLimit(std::size_t bytes)
{
    const HistoryChange change(*this);
    m_history->setLimit(bytes);
}
