#pragma once

#include "orvane/app/lists/rows/ListEdits.h"

#include <QObject>

#include <memory>

class CopyCellsJob;
class JobBar;
class ListModel;
class ListView;
class PasteJob;

/// Copies the selected cells of a list to the clipboard, as a table that spreadsheets take, and pastes such tables.
/// Long ones in slices.
class ListClipboard : public QObject {
    Q_OBJECT

public:
    /// All live longer.
    ListClipboard(ListModel& model, ListView& view, ListEdits& edits, JobBar& jobBar, QObject* parent = nullptr);
    ~ListClipboard() override;

    void copy();
    /// Copies, then removes the rows.
    void cut();
    /// Pastes from the current cell on. One cell goes to all selected ones.
    void paste();
    /// Whether a table is being copied or pasted.
    [[nodiscard]] bool isBusy() const noexcept { return m_copy != nullptr || m_paste != nullptr; }

Q_SIGNALS:
    void failed(const QString& message);
    /// What has been copied or pasted.
    void done(const QString& message);

private:
    void copyThen(bool removes);
    void finishCopy();
    void finishPaste();
    [[nodiscard]] bool hasSeveralCells() const;
    [[nodiscard]] orvane::Result<> write(const PastedRows& cells);
    orvane::Result<> fillSelection(const PastedRows& cell);

    ListModel& m_model;
    ListView& m_view;
    ListEdits& m_edits;
    JobBar& m_jobBar;
    std::unique_ptr<CopyCellsJob> m_copy;
    std::unique_ptr<PasteJob> m_paste;
    RowRuns m_cutRows; // to be removed when they are copied
    int m_copiedRows = 0;
    int m_revision = 0; // of the list when the work began
};
