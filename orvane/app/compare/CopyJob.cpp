#include "orvane/app/compare/CopyJob.h"

#include "orvane/app/base/SliceClock.h"

#include <QClipboard>
#include <QGuiApplication>

#include <algorithm>
#include <utility>

CopyJob::CopyJob(int count, Line line)
    : FileJob(QString())
    , m_count(count)
    , m_line(std::move(line))
{
}

void CopyJob::start()
{
    startSlices();
}

void CopyJob::runSlice()
{
    constexpr int linesAtOnce = 16;
    const SliceClock slice;
    while (m_next < m_count && !slice.isSpent()) {
        const int end = std::min(m_count, m_next + linesAtOnce);
        for (; m_next < end; ++m_next)
            m_text += m_line(m_next) + u'\n';
    }
    if (m_next < m_count) {
        Q_EMIT progressed(static_cast<double>(m_next) / m_count);
        return;
    }
    QGuiApplication::clipboard()->setText(m_text);
    finish();
}
