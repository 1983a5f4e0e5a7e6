#pragma once

#include "orvane/app/view/handles/HandleTargets.h"

#include <QKeySequence>
#include <QList>
#include <QObject>

#include <optional>

class HandleNote;
class HandleTool;
class HoverTool;
class QAction;
class QActionGroup;
class QMenu;
class SceneTreePanel;
class SceneView;
class Session;
class SymbolTool;

/// What the user does in the view beside looking: picks symbols and moves nodes by handles. Actions with their keys,
/// kept in the settings, and the offer to put a transform above a node that has none.
class ViewHandles : public QObject {
    Q_OBJECT

public:
    /// All live as long as the view, which owns this.
    ViewHandles(Session& session, SceneView* view, SceneTreePanel* tree);

    /// For the View menu: the kinds of handles, and whether lights and cameras are shown as symbols.
    [[nodiscard]] QAction* menuAction() const;
    [[nodiscard]] QAction* symbolsAction() const { return m_symbols; }

private:
    using Kind = HandleTargets::Kind;

    void addKind(std::optional<Kind> kind, const char* name, const char* text, const char* tip, Qt::Key key);
    void addAxes(HandleAxes axes, const char* name, const char* text, const char* tip);
    QAction* addAction(QActionGroup* group, const char* name, const char* text, const char* tip);
    void addSymbols();
    void showNote();
    [[nodiscard]] QString reason(const NxNode& node, Kind kind) const;
    void putTransformsAbove();

    Session& m_session;
    SceneView* m_view;
    SceneTreePanel* m_tree;
    HoverTool* m_hoverTool; // the first, so that it is asked last
    SymbolTool* m_symbolTool;
    HandleTool* m_tool;
    HandleNote* m_note;
    QMenu* m_menu;
    QActionGroup* m_kinds;
    QActionGroup* m_axes;
    QAction* m_symbols;
};
