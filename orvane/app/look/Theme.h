#pragma once

#include <QList>
#include <QObject>

class DesktopScheme;
class QAction;
class QActionGroup;
class SettingsStore;

/// Light windows, dark ones, or those of the desktop: the user's choice, which holds at once for all windows and is
/// kept in the settings.
///
/// A desktop that brings a palette of its own is followed.
class Theme : public QObject {
    Q_OBJECT

public:
    enum class Choice { System, Light, Dark };

    /// Applies the choice of the settings, which live longer than this.
    Theme(SettingsStore& settings, QObject* parent);

    [[nodiscard]] Choice choice() const noexcept { return m_choice; }
    /// Keeps the choice, and shows it in all windows.
    void choose(Choice choice);
    /// For windows on a screen: where the desktop has no palette, the windows have one of the tool's own from now on,
    /// as the desktop portal prefers, and the light one until it answers.
    void followPortal();
    /// One for each choice, for a menu. The one of the present choice is checked.
    [[nodiscard]] QList<QAction*> actions() const;

private:
    void addAction(const char* name, Choice choice);
    void followSettings();
    void apply();

    SettingsStore& m_settings;
    QActionGroup* m_actions;
    DesktopScheme* m_portal = nullptr;
    Choice m_choice = Choice::System;
    bool m_prefersDark = false; // the desktop, as the portal reports it
    bool m_hasOwn = false; // the application has one of the tool's own palettes
};
