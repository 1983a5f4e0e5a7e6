#pragma once

#include "orvane/app/structure/NodeEditor.h"

#include <QList>
#include <QObject>

#include <functional>

class NodeClipboard;
class QAction;
class QKeySequence;
class QMenu;
class SceneTreePanel;
class Session;

/// What can be done with the selected nodes: actions for menus, and keys, which work while the tree or another widget
/// has the focus that the actions are added to.
class NodeActions : public QObject {
    Q_OBJECT

public:
    /// Both live longer.
    NodeActions(Session& session, SceneTreePanel* tree);
    ~NodeActions() override;

    [[nodiscard]] NodeEditor& editor() noexcept { return *m_editor; }
    [[nodiscard]] NodeClipboard& clipboard() noexcept { return *m_clipboard; }
    /// All actions with separators between them.
    [[nodiscard]] QList<QAction*> actions() const { return m_actions; }

private:
    using Make = std::function<MadeEdit(const meridane::NodeSet& selected)>;

    QAction* add(const char* name, const char* text, const QKeySequence& key, const char* tip);
    void addEdit(const char* name, const char* text, const QKeySequence& key, const char* tip, const Make& make);
    void addSeparator();
    void addClipboard();
    void addCreation();
    void addEdits();
    void addMoves();
    void addKeepPlace();
    void run(const Make& make);
    void chooseClass();
    void addNode(NxType type);
    void updateActions();

    Session& m_session;
    SceneTreePanel* m_tree;
    NodeEditor* m_editor;
    NodeClipboard* m_clipboard;
    QList<QAction*> m_actions;
    QList<QAction*> m_needSelection;
    QList<QAction*> m_needScene;
};
