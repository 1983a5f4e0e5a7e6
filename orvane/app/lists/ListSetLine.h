#pragma once

#include <QWidget>

#include <memory>

class ApplyJob;
class JobBar;
class ListEdits;
class ListModel;
class ListView;
class QComboBox;
class QLineEdit;
class QToolButton;

/// A line that sets a column of the selected rows to the values of a formula.
class ListSetLine : public QWidget {
    Q_OBJECT

public:
    /// All live longer.
    ListSetLine(ListModel& model, ListView& view, ListEdits& edits, JobBar& jobBar, QWidget* parent = nullptr);
    ~ListSetLine() override;

    /// Puts the cursor into the formula, for the column that is current in the view.
    void begin();
    [[nodiscard]] bool isBusy() const noexcept { return m_job != nullptr; }

Q_SIGNALS:
    void failed(const QString& message);
    void applied();

private:
    void listColumns();
    void apply();
    void finish();

    ListModel& m_model;
    ListView& m_view;
    ListEdits& m_edits;
    JobBar& m_jobBar;
    QComboBox* m_column;
    QLineEdit* m_formula;
    QToolButton* m_button;
    std::unique_ptr<ApplyJob> m_job;
    int m_revision = 0; // of the list when the job began
    int m_target = 0; // its column
};
