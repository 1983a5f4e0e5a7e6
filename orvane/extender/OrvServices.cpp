#include "orvane/extender/OrvServices.h"

#include "orvane/extender/OrvCommand.h"
#include "orvane/extender/detail/DelayQueuePump.h"
#include "orvane/extender/detail/OrvHistory.h"
#include "orvane/extender/detail/Selection.h"
#include "orvane/extender/detail/UserActionTracker.h"

#include "meridane/base/NxDelayQueue.h"

namespace {

OrvServices* theServices = nullptr;

} // namespace

// Emits historyChanged if one of the results has changed during its life.
class OrvServices::HistoryChange {
public:
    explicit HistoryChange(OrvServices& services)
        : m_services(services)
        , m_answers(answers())
    {
    }
    HistoryChange(const HistoryChange&) = delete;
    HistoryChange& operator=(const HistoryChange&) = delete;

    ~HistoryChange()
    {
        if (answers() != m_answers)
            Q_EMIT m_services.historyChanged();
    }

private:
    struct Answers {
        bool canUndo;
        bool canRedo;
        bool isClean;

        bool operator==(const Answers&) const = default;
    };

    [[nodiscard]] Answers answers() const
    {
        const OrvHistory& history = *m_services.m_history;
        return {history.canUndo(), history.canRedo(), history.isClean()};
    }

    OrvServices& m_services;
    Answers m_answers;
};

OrvServices* OrvServices::getInstance()
{
    return theServices;
}

OrvServices::OrvServices()
    : m_pump(std::make_unique<DelayQueuePump>(NxDelayQueue::getDefault()))
    , m_userAction(std::make_unique<UserActionTracker>())
    , m_selection(std::make_unique<Selection>(
          Selection::Announcements{[this](NxFieldContainer* node) { Q_EMIT selectedNodeChanged(node); },
              [this](NxField* field) { Q_EMIT selectedFieldChanged(field); }}))
    , m_history(std::make_unique<OrvHistory>())
{
    Q_ASSERT_X(theServices == nullptr, "OrvServices", "there is one services object at a time");
    theServices = this;
}

OrvServices::~OrvServices()
{
    theServices = nullptr;
}

void OrvServices::pushCommand(OrvCommand* command)
{
    if (command == nullptr)
        return;
    const HistoryChange change(*this);
    m_history->push(std::unique_ptr<OrvCommand>(command),
        {m_userAction->currentAction(), m_selection->field(), m_selection->node(), m_selection->fieldOwner()});
}

void OrvServices::selectNode(NxFieldContainer* node)
{
    m_selection->selectNode(node);
}

void OrvServices::selectField(NxField* field)
{
    m_selection->selectField(field);
}

void OrvServices::select(NxFieldContainer* node, NxField* field)
{
    m_selection->select(node, field);
}

void OrvServices::announceSelection()
{
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
    const HistoryChange change(*this);
    m_history->undo();
}

void OrvServices::redo()
{
    const HistoryChange change(*this);
    m_history->redo();
}

bool OrvServices::canUndo() const
{
    return m_history->canUndo();
}

bool OrvServices::canRedo() const
{
    return m_history->canRedo();
}

void OrvServices::setClean()
{
    const HistoryChange change(*this);
    m_history->setClean();
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
