#pragma once

#include "orvane/app/settings/SettingsFile.h"

#include <QDialog>

#include <vector>

class QDialogButtonBox;
class QTreeWidget;
class SettingsStore;

/// Shows what importing a file of settings would change, each change with a check box, and carries out those that are
/// checked.
class ImportDialog : public QDialog {
    Q_OBJECT

public:
    /// The store lives longer. There is at least one change.
    ImportDialog(SettingsStore& store, std::vector<orvane::SettingChange> changes, QWidget* parent);

private:
    void buildList();
    void updateButton();
    void import();

    SettingsStore& m_store;
    std::vector<orvane::SettingChange> m_changes;
    QTreeWidget* m_list;
    QDialogButtonBox* m_buttons;
};
