#pragma once

#include "orvane/app/inspect/PlaceHistory.h"

#include <QObject>

#include <cstdint>

class NxField;
class QAction;
class QMainWindow;
class QMenu;
class QToolBar;
class SceneTreePanel;
class SelectionLink;
class Session;

/// Back and Forward through the nodes that were selected in the tree: actions with keys, lists of places, and the two
/// buttons at the side of a mouse.
class PlaceActions : public QObject {
    Q_OBJECT

public:
    /// All live longer, or as long as the window, which the mouse buttons work in.
    PlaceActions(Session& session, SceneTreePanel* tree, SelectionLink& link, QMainWindow* window);
    ~PlaceActions() override;

    [[nodiscard]] QAction* backAction() const noexcept { return m_back.action; }
    [[nodiscard]] QAction* forwardAction() const noexcept { return m_forward.action; }
    /// Adds a button for each, with a list of places to drop down.
    void addTo(QToolBar* toolBar);

    bool eventFilter(QObject* object, QEvent* event) override;

private:
    struct Way {
        PlaceHistory::Direction direction;
        QAction* action;
        QMenu* places;
    };

    [[nodiscard]] Way makeWay(PlaceHistory::Direction direction, const char* text, const char* statusTip);
    void noteNode(NxNode* node);
    void noteField(NxField* field);
    void noteEdit();
    void update();
    void listPlaces(const Way& way);
    void go(PlaceHistory::Direction direction);
    void goTo(std::size_t place);
    [[nodiscard]] bool isInWindow(const QObject* object) const;

    Session& m_session;
    SceneTreePanel* m_tree;
    SelectionLink& m_link;
    QMainWindow* m_window;
    PlaceHistory m_history;
    Way m_back;
    Way m_forward;
    std::uint64_t m_revision = 0; // of the structure, when the actions were last updated
};
