#include "orvane/app/settings/window/ImportDialog.h"

#include "orvane/app/look/Look.h"
#include "orvane/app/settings/Setting.h"
#include "orvane/app/settings/SettingsStore.h"

#include <QDialogButtonBox>
#include <QHeaderView>
#include <QLabel>
#include <QPushButton>
#include <QTreeWidget>
#include <QVBoxLayout>

#include <algorithm>
#include <utility>

ImportDialog::ImportDialog(SettingsStore& store, std::vector<orvane::SettingChange> changes, QWidget* parent)
    : QDialog(parent)
    , m_store(store)
    , m_changes(std::move(changes))
    , m_list(new QTreeWidget(this))
    , m_buttons(new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel, this))
{
    setObjectName(QStringLiteral("importSettingsDialog"));
    setWindowTitle(tr("Import Settings"));
    const int unit = orvane::look::unit(fontMetrics());
    auto* const layout = new QVBoxLayout(this);
    layout->setContentsMargins(2 * unit, 2 * unit, 2 * unit, 2 * unit);
    layout->setSpacing(2 * unit);
    auto* const label = new QLabel(tr("These settings change. What isn't checked stays as it is."), this);
    label->setWordWrap(true);
    layout->addWidget(label);
    buildList();
    layout->addWidget(m_list, 1);
    m_buttons->button(QDialogButtonBox::Ok)->setText(tr("Import"));
    layout->addWidget(m_buttons);
    connect(m_list, &QTreeWidget::itemChanged, this, &ImportDialog::updateButton);
    connect(m_buttons, &QDialogButtonBox::accepted, this, &ImportDialog::import);
    connect(m_buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
    resize(fontMetrics().averageCharWidth() * 90, orvane::look::rowHeight(fontMetrics()) * 16);
    m_list->setFocus();
}

void ImportDialog::buildList()
{
    m_list->setObjectName(QStringLiteral("settingChanges"));
    m_list->setAccessibleName(tr("Settings that change"));
    m_list->setRootIsDecorated(false);
    m_list->setHeaderLabels({tr("Setting"), tr("Now"), tr("In the File")});
    for (const orvane::SettingChange& change : m_changes) {
        auto* const item = new QTreeWidgetItem(m_list,
            {change.setting->titleText(), change.setting->valueText(change.before),
                change.setting->valueText(change.after)});
        item->setCheckState(0, Qt::Checked);
        item->setToolTip(0, change.setting->key);
    }
    m_list->setCurrentItem(m_list->topLevelItem(0));
    for (int column = 0; column < m_list->columnCount(); ++column)
        m_list->resizeColumnToContents(column);
}

void ImportDialog::updateButton()
{
    bool isAny = false;
    for (int row = 0; row < m_list->topLevelItemCount(); ++row)
        isAny = isAny || m_list->topLevelItem(row)->checkState(0) == Qt::Checked;
    QPushButton* const import = m_buttons->button(QDialogButtonBox::Ok);
    import->setEnabled(isAny);
    import->setToolTip(isAny ? QString() : tr("Check a setting first."));
}

void ImportDialog::import()
{
    for (int row = 0; row < m_list->topLevelItemCount(); ++row) {
        const orvane::SettingChange& change = m_changes[static_cast<std::size_t>(row)];
        if (m_list->topLevelItem(row)->checkState(0) == Qt::Checked)
            m_store.set(change.setting->key, change.after);
    }
    accept();
}
