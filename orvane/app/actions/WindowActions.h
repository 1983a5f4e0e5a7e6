#pragma once

#include "orvane/app/actions/ActionKeys.h"
#include "orvane/app/actions/ActionSource.h"
#include "orvane/app/actions/GoToSource.h"

#include <QObject>

class CameraMenu;
class FieldPanel;
class FileFlow;
class Inspectors;
class PickerPopup;
class QAction;
class SceneBookmarks;
class SceneTreePanel;
class Session;

/// The command palette, the picker of places to go to, and the page of keys, with their actions in the menu "Go".
class WindowActions : public QObject {
    Q_OBJECT

public:
    /// What the places to go to are shown in. All live as long as the window.
    struct Parts {
        SceneTreePanel* tree;
        FieldPanel* fields;
        Inspectors& inspectors;
        FileFlow& files;
        const RecentFiles& recent;
        CameraMenu& cameras;
        SceneBookmarks& bookmarks;
    };

    /// The window is the parent.
    WindowActions(QMainWindow* window, Session& session, const Parts& parts);
    ~WindowActions() override;

    /// Shows the page of keys. For the Help menu.
    [[nodiscard]] QAction* keysAction() const noexcept { return m_showKeys; }

private:
    QAction* add(const char* name, const char* text, const char* statusTip, const QList<QKeySequence>& keys);
    void open(PickerSource& source);
    void goTo(const std::vector<NxNode*>& path, NxField* field);
    void openContextMenu();
    void showKeys();

    QMainWindow* m_window;
    Parts m_parts;
    ActionSource m_actions;
    GoToSource m_places;
    PickerPopup* m_popup = nullptr; // made when it is first opened
    QAction* m_showKeys;
    ActionKeys m_keys;
};
