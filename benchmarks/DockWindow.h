#pragma once

#include <QDockWidget>
#include <QMainWindow>

namespace bench {

/// A main window of a fixed size with a central widget, for docks on the right.
class DockWindow : public QMainWindow {
public:
    DockWindow();

    /// A dock with a widget, which lives as long as the window.
    QDockWidget* addDock();
};

} // namespace bench
