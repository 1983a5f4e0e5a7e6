#include "orvane/app/lists/jobs/CopyCellsJob.h"

#include "orvane/app/lists/rows/TableText.h"

#include <algorithm>
#include <utility>

CopyCellsJob::CopyCellsJob(
    NxMField& list, RowMap map, RowRuns places, int firstColumn, int lastColumn, SliceClock::Clock clock)
    : ListJob(clock)
    , m_columns(list)
    , m_map(std::move(map))
    , m_places(std::move(places))
    , m_firstColumn(firstColumn)
    , m_lastColumn(lastColumn)
{
}

CopyCellsJob::~CopyCellsJob() = default;

QString CopyCellsJob::text() const
{
    return QString::fromUtf8(m_text.data(), static_cast<qsizetype>(m_text.size()));
}

bool CopyCellsJob::runPart()
{
    constexpr int rows = 256;
    if (m_run == m_places.size())
        return false;
    const RowRun run = m_places[m_run];
    const int end = std::min(run.count, m_next + rows);
    for (; m_next < end; ++m_next)
        appendRow(m_map.listRow(run.first + m_next));
    if (m_next == run.count) {
        ++m_run;
        m_next = 0;
    }
    return m_run < m_places.size();
}

void CopyCellsJob::appendRow(int row)
{
    for (int column = m_firstColumn; column <= m_lastColumn; ++column) {
        if (column > m_firstColumn)
            m_text += '\t';
        if (m_columns.kind() == ListColumns::Kind::Number)
            m_columns.appendNumber(m_text, m_columns.number(row, column));
        else
            m_text += orvane::quotedCell(m_columns.text(row, column)).toStdString();
    }
    m_text += '\n';
}

double CopyCellsJob::share() const
{
    if (m_run >= m_places.size())
        return 1;
    const double part = static_cast<double>(m_next) / m_places[m_run].count;
    return (static_cast<double>(m_run) + part) / static_cast<double>(m_places.size());
}
