#pragma once

#include "meridane/scene/check/NxSceneProblem.h"

#include <QWidget>

#include <array>
#include <memory>
#include <vector>

class CopyJob;
class JobBar;
class LiveCheck;
class OrvServices;
class ProblemModel;
class QAction;
class QLabel;
class QLineEdit;
class QStackedLayout;
class QTableView;
class QToolButton;

/// Shows the problems of the open scene: buttons for the severities, a line to filter them, a row for each, and buttons
/// that mend them.
class ProblemPanel : public QWidget {
    Q_OBJECT

public:
    /// All live longer.
    ProblemPanel(LiveCheck& check, OrvServices& services, JobBar& jobBar, QWidget* parent = nullptr);
    ~ProblemPanel() override;

    [[nodiscard]] ProblemModel* model() const noexcept { return m_model; }
    [[nodiscard]] QTableView* view() const noexcept { return m_view; }

    /// Mends the selected problems that have a mend, as one step.
    void mendSelected();
    /// Mends all problems of the kind of the selected one, as one step.
    void mendKind();
    /// Puts the selected rows on the clipboard, as lines of text.
    void copySelected();
    /// The same for all rows that are shown.
    void copyAll();

Q_SIGNALS:
    /// The user chose a row.
    void chosen(const NxSceneProblem& problem);
    /// The numbers of problems have changed.
    void countsChanged();

protected:
    void changeEvent(QEvent* event) override;
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void buildTopLine(QWidget* page);
    void buildView();
    void addSeverity(QWidget* page, NxSeverity severity);
    void replaceCheck();
    void update();
    void updateActions();
    void updateIcons();
    void sizeColumns();
    void choose(int row);
    void mend(std::vector<NxSceneProblem> problems);
    void copy(const std::vector<int>& rows);
    [[nodiscard]] std::vector<int> selectedRows() const;
    [[nodiscard]] QString stateText() const;

    LiveCheck& m_check;
    OrvServices& m_services;
    JobBar& m_jobBar;
    ProblemModel* m_model;
    QTableView* m_view;
    std::array<QToolButton*, 3> m_severities{};
    QLineEdit* m_filter;
    QAction* m_mend;
    QAction* m_mendKind;
    QAction* m_again;
    QLabel* m_text; // in place of rows
    QStackedLayout* m_pages;
    bool m_choosing = false; // by the press of a mouse button that isn't released yet
    bool m_columnsChosen = false; // by the user
    bool m_sizingColumns = false;
    std::unique_ptr<CopyJob> m_copying;
};
