#pragma once

#include "orvane/app/structure/FileDrops.h"

#include <QBasicTimer>
#include <QObject>
#include <QPoint>

#include <optional>

class DropMark;
class NodeClipboard;
class NodeEditor;
class QDropEvent;
class QMimeData;
class SceneTreePanel;

/// Drags of nodes within the scene tree, to other windows and from them, and files that are dropped on the tree.
///
/// A drag moves nodes; with Ctrl it copies them, with Ctrl and Shift it lets them be in the other place as well.
class TreeDrops : public QObject {
    Q_OBJECT

public:
    /// All live longer.
    TreeDrops(SceneTreePanel* tree, NodeEditor& editor, NodeClipboard& clipboard, FileDrops& files);
    ~TreeDrops() override;

    bool eventFilter(QObject* object, QEvent* event) override;

protected:
    void timerEvent(QTimerEvent* event) override;

private:
    /// Where something would come.
    struct Target {
        NodeSpot spot;
        std::optional<meridane::NodeRows> node; // the one that the pointer is in the middle of
        bool isGround = false;
    };

    void startDrag();
    void enter(QDropEvent* event);
    void drop(QDropEvent* event);
    void end();
    [[nodiscard]] Target targetAt(const QPoint& position);
    [[nodiscard]] FileDrops::Place placeOf(const Target& target) const;
    [[nodiscard]] bool isOwn(const QDropEvent& event) const;
    [[nodiscard]] MadeEdit edit(const Target& target, Qt::DropAction action) const;
    /// Why it can't be dropped there; empty if it can.
    [[nodiscard]] QString refusal(const QDropEvent& event, const Target& target) const;
    void say(const QString& text);

    SceneTreePanel* m_tree;
    NodeEditor& m_editor;
    NodeClipboard& m_clipboard;
    FileDrops& m_files;
    DropMark* m_mark;
    bool m_isDragging = false; // nodes of this tree
    QPoint m_position;
    QBasicTimer m_scroll;
    QBasicTimer m_unfold;
    QString m_said;
};
