#include "orvane/extender/OrvServices.h"

#include "orvane/extender/DelayQueuePump.h"
#include "orvane/extender/OrvCommand.h"
#include "orvane/extender/OrvHistory.h"
#include "orvane/extender/UserActionTracker.h"

#include "meridane/base/NxDelayQueue.h"
#include "meridane/scene/NxField.h"
#include "meridane/scene/NxFieldContainer.h"
#include "meridane/scene/NxFieldSensor.h"

namespace {

OrvServices* theServices = nullptr;

} // namespace

// Forgets the selected field when it dies. Its changes are nothing to it.
class OrvServices::FieldWatch final : public NxFieldSensor {
public:
    void notify() override { }
};

// Emits historyChanged if what happens during its life changes one of the answers.
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
    , m_selectedField(std::make_unique<FieldWatch>())
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
        {m_userAction->currentAction(), getSelectedField(), m_selectedNode.get(), m_selectedFieldOwner.get()});
}

void OrvServices::selectNode(NxFieldContainer* node)
{
    // Two references: the new node may only be alive by the selected one, and the present one until its last slot ran.
    const NxRef<NxFieldContainer> newNode(node);
    const NxRef<NxFieldContainer> formerNode = m_selectedNode;
    if (newNode != formerNode && getSelectedField() != nullptr)
        selectField(nullptr);
    m_selectedNode = newNode;
    Q_EMIT selectedNodeChanged(node);
}

void OrvServices::selectField(NxField* field)
{
    const NxRef<NxFieldContainer> newOwner(field != nullptr ? field->getContainer() : nullptr);
    const NxRef<NxFieldContainer> formerOwner = m_selectedFieldOwner;
    m_selectedFieldOwner = newOwner;
    m_selectedField->attach(field);
    Q_EMIT selectedFieldChanged(field);
}

void OrvServices::announceSelection()
{
    const NxRef<NxFieldContainer> node = m_selectedNode;
    Q_EMIT selectedNodeChanged(node.get());
    const NxRef<NxFieldContainer> owner = m_selectedFieldOwner;
    Q_EMIT selectedFieldChanged(getSelectedField());
}

NxField* OrvServices::getSelectedField() const noexcept
{
    return m_selectedField->getAttachedField();
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
