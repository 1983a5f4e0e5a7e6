#pragma once

#include "orvane/app/log/LogLinks.h"

#include <QWidget>

#include <array>
#include <cstdint>
#include <vector>

class AppSettings;
class LogBook;
class LogDelegate;
class LogFindLine;
class LogModel;
class LogSearch;
class LogView;
class MessageBar;
class QAction;
class QHBoxLayout;
class QLabel;
class QLineEdit;
class QToolButton;
class SceneDocument;
enum class NxSeverity : std::uint8_t;

/// Shows the log: buttons for the severities, a line to filter it, a row for each line or for equal ones, and what is
/// kept of it.
class LogPanel : public QWidget {
    Q_OBJECT

public:
    /// What the panel works with. All live longer.
    struct Parts {
        LogBook& book;
        SceneDocument& document;
        AppSettings& settings;
        MessageBar& messages;
    };
    explicit LogPanel(const Parts& parts, QWidget* parent = nullptr);
    ~LogPanel() override;

    [[nodiscard]] LogModel* model() const noexcept { return m_model; }
    [[nodiscard]] LogView* view() const noexcept { return m_view; }
    [[nodiscard]] LogLinks& links() noexcept { return *m_links; }

Q_SIGNALS:
    /// The user chose the path of a node or a field.
    void nodeChosen(const QString& path);

protected:
    void changeEvent(QEvent* event) override;

private:
    void buildTopLine(QHBoxLayout* line);
    void addSeverity(QHBoxLayout* line, NxSeverity severity);
    void addActions();
    QAction* addAction(const char* name, const QKeySequence& key, void (LogPanel::*run)());
    void setTexts();
    void update();
    void updateActions();
    void updateIcons();
    void filter();
    void setShown(NxSeverity severity, bool isShown);
    void setFolding(bool isOn);
    void copy(const std::vector<int>& rows);
    void clear();
    void openFind();
    void save();
    void write(const QString& fileName);
    void openLink();
    void openFolder();
    void follow(const LogLink& link);
    void open(const QString& path);
    [[nodiscard]] const LogLink* firstLink(bool isFile);

    Parts m_parts;
    LogModel* m_model;
    LogLinks* m_links;
    LogDelegate* m_delegate;
    LogView* m_view;
    LogSearch* m_search;
    LogFindLine* m_find;
    QLineEdit* m_filter;
    QLabel* m_state;
    std::array<QToolButton*, 3> m_severities{};
    QAction* m_fold = nullptr;
    QAction* m_clear = nullptr;
    QAction* m_save = nullptr;
    QAction* m_open = nullptr;
    QAction* m_openFolder = nullptr;
    QAction* m_beginFind = nullptr;
    QAction* m_findNext = nullptr;
    QAction* m_findPrevious = nullptr;
};
