#pragma once

#include <QWidget>

#include <memory>

class AppSettings;
class JobBar;
class ListClipboard;
class ListDelegate;
class ListEdits;
class ListFindLine;
class ListModel;
class ListSetLine;
class ListStatistics;
class ListView;
class MessageBar;
class NxField;
class NxFieldContainer;
class NxMField;
class OrvServices;
class QComboBox;
class QHBoxLayout;
class QLabel;
class ShownRows;

/// A list field of the selected node as a table of any length: found, selected and edited as in a spreadsheet.
///
/// It shows the selected field if that is a list. A single value that is selected leaves the list of its node.
class ListPanel : public QWidget {
    Q_OBJECT

public:
    /// Both live longer.
    ListPanel(OrvServices& services, AppSettings& settings, QWidget* parent = nullptr);
    ~ListPanel() override;

    [[nodiscard]] ListModel* model() const noexcept { return m_model; }
    [[nodiscard]] ListView* view() const noexcept { return m_view; }
    [[nodiscard]] ShownRows* shownRows() const noexcept { return m_shown; }
    /// The list that is shown, or null.
    [[nodiscard]] NxMField* list() const;
    /// Shows a list, or none if null.
    void setList(NxMField* list);
    /// The height of the panel in which this number of rows is seen.
    [[nodiscard]] int heightFor(int rows) const;

private:
    QWidget* buildTop();
    QWidget* buildMiddle();
    QWidget* buildBottom();
    void addButton(QHBoxLayout* line, class QAction* action, const QString& iconText);
    void connectParts();
    void followSelection();
    void sortBy(int column);
    void showOrder();
    void listFields(NxFieldContainer* node);
    void chooseField(int item);
    void updateCounts();
    void showMessage(const QString& message);
    void showStatistics(bool shows);
    void fitColumns();

    OrvServices& m_services;
    AppSettings& m_settings;
    ListModel* m_model;
    std::unique_ptr<ListEdits> m_edits;
    ListView* m_view;
    ListDelegate* m_delegate;
    MessageBar* m_messages;
    JobBar* m_jobBar;
    ShownRows* m_shown;
    ListClipboard* m_clipboard;
    ListFindLine* m_find;
    ListSetLine* m_set;
    ListStatistics* m_statistics;
    QComboBox* m_chooser;
    QLabel* m_counts;
    class QStackedLayout* m_pages;
};
