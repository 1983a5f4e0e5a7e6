#pragma once

#include "orvane/app/base/Result.h"
#include "orvane/app/lists/rows/RowRuns.h"

#include <QList>
#include <QObject>

class ListClipboard;
class ListEdits;
class ListModel;
class ListView;
class MessageBar;
class QAction;
class QKeySequence;

/// What the user can do with the rows of a list: actions with their keys in the view.
class ListActions : public QObject {
    Q_OBJECT

public:
    /// All live longer; the view is the parent.
    ListActions(ListModel& model, ListView* view, ListEdits& edits, ListClipboard& clipboard, MessageBar& messages);

    [[nodiscard]] QAction* insertAction() const noexcept { return m_insert; }
    [[nodiscard]] QAction* removeAction() const noexcept { return m_remove; }
    [[nodiscard]] QAction* moveUpAction() const noexcept { return m_moveUp; }
    [[nodiscard]] QAction* moveDownAction() const noexcept { return m_moveDown; }
    /// All, with separators, for a menu.
    [[nodiscard]] const QList<QAction*>& all() const noexcept { return m_all; }

private:
    QAction* add(
        const char* name, const char* text, const QKeySequence& key, void (ListActions::*run)(), const char* statusTip);
    void addSeparator();
    void update();
    void insert();
    void duplicate();
    void remove();
    void moveUp();
    void moveDown();
    void moveTo(int before);
    void copy();
    void cut();
    void paste();
    void fillLinear();
    void resize();
    void resizeTo(int count);
    void show(const orvane::Result<>& result);

    ListModel& m_model;
    ListView* m_view;
    ListEdits& m_edits;
    ListClipboard& m_clipboard;
    MessageBar& m_messages;
    QList<QAction*> m_all;
    QAction* m_insert;
    QAction* m_duplicate;
    QAction* m_remove;
    QAction* m_moveUp;
    QAction* m_moveDown;
    QAction* m_cut;
    QAction* m_copy;
    QAction* m_paste;
    QAction* m_fillLinear;
    QAction* m_resize;
};
