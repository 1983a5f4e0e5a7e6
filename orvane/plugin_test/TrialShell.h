#pragma once

#include "orvane/extender/OrvShell.h"

#include <QMainWindow>
#include <QStringList>

/// A main window that nobody sees, for the docks and tool bars of the plug-in.
class TrialShell final : public OrvShell {
public:
    TrialShell();
    ~TrialShell() override;

    void addDockWidget(QDockWidget* dock, int area) override;
    void removeDockWidget(QDockWidget* dock) override;
    void announceExtension(OrvExtension* extension, int value) override;
    void withdrawExtension(OrvExtension* extension) override;
    void addToolBar(QToolBar* toolBar, int area) override;
    void removeToolBar(QToolBar* toolBar) override;

    [[nodiscard]] QMainWindow& window() noexcept { return m_window; }
    /// What is in the window, or announced, though it should be gone while no extension runs.
    [[nodiscard]] QStringList leftovers() const;

private:
    QMainWindow m_window;
    QList<OrvExtension*> m_announced;
};
