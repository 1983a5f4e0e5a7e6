#pragma once

#include "orvane/app/find/FindFacts.h"
#include "orvane/app/find/FindLine.h"
#include "orvane/app/find/KeptSearches.h"
#include "orvane/app/find/NodeFinder.h"
#include "orvane/app/tree/FoldState.h"

#include <QList>
#include <QObject>
#include <QPointer>

#include <cstddef>
#include <functional>
#include <memory>
#include <optional>
#include <span>

class NodeMarks;
class NxField;
class QAction;
class QMainWindow;
class SceneTreePanel;

/// Finds nodes in the scene tree: the line over it, the marks of the hits, and the actions that go from hit to hit.
///
/// Hits are unfolded until the tree has a few thousand rows; others are unfolded when the user goes to them. When the
/// search ends, the tree is folded as it was before.
class TreeFinder : public QObject {
    Q_OBJECT

public:
    /// So many rows of the tree at most are shown by unfolding hits.
    static constexpr int mostRowsUnfolded = 5000;
    /// Selects a node and a field of it, or no field for null.
    using Browse = std::function<void(const QModelIndex& index, NxField* field)>;

    /// All live as long as the window.
    TreeFinder(
        Session& session, ImageFolderQuestion& folders, SceneTreePanel* tree, Browse browse, QMainWindow* window);
    ~TreeFinder() override;

    [[nodiscard]] NodeFinder& finder() noexcept { return m_finder; }
    [[nodiscard]] FindLine* line() const noexcept { return m_line; }
    /// Find, next, previous, select all: for a menu.
    [[nodiscard]] QList<QAction*> actions() const { return {m_find, m_next, m_previous, m_all}; }

private:
    QAction* addAction(const char* name, const char* text, const char* tip, const QKeySequence& key);
    void addActions(QMainWindow* window);
    void connectLine();
    void commitEdit();
    void begin();
    void end();
    void followText(const QString& text);
    void restart();
    void followHits();
    void unfoldHits();
    bool unfold(std::span<NxNode* const> path);
    void scrollToFirst();
    void showState();
    void goTo(NodeFinder::Direction direction);
    void goTo(std::size_t place);
    void selectAll();
    void leaveKeysToFocus(const QWidget* focus);
    [[nodiscard]] bool isComplete() const;
    [[nodiscard]] QString countText() const;

    Session& m_session;
    SceneTreePanel* m_tree;
    Browse m_browse;
    NodeFinder m_finder;
    FindFacts m_facts;
    KeptSearches m_kept;
    QPointer<FindLine> m_line; // the tree owns it
    std::shared_ptr<const NodeMarks> m_marks;
    QAction* m_find;
    QAction* m_next;
    QAction* m_previous;
    QAction* m_all;
    std::optional<FoldState> m_folds; // before the search
    std::optional<NodeFinder::Direction> m_wanted; // once a hit there is found
    std::size_t m_unfolded = 0; // hits
    int m_rows = 0; // that the tree shows
    bool m_isUnfolding = false; // goes on in the next turn of the event loop
    bool m_isFolding = false; // there are hits that stay folded
    bool m_isScrolled = false;
    bool m_isWrapped = false; // the latest step went round the end
};
