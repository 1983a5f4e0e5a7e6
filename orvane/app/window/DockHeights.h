#pragma once

#include <QObject>
#include <QString>

class AppSettings;
class NxField;
class OrvServices;
class QDockWidget;
class QMainWindow;
class WindowShell;

/// Gives the docks of extensions at the sides of the window another height for lists than for single values: each is
/// the one that the user chose last. A list begins with at least eight rows in sight.
class DockHeights : public QObject {
    Q_OBJECT

public:
    static constexpr int leastRows = 8;

    /// All live as long as the window, which is the parent.
    DockHeights(WindowShell& shell, OrvServices& services, AppSettings& settings, QMainWindow* window);

    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    enum class Kind { None, Single, List };

    void follow(NxField* field);
    void remember();
    void apply();
    void applyTo(QDockWidget* dock);
    [[nodiscard]] bool isAtSide(const QDockWidget* dock) const;
    [[nodiscard]] QString keyOf(const QDockWidget* dock) const;
    [[nodiscard]] QDockWidget* tallestBeside(const QDockWidget* dock) const;
    void applyLater();

    WindowShell& m_shell;
    AppSettings& m_settings;
    QMainWindow* m_window;
    Kind m_kind = Kind::None;
    bool m_isLate = false; // the heights are still to be applied
};
