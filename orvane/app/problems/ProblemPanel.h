#pragma once

#include "orvane/app/base/RowTable.h"

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
    [[nodiscard]] RowTable* view() const noexcept { return m_view; }

    /// Mends the selected problems that have a mend, as one step.
    void mendSelected();
    /// Mends all problems of the kind of the selected one, as one step.
    void mendKind();

Q_SIGNALS:
    /// The user chose a row.
    void chosen(const NxSceneProblem& problem);
    /// The numbers of problems have changed.
    void countsChanged();

protected:
    void changeEvent(QEvent* event) override;

private:
    void buildTopLine(QWidget* page);
    void buildView();
    void addSeverity(QWidget* page, NxSeverity severity);
    void replaceCheck();
    void update();
    void updateActions();
    void updateIcons();
    void choose(int row);
    void mend(std::vector<NxSceneProblem> problems);
    void copy(const std::vector<int>& rows);
    [[nodiscard]] QString stateText() const;

    LiveCheck& m_check;
    OrvServices& m_services;
    JobBar& m_jobBar;
    ProblemModel* m_model;
    RowTable* m_view;
    std::array<QToolButton*, 3> m_severities{};
    QLineEdit* m_filter;
    QAction* m_goTo;
    QAction* m_mend;
    QAction* m_mendKind;
    QAction* m_again;
    QLabel* m_text; // in place of rows
    QStackedLayout* m_pages;
    std::unique_ptr<CopyJob> m_copying;
};
