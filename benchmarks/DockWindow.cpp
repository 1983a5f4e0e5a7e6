#include "DockWindow.h"

#include <QTextEdit>

namespace bench {

DockWindow::DockWindow()
{
    constexpr QSize size(1000, 600);
    resize(size);
    setCentralWidget(new QTextEdit(this));
}

QDockWidget* DockWindow::addDock()
{
    auto* const dock = new QDockWidget(this);
    dock->setWindowTitle(QStringLiteral("Baseline"));
    addDockWidget(Qt::RightDockWidgetArea, dock);
    return dock;
}

} // namespace bench
