#pragma once

#include <QDockWidget>
#include <QMainWindow>

namespace bench {

/// A main window of a fixed size with something in its middle, for docks at its right.
class DockWindow : public QMainWindow {
public:
    DockWindow();

    /// A dock with a widget in it that stays as long as the window.
    QDockWidget* addDock();
};

} // namespace bench
