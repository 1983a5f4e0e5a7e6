#pragma once

#include "orvane/app/settings/Setting.h"

#include "meridane/query/Query.h"

#include <QDialog>
#include <QString>

#include <vector>

class FilterLine;
class MessageBar;
class QAction;
class QBoxLayout;
class QLabel;
class QListWidget;
class QPushButton;
class QScrollArea;
class SettingRow;
class SettingsStore;

/// The Settings window: pages of settings, which can be searched. A change has its effect at once.
class SettingsWindow : public QDialog {
    Q_OBJECT

public:
    /// A window of its own that belongs to a page; the action opens it.
    struct Link {
        SettingPage page = SettingPage::General;
        QAction* action = nullptr;
    };

    /// The store and the actions live longer.
    SettingsWindow(SettingsStore& store, std::vector<Link> links, QWidget* parent);
    ~SettingsWindow() override;

    bool eventFilter(QObject* object, QEvent* event) override;

private:
    /// What the scrolled area shows of a page.
    struct Section {
        SettingPage page = SettingPage::General;
        QLabel* heading = nullptr;
        std::vector<SettingRow*> rows;
        std::vector<QPushButton*> links;
    };

    void buildPages(QBoxLayout* layout);
    void buildSection(SettingPage page, QBoxLayout* layout);
    void buildButtons(QBoxLayout* layout);
    void updateTexts();
    void updateState();
    void search(const meridane::Query& query);
    void showRows();
    bool showRows(Section& section, bool isShownPage);
    void choosePage(int row);
    void goToRows();
    void askToResetAll();
    void chooseImport();
    void import(const QString& fileName);
    void chooseExport();
    [[nodiscard]] int changedCount() const;

    SettingsStore& m_store;
    std::vector<Link> m_links;
    meridane::Query m_query;
    std::vector<Section> m_sections;
    MessageBar* m_messages;
    FilterLine* m_filter;
    QListWidget* m_pages;
    QScrollArea* m_area;
    QLabel* m_nothing;
    QPushButton* m_resetAll;
    QPushButton* m_import;
    QPushButton* m_export;
    QPushButton* m_close;
};
