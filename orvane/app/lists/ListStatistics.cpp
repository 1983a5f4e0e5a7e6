#include "orvane/app/lists/ListStatistics.h"

#include "orvane/app/base/UserLocale.h"
#include "orvane/app/files/JobBar.h"
#include "orvane/app/language/FollowLanguage.h"
#include "orvane/app/lists/ListView.h"
#include "orvane/app/lists/rows/ListModel.h"
#include "orvane/app/look/Look.h"

#include <QHeaderView>
#include <QLabel>
#include <QLocale>
#include <QTableWidget>
#include <QVBoxLayout>

#include <array>
#include <utility>

namespace {

/// When the statistics are begun although no row had to be painted, in milliseconds.
constexpr int paintPatience = 50;

enum StatisticsColumn { MinimumColumn, MaximumColumn, MeanColumn, NanColumn, StatisticsColumnCount };

/// The number for people: six digits, since sums are rounded anyway.
QString statisticsNumber(double number)
{
    constexpr int digits = 6;
    return QLocale::c().toString(number, 'g', digits);
}

} // namespace

ListStatistics::ListStatistics(ListModel& model, ListView& view, JobBar& jobBar, QWidget* parent)
    : QWidget(parent)
    , m_model(model)
    , m_view(view)
    , m_jobBar(jobBar)
    , m_heading(new QLabel(this))
    , m_table(new QTableWidget(0, StatisticsColumnCount, this))
{
    setObjectName(QStringLiteral("listStatistics"));
    auto* const layout = new QVBoxLayout(this);
    const int unit = orvane::look::unit(fontMetrics());
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(0);
    m_heading->setObjectName(QStringLiteral("listStatisticsHeading"));
    m_heading->setContentsMargins(2 * unit, unit, 2 * unit, unit);
    layout->addWidget(m_heading);
    m_table->setObjectName(QStringLiteral("listStatisticsTable"));
    orvane::followLanguage(this, [this] {
        m_table->setAccessibleName(tr("Statistics"));
        m_table->setHorizontalHeaderLabels({tr("Minimum"), tr("Maximum"), tr("Mean"), tr("NaN")});
    });
    m_table->setEditTriggers(QAbstractItemView::NoEditTriggers);
    m_table->setFrameShape(QFrame::NoFrame);
    m_table->setShowGrid(false);
    m_table->setWordWrap(false);
    m_table->horizontalHeader()->setHighlightSections(false);
    m_table->horizontalHeader()->setSectionResizeMode(QHeaderView::Stretch);
    m_table->horizontalHeader()->setSectionResizeMode(NanColumn, QHeaderView::ResizeToContents);
    m_table->verticalHeader()->setSectionResizeMode(QHeaderView::Fixed);
    m_table->verticalHeader()->setDefaultSectionSize(orvane::look::rowHeight(fontMetrics()));
    layout->addWidget(m_table, 1);

    m_timer.setSingleShot(true);
    connect(&m_timer, &QTimer::timeout, this, &ListStatistics::compute);
    view.viewport()->installEventFilter(this);
    connect(&model, &ListModel::listAboutToBeLeft, this, [this] { m_job.reset(); });
    connect(&model, &ListModel::listChanged, this, &ListStatistics::outdate);
    connect(&model, &QAbstractItemModel::modelReset, this, &ListStatistics::outdate);
    connect(view.selectionModel(), &QItemSelectionModel::selectionChanged, this, &ListStatistics::outdate);
}

ListStatistics::~ListStatistics() = default;

void ListStatistics::showEvent(QShowEvent* event)
{
    QWidget::showEvent(event);
    outdate();
}

void ListStatistics::hideEvent(QHideEvent* event)
{
    QWidget::hideEvent(event);
    m_timer.stop();
    m_job.reset();
}

void ListStatistics::outdate()
{
    m_isFresh = false;
    m_job.reset();
    if (!isVisible())
        return;
    m_awaitsPaint = true;
    m_timer.start(paintPatience);
}

bool ListStatistics::eventFilter(QObject* watched, QEvent* event)
{
    if (event->type() == QEvent::Paint && std::exchange(m_awaitsPaint, false))
        m_timer.start(0);
    return QWidget::eventFilter(watched, event);
}

void ListStatistics::compute()
{
    m_awaitsPaint = false;
    const bool isSelection = m_view.selectedCount() > 1;
    const RowRuns rows = isSelection ? m_view.selectedListRows() : m_view.allListRows();
    const int count = orvane::rowCount(rows);
    const QString number = orvane::countText(count);
    m_heading->setText(m_model.list() == nullptr ? QString()
            : isSelection                        ? tr("%1 selected rows").arg(number)
            : m_model.showsAll()                 ? (count == 1 ? tr("1 row") : tr("%1 rows").arg(number))
                                 : tr("%1 of %2 rows").arg(number, orvane::countText(m_model.listCount())));
    if (m_model.list() == nullptr || m_model.columns().kind() != ListColumns::Kind::Number) {
        m_table->setRowCount(0);
        m_isFresh = true;
        return;
    }
    m_job = std::make_unique<StatisticsJob>(*m_model.list(), rows);
    connect(m_job.get(), &FileJob::finished, this, [this] {
        StatisticsJob* const job = m_job.release();
        job->deleteLater();
        show(job->result());
    });
    connect(m_job.get(), &FileJob::cancelled, this, [this] { m_job.release()->deleteLater(); });
    m_jobBar.watch(m_job.get(), tr("Statistics"));
    m_job->start();
}

void ListStatistics::show(const std::vector<ColumnStatistics>& columns)
{
    m_isFresh = true;
    m_table->setRowCount(static_cast<int>(columns.size()));
    QStringList titles;
    for (int row = 0; row < static_cast<int>(columns.size()); ++row) {
        titles.append(m_model.columns().title(row));
        const ColumnStatistics& statistics = columns[static_cast<std::size_t>(row)];
        const bool hasNumbers = statistics.count > statistics.nanCount;
        const std::array<QString, StatisticsColumnCount> texts{
            hasNumbers ? statisticsNumber(statistics.minimum) : QString(),
            hasNumbers ? statisticsNumber(statistics.maximum) : QString(),
            hasNumbers ? statisticsNumber(statistics.mean) : QString(), QString::number(statistics.nanCount)};
        for (int column = 0; column < StatisticsColumnCount; ++column) {
            auto* const item = new QTableWidgetItem(texts.at(static_cast<std::size_t>(column)));
            item->setTextAlignment(Qt::AlignRight | Qt::AlignVCenter);
            m_table->setItem(row, column, item);
        }
    }
    m_table->setVerticalHeaderLabels(titles);
}
