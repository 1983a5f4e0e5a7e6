#pragma once

#include <QObject>

class QAction;
class QMenu;
class SettingsStore;

/// The menu of the languages that the texts can have. A choice takes effect at once and is a setting.
class LanguageMenu : public QObject {
    Q_OBJECT

public:
    LanguageMenu(SettingsStore& settings, QWidget* parent);

    [[nodiscard]] QAction* menuAction() const;

private:
    void add(const QString& choice);

    SettingsStore& m_settings;
    QMenu* m_menu;
    class QActionGroup* m_choices;
};
