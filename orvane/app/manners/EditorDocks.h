#pragma once

#include <QPointer>

class NxField;
class QDockWidget;
class QMainWindow;
class QWidget;

/// The docks of a window in which extensions show an editor of a field; these get their manners from the application.
/// Cheap to copy. Thread of the user interface only.
class EditorDocks {
public:
    /// The window may go first.
    explicit EditorDocks(QMainWindow* window);

    /// The dock whose editor a widget belongs to, also through a popup that the editor has opened; null for none.
    [[nodiscard]] static QDockWidget* dockOf(const QWidget* widget);
    /// The field that the editor of a widget edits; null if it is in no editor of a field.
    [[nodiscard]] static NxField* fieldOf(const QWidget* widget);
    /// The first control for values in a widget, else the first one that takes keys; null for none.
    [[nodiscard]] static QWidget* firstControl(const QWidget* inside);

    /// The first dock of the window that shows an editor of a field; null for none.
    [[nodiscard]] QDockWidget* first() const;

private:
    QPointer<QMainWindow> m_window;
};
