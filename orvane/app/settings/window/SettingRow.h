#pragma once

#include "meridane/query/Query.h"

#include <QWidget>

struct Setting;
class FoundLabel;
class QLabel;
class QToolButton;
class SettingControl;
class SettingsStore;

/// A setting in the Settings window: its title, what it does, its control, its default and key, a mark and a reset
/// arrow when it is changed, and what counts more than it.
class SettingRow : public QWidget {
    Q_OBJECT

public:
    /// Both live longer. The object name is the setting's key.
    SettingRow(const Setting& setting, SettingsStore& store, QWidget* parent);

    [[nodiscard]] const Setting& setting() const noexcept { return m_setting; }
    [[nodiscard]] bool matches(const meridane::Query& query) const;
    /// Highlights what the query finds.
    void setQuery(const meridane::Query& query);

private:
    void build();
    void updateTexts();
    void update();
    [[nodiscard]] QString note() const;

    const Setting& m_setting;
    SettingsStore& m_store;
    FoundLabel* m_title;
    FoundLabel* m_description;
    FoundLabel* m_facts;
    QLabel* m_note;
    SettingControl* m_control;
    QToolButton* m_reset;
};
