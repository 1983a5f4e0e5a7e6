#pragma once

#include <QModelIndexList>
#include <QObject>
#include <QPersistentModelIndex>
#include <QStringList>

class SceneTreePanel;
class Session;

/// Keeps for each file which rows of its tree are unfolded and selected and which one is on top, in the settings.
///
/// Rows are kept by their numbers with the name of the node as a check, so that a file that was changed elsewhere gets
/// no wrong rows. What wasn't saved isn't kept, since it isn't in the file either.
class TreeMemory : public QObject {
    Q_OBJECT

public:
    /// Of files, and of the rows of each.
    static constexpr qsizetype mostFiles = 50;
    static constexpr qsizetype mostRows = 1000;

    /// Both live longer. The memory follows the session's document before the tree does, so that it sees the tree of a
    /// scene that is about to be closed.
    TreeMemory(Session& session, SceneTreePanel* tree);

private:
    void noteSelection();
    void store();
    void restore();
    [[nodiscard]] QString entryOf(const QModelIndex& index) const;
    [[nodiscard]] QModelIndex find(const QString& entry) const;
    [[nodiscard]] QModelIndexList findAll(const QString& part) const;

    Session& m_session;
    SceneTreePanel* m_tree;
    QList<QPersistentModelIndex> m_selected; // the one selected last is the first
};
