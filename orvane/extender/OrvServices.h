#pragma once

#include <QObject>

#include <cstddef>
#include <cstdint>
#include <memory>

class NxField;
class NxFieldContainer;
struct HistoryOrigin;
class DelayQueuePump;
class OrvCommand;
class OrvDocument;
class OrvHistory;
class OrvStepList;
class Selection;
class StepEnd;
class UserActionTracker;

/// Announces the selection, keeps the undo history, and processes the toolkit's delay queue from the event loop.
///
/// The application makes the only object, after the application object and before the first `activate`, and destroys it
/// after the last `deactivate`. Slots are called directly by the signals. Thread of the user interface only.
class OrvServices : public QObject {
    Q_OBJECT

public:
    /// The services, or null while there are none.
    [[nodiscard]] static OrvServices* getInstance();

    OrvServices();
    ~OrvServices() override;

    /// Takes ownership of a new command, executes it at once, and keeps it in the history. A null command is ignored.
    ///
    /// All commands of one action of the user (everything from the press of a mouse button or key to its release, or a
    /// turn of the wheel) are one step of the history, so that one undo reverts a whole drag. A command that is pushed
    /// outside of any such action is a step of its own. `setClean` within an action begins a new step.
    ///
    /// The history keeps the selected node and the node of the selected field alive as long as the command. A command
    /// on a field of another node must hold that node itself. A command that is pushed while another one is executed is
    /// part of the same step; one that is pushed while another one is undone or redone is executed and then dropped.
    virtual void pushCommand(OrvCommand* command);
    /// The same for a command that is a step of its own, with that label, such as "Reload robot.mrd", whatever action
    /// of the user goes on. What its observers write belongs to the step.
    void pushStep(OrvCommand* command, const QString& label);
    /// All that changes in the open document between the two calls is one step, however many actions of the user it
    /// takes, such as in the popup of a colour. If it ends as it began, there is no step. An undo in between undoes
    /// what has been changed so far. A second `beginEdit` ends the edit before.
    void beginEdit(const QString& label = {});
    void endEdit(); ///< Ends the step that `beginEdit` began; without one it does nothing.

    /// The scene that is open. Its journal makes the history exact: see `undo`.
    [[nodiscard]] OrvDocument& document() const noexcept { return *m_document; }

    // A slot of a selection signal may select something, too. That selection is announced as soon as all slots have
    // been called for the current one; until then the getters return the current one. Select a node together with its
    // field in one call: between two calls, a slot of the first could select something else. Slots that answer each
    // other's selections without end are stopped after 1000 selections, which is posted as an `NxDebugError`.

    /// Selects a node; null for none. The signal is emitted even if the node is selected already. The node is kept
    /// alive until another one is selected. If another node is selected, the field is deselected, which is announced
    /// first.
    void selectNode(NxFieldContainer* node);
    /// Selects a field; null for none. The signal is emitted even if the field is selected already. The field's node,
    /// which needn't be the selected one, is kept alive until another field is selected. A field without a node may be
    /// destroyed while it is selected; then no field is selected, which isn't announced. No slot of the signal may
    /// destroy it.
    void selectField(NxField* field);
    /// `selectNode`, then `selectField`, with no other selection in between.
    void select(NxFieldContainer* node, NxField* field);
    /// Emits both signals again: the node first, then the field.
    void announceSelection();
    [[nodiscard]] NxFieldContainer* getSelectedNode() const noexcept; ///< The selected node, or null.
    [[nodiscard]] NxField* getSelectedField() const noexcept; ///< The selected field, or null.

    /// Undoes the last step, its commands in reverse order. Does nothing if there is none, or if a command calls it.
    ///
    /// While a document is open, its journal knows what each action of the user changed, with or without commands. Then
    /// every changed place is put back exactly as it was before the step, whatever the commands did. Commands that
    /// changed nothing join the step before them. If the preference `ORVANE_UNDO` is `commands` when the document is
    /// opened, a step is only undone as its commands do it.
    void undo();
    /// Redoes the step that was undone last. Does nothing if there is none, or if a command calls it.
    void redo();
    /// Whether a document is open and its steps are undone to the bit, whatever their commands do.
    [[nodiscard]] bool isUndoExact() const;
    [[nodiscard]] bool canUndo() const; ///< Whether there is a step to undo.
    [[nodiscard]] bool canRedo() const; ///< Whether there is a step to redo.
    /// What `undo` would change, such as "Set arm.rotation"; empty where that isn't known.
    [[nodiscard]] QString undoText() const;
    [[nodiscard]] QString redoText() const; ///< The same for `redo`.
    /// Marks the current state as the saved one.
    void setClean();
    /// Marks no state as the saved one: no file has the scene as it is, or as undo and redo make it.
    void forgetClean();
    /// Whether the current state is the saved one.
    [[nodiscard]] bool isClean() const;
    /// Drops the whole history and makes the current state clean. Call it before the scene is destroyed. If a command
    /// calls it, it takes effect as soon as that command has returned.
    void clearHistory();
    /// The steps of the history, to be listed.
    [[nodiscard]] OrvStepList& steps() const noexcept { return *m_steps; }
    /// The number of steps that can be undone.
    [[nodiscard]] int undoDepth() const;
    /// Limits the memory of the history, in bytes. Beyond the limit the oldest steps are dropped, but never the newest.
    /// The default is 256 MiB. The memory of a command is estimated from the value of the selected field: two texts of
    /// it, or, for a list, two texts of a row and one for each row that the command removed. The preference
    /// `ORVANE_HISTORY`, in MiB, sets the limit when a document is opened.
    void setHistoryLimit(std::size_t bytes);

Q_SIGNALS:
    /// A node was selected; null means that no node is selected.
    void selectedNodeChanged(NxFieldContainer* node);
    /// A field was selected; null means that no field is selected.
    void selectedFieldChanged(NxField* field);
    /// The result of `canUndo`, `canRedo` or `isClean` has changed.
    void historyChanged();
    /// Something in the open document has changed; more may follow in the same step.
    void documentEdited();
    /// A step that changed the open document has ended.
    void stepFinished();

private:
    class HistoryChange;
    class Showing;

    /// Of the history, as they were announced last.
    struct Answers {
        bool canUndo = false;
        bool canRedo = false;
        bool isClean = true;

        bool operator==(const Answers&) const = default;
    };
    /// What its list of steps shows.
    struct Shown {
        int position = 0;
        std::uint64_t savedState = 0;
        std::size_t bytes = 0;
        std::size_t limit = 0;

        bool operator==(const Shown&) const = default;
    };

    void useJournal();
    void dropJournal();
    void noteChange();
    void beginStep(const HistoryOrigin& origin);
    void announceHistory();

    std::unique_ptr<DelayQueuePump> m_pump;
    std::unique_ptr<UserActionTracker> m_userAction;
    std::unique_ptr<StepEnd> m_stepEnd;
    std::unique_ptr<Selection> m_selection;
    std::unique_ptr<OrvDocument> m_document;
    std::unique_ptr<OrvHistory> m_history;
    std::unique_ptr<OrvStepList> m_steps;
    Answers m_answers;
    Shown m_shown;
};
