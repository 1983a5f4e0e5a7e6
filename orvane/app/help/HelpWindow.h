#pragma once

#include "orvane/app/help/HelpPages.h"

#include <QWidget>

class AppSettings;
class HelpBrowser;
class QAction;
class QLabel;
class QLineEdit;
class QSplitter;
class QToolBar;
class QTreeWidget;
class QTreeWidgetItem;

/// The window that shows the documentation: the list of pages, a line that searches all of them, and the page.
class HelpWindow : public QWidget {
    Q_OBJECT

public:
    /// The settings, which keep size and widths, live longer. The window is above its parent.
    HelpWindow(AppSettings& settings, QWidget* parent);
    ~HelpWindow() override;

    /// Shows a page, such as "view.md" or "editing.md#lists", in front of other windows.
    void showPage(const QString& address);

    bool eventFilter(QObject* object, QEvent* event) override;

private:
    void buildToolBar(QToolBar* toolBar);
    QAction* add(QToolBar* toolBar, const char* name, const QKeySequence& key);
    void search(const QString& text);
    void fillList(const QStringList& words);
    void choose(const QTreeWidgetItem* item);
    void showPlace();
    void zoom(int steps);

    AppSettings& m_settings;
    orvane::HelpPages m_pages;
    QSplitter* m_splitter;
    QLineEdit* m_search;
    QTreeWidget* m_list;
    HelpBrowser* m_browser;
    QLabel* m_message;
    QAction* m_back = nullptr;
    QAction* m_forward = nullptr;
};
