#pragma once

class QDockWidget;
class QMainWindow;

namespace orvane {

/// Adds a dock with wide rows to the bottom of the window. If other docks are there, they become tabs of one place.
void placeAtBottom(QMainWindow* window, QDockWidget* dock);

} // namespace orvane
