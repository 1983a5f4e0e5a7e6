#pragma once

#include <QObject>

#include <cstddef>
#include <memory>

class NxField;
class NxFieldContainer;
class DelayQueuePump;
class OrvCommand;
class OrvHistory;
class Selection;
class UserActionTracker;

/// Broadcasts the selection, keeps the undo history, and runs the toolkit's delay queue from the event loop.
///
/// The application makes the one object, behind the application object and ahead of the first `activate`, and destroys
/// it after the last `deactivate`. Slots run within the emission of a signal. Thread of the user interface only.
class OrvServices : public QObject {
    Q_OBJECT

public:
    /// The services, or null while there are none.
    [[nodiscard]] static OrvServices* getInstance();

    OrvServices();
    ~OrvServices() override;

    /// Takes ownership of a new command, executes it once at once, and keeps it in the history. A null command is
    /// ignored.
    ///
    /// Commands that one action of the user gives rise to (everything from the press of a mouse button or key to its
    /// release, a turn of the wheel) are one step of the history, so that one undo takes back a whole drag. A command
    /// pushed outside of any such action is a step of its own, and so is what follows `setClean` within an action.
    ///
    /// The selected node and the owner of the selected field live as long as the command does. So a command on any
    /// other node's field must hold that node itself. A command that is pushed while another one is executed is part
    /// of the same step; one that is pushed while another one is undone or redone is executed and then dropped.
    virtual void pushCommand(OrvCommand* command);

    // A slot of a selection signal may select as well. That selection is announced as soon as all slots have seen the
    // present one; until then the getters return the present one. Select a node together with its field in one call: a
    // slot of the first of two calls could ask for another selection, which would come after both. Slots that answer
    // each other's selections without end are stopped after 1000 of them, which is posted as an `NxDebugError`.

    /// Makes a node the current one; null for none. The signal is emitted also when it is the current one already. The
    /// node is held alive until another one is selected. If the node changes, no field is selected from then on, which
    /// is announced first.
    void selectNode(NxFieldContainer* node);
    /// Makes a field the current one; null for none. The signal is emitted also when it is the current one already. The
    /// field's node, which needn't be the current one, is held alive until another field is selected. A field that
    /// stands alone may die while it is selected: then none is selected, which isn't announced. No slot of the signal
    /// may destroy it.
    void selectField(NxField* field);
    /// `selectNode`, then `selectField`, between which no other selection comes.
    void select(NxFieldContainer* node, NxField* field);
    /// Emits both signals again: the node first, then the field.
    void announceSelection();
    [[nodiscard]] NxFieldContainer* getSelectedNode() const noexcept;
    [[nodiscard]] NxField* getSelectedField() const noexcept;

    /// Takes back the last step, its commands in reverse order; does nothing when there is none, or when a command
    /// calls it.
    void undo();
    /// Makes the step again that was undone last; does nothing when there is none, or when a command calls it.
    void redo();
    [[nodiscard]] bool canUndo() const;
    [[nodiscard]] bool canRedo() const;
    /// Marks the present state as the saved one.
    void setClean();
    /// Whether the present state is the saved one.
    [[nodiscard]] bool isClean() const;
    /// Drops the whole history and makes the present state clean. To be called ahead of the death of the scene. When a
    /// command calls it, it takes effect as soon as that command has returned.
    void clearHistory();
    /// The number of steps that can be undone.
    [[nodiscard]] int undoDepth() const;
    /// Bounds the memory of the history, in bytes; the oldest steps are dropped beyond it, but the newest one stays.
    /// The default is 256 MiB. What a command takes is estimated from the value of the selected field: two texts of it,
    /// or, for a list, two texts of a row and one for each row that the command removed.
    void setHistoryLimit(std::size_t bytes);

Q_SIGNALS:
    /// The current node changed; null means that no node is selected.
    void selectedNodeChanged(NxFieldContainer* node);
    /// The current field changed; null means that no field is selected.
    void selectedFieldChanged(NxField* field);
    /// What `canUndo`, `canRedo` or `isClean` answer has changed.
    void historyChanged();

private:
    class HistoryChange;

    std::unique_ptr<DelayQueuePump> m_pump;
    std::unique_ptr<UserActionTracker> m_userAction;
    std::unique_ptr<Selection> m_selection;
    std::unique_ptr<OrvHistory> m_history;
};
