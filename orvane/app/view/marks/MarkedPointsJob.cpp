#include "orvane/app/view/marks/MarkedPointsJob.h"

#include <algorithm>
#include <utility>

MarkedPointsJob::MarkedPointsJob(
    const NxRef<NxMesh>& mesh, Rows rows, RowRuns places, RowMap map, SliceClock::Clock clock)
    : ListJob(clock)
    , m_mesh(mesh)
    , m_rows(rows)
    , m_places(std::move(places))
    , m_map(std::move(map))
{
    const auto positions = static_cast<std::size_t>(mesh->positions.getNum());
    if (rows == Rows::OfIndices)
        m_isAdded.resize(positions);
    m_points.reserve(std::min(static_cast<std::size_t>(orvane::rowCount(m_places)), positions));
}

MarkedPointsJob::~MarkedPointsJob() = default;

bool MarkedPointsJob::runPart()
{
    for (int left = rowsPerPart; left > 0 && m_run < m_places.size();) {
        const RowRun run = m_places[m_run];
        const int count = std::min({left, run.count - m_next, m_map.count() - run.first - m_next});
        for (int i = 0; i < count; ++i)
            addRow(m_map.listRow(run.first + m_next + i));
        m_next += std::max(count, 0);
        left -= std::max(count, 0);
        if (count <= 0 || m_next == run.count) {
            ++m_run;
            m_next = 0;
        }
    }
    return m_run < m_places.size();
}

void MarkedPointsJob::addRow(int row)
{
    const std::span<const VbVec3f> positions = m_mesh->positions.getValues();
    // Negative numbers become very large ones.
    auto vertex = static_cast<std::size_t>(row);
    if (m_rows == Rows::OfIndices) {
        const std::span<const int> indices = m_mesh->indices.getValues();
        if (vertex >= indices.size())
            return;
        vertex = static_cast<std::size_t>(indices[vertex]);
        if (vertex >= m_isAdded.size() || m_isAdded[vertex])
            return;
        m_isAdded[vertex] = true;
    }
    if (vertex < positions.size())
        m_points.push_back(positions[vertex]);
}

double MarkedPointsJob::share() const
{
    return m_places.empty() ? 1 : static_cast<double>(m_run) / static_cast<double>(m_places.size());
}
