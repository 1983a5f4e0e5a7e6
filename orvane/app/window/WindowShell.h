#pragma once

#include "orvane/extender/OrvShell.h"

#include <QHash>
#include <QList>
#include <QObject>
#include <QRect>

class QMainWindow;

/// The shell on the main window.
///
/// A dock or tool bar that an extension adds gets an object name, if it has none, so that its place can be kept: from
/// run to run by the window's saved state, and from removal to the next addition by the shell.
class WindowShell : public QObject, public OrvShell {
    Q_OBJECT

public:
    /// The width, in pixels, that a column of docks starts with: enough for the editors of most fields.
    static constexpr int sideDockWidth = 410;
    /// How wide docks at the sides begin: more with a large font, but at most two fifths of the screen.
    [[nodiscard]] static int widthAtSide(const QWidget& window);

    explicit WindowShell(QMainWindow* window);
    ~WindowShell() override;

    void addDockWidget(QDockWidget* dock, int area) override;
    void removeDockWidget(QDockWidget* dock) override;
    void announceExtension(OrvExtension* extension, int value) override;
    void withdrawExtension(OrvExtension* extension) override;
    void addToolBar(QToolBar* toolBar, int area) override;
    void removeToolBar(QToolBar* toolBar) override;

    /// The extensions that are announced, in the order in which they were.
    [[nodiscard]] const QList<OrvExtension*>& announcedExtensions() const noexcept { return m_announced; }
    /// The docks that extensions have added.
    [[nodiscard]] const QList<QDockWidget*>& docks() const noexcept { return m_docks; }

    bool eventFilter(QObject* object, QEvent* event) override;

Q_SIGNALS:
    /// A dock or tool bar came or went.
    void contentChanged();

private:
    /// Where a dock was when it was removed.
    struct Place {
        Qt::DockWidgetArea area;
        bool floating;
        QRect geometry;
    };

    void placeDock(QDockWidget* dock, Qt::DockWidgetArea area);
    [[nodiscard]] int widthFor(QDockWidget* dock) const;
    void giveSize(QDockWidget* dock, int width);
    void forget(QObject* object);

    QMainWindow* m_window;
    QList<OrvExtension*> m_announced;
    QList<QDockWidget*> m_docks;
    QList<QToolBar*> m_toolBars;
    QHash<QString, Place> m_places;
    QList<QDockWidget*> m_unsized; // not shown yet, and without a place from before
};
