#pragma once

#include <QObject>

#include <cstddef>
#include <memory>

class NxField;
class NxFieldContainer;
class OrvCommand;
class OrvHistory;

/// Broadcasts the selection and keeps the undo history.
///
/// The application makes the one object ahead of the first `activate` and destroys it after the last `deactivate`.
/// Thread of the user interface only.
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
    /// pushed outside of any such action is a step of its own.
    virtual void pushCommand(OrvCommand* command);

    /// Makes a node the current one; null for none. The signal is emitted also when it is the current one already. The
    /// node is held alive until the next call.
    void selectNode(NxFieldContainer* node);
    /// Makes a field the current one; null for none. The signal is emitted also when it is the current one already.
    void selectField(NxField* field);
    [[nodiscard]] NxFieldContainer* getSelectedNode() const noexcept;
    [[nodiscard]] NxField* getSelectedField() const noexcept { return m_selectedField; }

    /// Takes back the last step; does nothing when there is none.
    void undo();
    /// Takes the step back that was undone last; does nothing when there is none.
    void redo();
    [[nodiscard]] bool canUndo() const;
    [[nodiscard]] bool canRedo() const;
    /// Marks the present state as the saved one.
    void setClean();
    /// Whether the present state is the saved one.
    [[nodiscard]] bool isClean() const;
    /// Drops the whole history and makes the present state clean. To be called ahead of the death of the scene.
    void clearHistory();
    /// The number of steps that can be undone.
    [[nodiscard]] int undoDepth() const;
    /// Bounds the memory of the history, in bytes (a step counts with what its field holds); the oldest steps are
    /// dropped beyond it. The default is 256 MiB.
    void setHistoryLimit(std::size_t bytes);

Q_SIGNALS:
    /// The current node changed; null means that no node is selected.
    void selectedNodeChanged(NxFieldContainer* node);
    /// The current field changed; null means that no field is selected.
    void selectedFieldChanged(NxField* field);
    /// What `canUndo`, `canRedo` or `isClean` answer may have changed.
    void historyChanged();

private:
    std::unique_ptr<OrvHistory> m_history;
    NxFieldContainer* m_selectedNode = nullptr;
    NxField* m_selectedField = nullptr;
};
