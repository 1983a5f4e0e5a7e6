#pragma once

#include "orvane/app/view/navigation/ViewBookmarks.h"

#include <QObject>

class SceneView;
class Session;

/// The bookmarks of the open scene. They are kept for its file; those of a scene without a file until it is saved.
class SceneBookmarks : public QObject {
    Q_OBJECT

public:
    /// The view is the parent; the session lives as long.
    SceneBookmarks(SceneView* view, Session& session);

    [[nodiscard]] const std::vector<ViewBookmark>& list() const noexcept { return m_list; }
    [[nodiscard]] bool isOpen() const;
    /// Whether a scene is open and there is room for one more.
    [[nodiscard]] bool canAdd() const;
    /// A name for the next one that no other has.
    [[nodiscard]] QString nextName() const;

    /// Adds what the view shows, at the end. A name that is empty becomes the next name.
    void add(const QString& name);
    /// These do nothing for a number that no bookmark has, nor for an empty name.
    void rename(std::size_t number, const QString& name);
    void remove(std::size_t number);
    /// Replaces the viewpoint by what the view shows.
    void update(std::size_t number);
    void goTo(std::size_t number);

Q_SIGNALS:
    void changed();

private:
    void load();
    void store();

    SceneView* m_view;
    Session& m_session;
    ViewBookmarks m_kept;
    std::vector<ViewBookmark> m_list;
};
