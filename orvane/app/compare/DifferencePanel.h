#pragma once

#include "orvane/app/base/RowTable.h"

#include "meridane/scene/compare/NxSceneDifferences.h"

#include <QWidget>

#include <functional>
#include <memory>
#include <vector>

class CopyJob;
class DifferenceModel;
class FilterLine;
class JobBar;
class QLabel;
class QStackedLayout;
class QToolButton;

/// Shows the differences between the open scene and a file: counts, a line to filter them, and a row for each.
class DifferencePanel : public QWidget {
    Q_OBJECT

public:
    /// The bar shows the progress of copying and lives longer.
    explicit DifferencePanel(JobBar& jobBar, QWidget* parent = nullptr);
    ~DifferencePanel() override;

    [[nodiscard]] DifferenceModel* model() const noexcept { return m_model; }
    [[nodiscard]] RowTable* view() const noexcept { return m_view; }

    /// Shows that no file is compared.
    void clear();
    /// Shows that the scene is being compared with the file of that name.
    void showWorking(const QString& name);
    /// Shows the result.
    void showDifferences(NxSceneDifferences differences, const QString& name);

Q_SIGNALS:
    /// The user chose a row.
    void chosen(const NxSceneDifference& difference);
    void againRequested();

private:
    void buildView();
    void buildTopLine(QWidget* page);
    void showText(std::function<QString()> text);
    void updateHeading();
    void choose(int row);
    void copy(const std::vector<int>& rows);

    JobBar& m_jobBar;
    DifferenceModel* m_model;
    RowTable* m_view;
    QLabel* m_heading;
    FilterLine* m_filter;
    QToolButton* m_again;
    QLabel* m_text; // in place of rows
    std::function<QString()> m_shownText; // of this label, in the language of the moment
    QStackedLayout* m_pages;
    QString m_name; // of the other file
    std::unique_ptr<CopyJob> m_copying;
};
