#include "orvane/app/lists/ListClipboard.h"

#include "orvane/app/base/UserLocale.h"
#include "orvane/app/files/JobBar.h"
#include "orvane/app/lists/ListView.h"
#include "orvane/app/lists/jobs/CopyCellsJob.h"
#include "orvane/app/lists/jobs/PasteJob.h"
#include "orvane/app/lists/rows/ListModel.h"

#include "meridane/scene/fields/NxMField.h"

#include <QClipboard>
#include <QGuiApplication>
#include <QMimeData>

#include <algorithm>
#include <utility>

namespace {

/// Tables up to this size are copied and pasted at once: it takes some milliseconds.
constexpr int cellsAtOnce = 20'000;
constexpr qsizetype charactersAtOnce = 200'000;

void runListJob(ListJob& job, bool isShort)
{
    if (isShort)
        job.runAll();
    else
        job.start();
}

} // namespace

ListClipboard::ListClipboard(ListModel& model, ListView& view, ListEdits& edits, JobBar& jobBar, QObject* parent)
    : QObject(parent)
    , m_model(model)
    , m_view(view)
    , m_edits(edits)
    , m_jobBar(jobBar)
{
    connect(&model, &ListModel::listAboutToBeLeft, this, [this] {
        m_copy.reset();
        m_paste.reset();
    });
}

ListClipboard::~ListClipboard() = default;

void ListClipboard::copy()
{
    copyThen(false);
}

void ListClipboard::cut()
{
    copyThen(true);
}

void ListClipboard::copyThen(bool removes)
{
    const RowRuns places = m_view.selectedPlaces();
    if (m_model.list() == nullptr || places.empty())
        return;
    const ListView::Columns columns = m_view.selectedColumns();
    m_cutRows = removes ? m_view.selectedListRows() : RowRuns();
    m_copiedRows = orvane::rowCount(places);
    m_revision = m_model.revision();
    const int first = removes ? 0 : columns.first;
    const int last = removes ? m_model.columnCount() - 1 : columns.last;
    m_copy = std::make_unique<CopyCellsJob>(*m_model.list(), m_model.map(), places, first, last);
    connect(m_copy.get(), &FileJob::finished, this, &ListClipboard::finishCopy);
    connect(m_copy.get(), &FileJob::cancelled, this, [this] { m_copy.release()->deleteLater(); });
    m_jobBar.watch(m_copy.get(), tr("Copying rows"));
    runListJob(*m_copy, static_cast<long long>(m_copiedRows) * (last - first + 1) <= cellsAtOnce);
}

void ListClipboard::finishCopy()
{
    CopyCellsJob* const job = m_copy.release();
    job->deleteLater();
    if (m_model.revision() != m_revision) {
        Q_EMIT failed(tr("The list changed while it was being copied. Copy it again."));
        return;
    }
    QGuiApplication::clipboard()->setText(job->text());
    const RowRuns rows = std::exchange(m_cutRows, {});
    if (const auto result = m_edits.removeRows(rows); !result) {
        Q_EMIT failed(result.error());
        return;
    }
    Q_EMIT done(
        m_copiedRows == 1 ? tr("1 row was copied.") : tr("%1 rows were copied.").arg(orvane::countText(m_copiedRows)));
}

void ListClipboard::paste()
{
    if (m_model.list() == nullptr || m_paste != nullptr)
        return;
    const QMimeData* const data = QGuiApplication::clipboard()->mimeData();
    if (data == nullptr || !data->hasText() || data->text().isEmpty()) {
        const bool isHtml = data != nullptr && data->hasHtml();
        Q_EMIT failed(isHtml ? tr("The clipboard has HTML without plain text, which can't be pasted. Copy the cells "
                                  "in a program that copies them as text, such as a spreadsheet.")
                             : tr("There is nothing to paste: the clipboard has no text."));
        return;
    }
    const QString text = data->text();
    m_revision = m_model.revision();
    m_paste = std::make_unique<PasteJob>(*m_model.list(), text, m_view.selectedColumns().first);
    connect(m_paste.get(), &FileJob::finished, this, &ListClipboard::finishPaste);
    connect(m_paste.get(), &FileJob::failed, this, [this](const QString& message) {
        m_paste.release()->deleteLater();
        Q_EMIT failed(message);
    });
    connect(m_paste.get(), &FileJob::cancelled, this, [this] { m_paste.release()->deleteLater(); });
    m_jobBar.watch(m_paste.get(), tr("Reading the clipboard"));
    runListJob(*m_paste, text.size() <= charactersAtOnce);
}

void ListClipboard::finishPaste()
{
    PasteJob* const job = m_paste.release();
    job->deleteLater();
    if (m_model.revision() != m_revision) {
        Q_EMIT failed(tr("The list changed while the clipboard was being read. Nothing was pasted; paste again."));
        return;
    }
    const PastedRows cells = job->takeRows();
    const int rows = cells.rows;
    if (const auto result = write(cells); !result)
        Q_EMIT failed(result.error());
    else
        Q_EMIT done(rows == 1 ? tr("1 row was pasted.") : tr("%1 rows were pasted.").arg(orvane::countText(rows)));
}

bool ListClipboard::hasSeveralCells() const
{
    const QItemSelection selection = m_view.selectionModel()->selection();
    return selection.size() > 1
        || (selection.size() == 1 && (selection.front().height() > 1 || selection.front().width() > 1));
}

orvane::Result<> ListClipboard::write(const PastedRows& cells)
{
    const RowRuns places = m_view.selectedPlaces();
    if (cells.rows == 1 && cells.columns == 1 && hasSeveralCells())
        return fillSelection(cells);
    const int first = places.empty() ? 0 : places.front().first;
    const int room = m_model.rowCount() - first;
    if (cells.rows > room && !m_model.showsAll())
        return orvane::Failure{tr("The clipboard has %1 rows, but only %2 are shown from here on. Nothing was pasted. "
                                  "Show all rows first, or copy fewer.")
                                   .arg(cells.rows)
                                   .arg(room)};
    std::vector<int> rows(static_cast<std::size_t>(std::min(cells.rows, room)));
    for (std::size_t i = 0; i < rows.size(); ++i)
        rows[i] = m_model.map().listRow(first + static_cast<int>(i));
    return m_edits.setCells(cells, rows, m_view.selectedColumns().first, ListEdits::Cause::Paste);
}

orvane::Result<> ListClipboard::fillSelection(const PastedRows& cell)
{
    const std::vector<int> rows = orvane::rowsOf(m_view.selectedListRows());
    const ListView::Columns columns = m_view.selectedColumns();
    PastedRows cells{static_cast<int>(rows.size()), columns.last - columns.first + 1, {}, {}};
    if (m_model.columns().isNumeric())
        cells.numbers.assign(
            static_cast<std::size_t>(cells.columns), std::vector<double>(rows.size(), cell.numbers[0][0]));
    else
        cells.texts = QStringList(static_cast<qsizetype>(rows.size()), cell.texts.front());
    return m_edits.setCells(cells, rows, columns.first, ListEdits::Cause::Paste);
}
